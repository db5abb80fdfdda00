// SPDX-License-Identifier: MIT
// Takes back what the C++ headers found out about glibc and does not hold for musl.
#pragma once

#include_next <bits/c++config.h>

#undef _GLIBCXX_USE_PTHREAD_COND_CLOCKWAIT
#undef _GLIBCXX_USE_PTHREAD_MUTEX_CLOCKLOCK
#undef _GLIBCXX_USE_PTHREAD_RWLOCK_CLOCKLOCK
