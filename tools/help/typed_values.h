// SPDX-License-Identifier: MIT
// Values of the command line that are kept out of errors: who types NAME=VALUE where it does not belong may have typed
// a secret.
#pragma once

#include <string>

namespace help {

// Notes the words of the command line; before the first error is written, in the main thread. They are not copied.
void noteTypedWords(int argc, char *const *argv);

// The text with "NAME=..." in place of every "NAME=VALUE" in it that was typed, whole or in part, also one with escapes
// for its bytes. A name is of letters, digits, dots and underscores; a value of a long option is a word of its own.
std::string withoutTypedValues(std::string text);

} // namespace help
