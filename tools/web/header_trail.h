// SPDX-License-Identifier: MIT
// Whether the HTTP library has seen every byte of a request's head.
#pragma once

#include <cstdint>
#include <string_view>

namespace web {

// libmicrohttpd 0.9.76 and older takes a header line without a name for the end of the headers, so that what follows is
// a request of its own, appends a folded line to the name of the header above it, and ends texts at a NUL. It cuts the
// head into its texts where it stands, with a NUL over each colon and line ending: what lies between two texts that
// follow each other tells whether anything is missing. Newer ones are left to judge this. All lines must end
// alike; a line of a colon alone that ends with LF among others with CR LF looks like the empty line, and is not found.
class HeaderTrail {
  public:
    // The first line; `target` is a part of the HTTP library's own text.
    HeaderTrail(const char *method, std::string_view target, const char *version);

    // The next header. Addresses are compared, no more: the texts need not be parts of one.
    void follow(const char *name, const char *value);

    // Whether nothing was left out up to the end of the head, the empty line included.
    [[nodiscard]] bool endsAt(const char *headEnd) const;

  private:
    const char *end_;
    uintptr_t lineEnd_ = 0; // the bytes of one; 0: not known yet
    bool whole_ = true;
};

} // namespace web
