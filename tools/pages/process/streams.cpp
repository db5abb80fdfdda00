// SPDX-License-Identifier: MIT
#include "pages/process/streams.h"

#include "caltofal/trace.h"

#include <sys/types.h>

namespace cli {

#ifdef __GLIBC__
namespace {

template <Source source>
ssize_t toTrace(void * /*cookie*/, const char *text, size_t size) {
    traceCollect();
    traceText(source, {text, size});
    return static_cast<ssize_t>(size);
}

template <Source source>
FILE *replacement(FILE *original) {
    FILE *stream = fopencookie(nullptr, "w", {nullptr, toTrace<source>, nullptr, nullptr});
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

StdioCapture::StdioCapture() : out_(stdout), err_(stderr) {
    stdout = replacement<Source::Log>(out_);
    stderr = replacement<Source::Stderr>(err_);
}

StdioCapture::~StdioCapture() {
    restore(stdout, out_);
    restore(stderr, err_);
}
#else
StdioCapture::StdioCapture() : out_(stdout), err_(stderr) {}
StdioCapture::~StdioCapture() = default;
#endif

} // namespace cli
