// SPDX-License-Identifier: MIT
// What the bench's configuration layer answers, prepared from text:
//
//     get Device.DSL.Line.1.        a path as it is asked for
//     Device.DSL.Line.1             an object of the answer
//     Status = Up                   a parameter of it
//     ...                           the parameters that the vendor adds to every object
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace bench {

struct Param {
    std::string name, value;
};

struct Object {
    std::string name;
    std::vector<Param> params;
};

struct Answer {
    std::string path;
    std::vector<Object> objects;
};

using Answers = std::vector<Answer>;

Answers parseAnswers(std::string_view text);

// What becomes more in a grown answer: the parameters of each object, in rounds, or the objects.
enum class Growth { None, Params, Objects };

Answers grow(const Answers &answers, Growth growth, int times);

} // namespace bench
