// SPDX-License-Identifier: MIT
// The one layout of --help in every program of this project.
#pragma once

#include <CLI/CLI.hpp>
#include <string>

namespace help {

// The parser's layout in 80 columns. A line that is longer goes on below what it explains: of an option or a command
// below its description, of other texts where they begin. Examples (the lines after "Examples:" up to an empty one) go
// on behind a backslash, so that they can be copied.
class FoldedFormatter : public CLI::Formatter {
  public:
    std::string make_help(const CLI::App *app, std::string name, CLI::AppFormatMode mode) const override;
};

} // namespace help
