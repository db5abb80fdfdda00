// SPDX-License-Identifier: MIT
//
// Dumps as text: "path=value" a line, with or without blanks around "=", as tools on a device print them.
#pragma once

#include "exchange/dump/row.h"

namespace sandbox {

// What a text without annotations is whose first line is below a root.
enum class TextForm {
    Dump, // a line is one that no gateway file has ("path=value" without blanks, a pattern with a value), or every line
          // is of the form and none is a comment
    Either, // every line could be either's: the comments are a gateway file's
    Other,  // no dump
};
TextForm textFormOf(std::string_view text);

// Values are taken byte for byte, but for a blank that all have behind "="; where all are in quotes, without these.
Dump readTextDump(std::string_view text);

} // namespace sandbox
