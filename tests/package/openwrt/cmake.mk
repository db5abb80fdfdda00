# SPDX-License-Identifier: MIT
# All that the recipe takes from here are the CMake options, which it sets itself.
