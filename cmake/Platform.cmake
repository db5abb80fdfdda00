# SPDX-License-Identifier: MIT
# Where libcal and libhelper come from: CALTOFAL_LIBCAL and CALTOFAL_LIBHELPER, files.
if(CALTOFAL_PLATFORM STREQUAL "sandbox")
  set(CALTOFAL_LIBCAL $<TARGET_FILE:cal>)
  set(CALTOFAL_LIBHELPER $<TARGET_FILE:helper>)
else()
  find_library(CALTOFAL_LIBCAL NAMES cal REQUIRED)
  find_library(CALTOFAL_LIBHELPER NAMES helper REQUIRED)
endif()
