// SPDX-License-Identifier: MIT
// The files of the page in a browser, embedded in the program when it is built. Nothing else is ever served as a file.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace web {

struct PageFile {
    std::string_view path; // "/app.js"
    std::string_view content;
    std::string_view type; // of the Content-Type header
    std::string etag;
};

// All of them, for the life of the process. Safe for many threads.
std::span<const PageFile> pageFiles();

// The file of that decoded path, "/" being "/index.html"; null when there is none.
const PageFile *findPageFile(std::string_view path);

// A row of the table, with what its content and the ending of its name tell.
PageFile pageFile(std::string_view path, std::string_view content);

} // namespace web
