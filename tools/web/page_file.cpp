// SPDX-License-Identifier: MIT
#include "page_file.h"

#include "etag.h"

#include <algorithm>
#include <utility>

namespace web {
namespace {

constexpr std::pair<std::string_view, std::string_view> kTypes[] = {
    {".html", "text/html; charset=utf-8"},
    {".css", "text/css; charset=utf-8"},
    {".js", "text/javascript; charset=utf-8"},
    {".svg", "image/svg+xml"},
};

std::string_view typeOf(std::string_view path) {
    for (const auto &[ending, type] : kTypes) {
        if (path.ends_with(ending)) {
            return type;
        }
    }
    return "application/octet-stream";
}

} // namespace

PageFile pageFile(std::string_view path, std::string_view content) {
    return {path, content, typeOf(path), etagOf(content)};
}

const PageFile *findPageFile(std::string_view path) {
    const std::string_view wanted = path == "/" ? "/index.html" : path;
    const std::span<const PageFile> files = pageFiles();
    const auto found =
        std::find_if(files.begin(), files.end(), [&](const PageFile &file) { return file.path == wanted; });
    return found == files.end() ? nullptr : &*found;
}

} // namespace web
