// SPDX-License-Identifier: MIT
// Functions that work on a text in place, markup among them.
#include "fuzz.h"

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    fuzz::Bytes bytes(data, size);
    fuzz::startOver();
    const std::string tag = bytes.text(20);
    const std::string text = bytes.text();
    fuzz::Text markup(text);
    fuzz::Text openTag(tag);
    fuzz::require(remove_rss_tag(markup.get(), openTag.get()) == markup.get(), "another text");
    fuzz::require(strlen(markup.get()) <= text.size(), "a payload longer than the text");

    fuzz::Text reversed(text);
    reverse_string(reversed.get());
    reverse_string(reversed.get());
    fuzz::require(text == reversed.get(), "twice reversed is another text");

    fuzz::Text upper(text);
    fuzz::require(strlen(strupr(upper.get())) == text.size(), "upper case of another length");
    fuzz::Text spaced(text);
    const char *trimmed = trim_start_space(spaced.get());
    fuzz::require(trimmed >= spaced.get() && trimmed <= spaced.get() + text.size(), "trimmed past the text");
    return 0;
}
