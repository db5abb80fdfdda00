// SPDX-License-Identifier: MIT
#include "network/path.h"

#include "caltofal.h"
#include "frame/text.h"

#include <cstring>

namespace network {

InterfacePath::InterfacePath(const char *path) {
    frame::copyText(path_, sizeof(path_) - 1, path);
    zintu_InsertDotEndofObj(path_);
    length_ = strlen(path_);
}

bool InterfacePath::is(const char *reference) const {
    const size_t length = strlen(reference);
    const bool dotted = length > 0 && reference[length - 1] == '.';
    return length > 0 && length + (dotted ? 0 : 1) == length_ && memcmp(reference, path_, length) == 0;
}

} // namespace network
