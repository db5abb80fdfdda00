// SPDX-License-Identifier: MIT
// Objects, parameters and values as they are typed.
#pragma once

#include "pages/layer/query.h"

#include <string>
#include <vector>

namespace cli {

// "OBJECT [PARAM...] [OBJECT [PARAM...]]...": a word that begins with "Device." begins an object. Throws Usage.
std::vector<pages::Object> objectsToRead(const std::vector<std::string> &words);

// Throws Usage for a path with "*", which stands for any one part where objects are read.
void refuseStar(const std::string &path);

// "OBJECT [NAME=VALUE...]..."; also "OBJECT.NAME=VALUE" in one word. Throws Usage.
std::vector<pages::Object> objectsToChange(const std::vector<std::string> &words);

} // namespace cli
