// SPDX-License-Identifier: MIT
// Stands in for the C++ headers' use of glibc's locales. The library uses none: declarations are enough.
#pragma once

#include <clocale>

#define _GLIBCXX_NUM_CATEGORIES 0

namespace std {
typedef int *__c_locale;
int __convert_from_v(const __c_locale &, char *, int, const char *, ...);
} // namespace std
