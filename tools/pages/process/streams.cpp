// SPDX-License-Identifier: MIT
#include "pages/process/streams.h"

#include "pages/process/output.h"

#include <sys/types.h>

namespace pages {

#ifdef __GLIBC__
namespace {

template <Source source>
ssize_t handOn(void * /*cookie*/, const char *text, size_t size) {
    output(source, {text, size});
    return static_cast<ssize_t>(size);
}

template <Source source>
FILE *replacement(FILE *original) {
    FILE *stream = fopencookie(nullptr, "w", {nullptr, handOn<source>, nullptr, nullptr});
    if (!stream) {
        return original;
    }
    setvbuf(stream, nullptr, _IONBF, 0);
    return stream;
}

void restore(FILE *&stream, FILE *original) {
    if (stream != original) {
        fclose(stream);
        stream = original;
    }
}

} // namespace

StreamCapture::StreamCapture() : out_(stdout), err_(stderr) {
    stdout = replacement<Source::Log>(out_);
    stderr = replacement<Source::Stderr>(err_);
}

StreamCapture::~StreamCapture() {
    restore(stdout, out_);
    restore(stderr, err_);
}
#else
StreamCapture::StreamCapture() : out_(stdout), err_(stderr) {}
StreamCapture::~StreamCapture() = default;
#endif

} // namespace pages
