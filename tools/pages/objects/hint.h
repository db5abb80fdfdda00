// SPDX-License-Identifier: MIT
// What somebody may have meant who names what is not there.
#pragma once

#include "caltofal.h"
#include "pages/failure.h"
#include "pages/layer/query.h"

#include <string>
#include <vector>

namespace pages::objects {

// The names of the parameters that stand in an object, or in the objects of its table.
std::vector<std::string> namesIn(const std::string &object);

// " (did you mean HostName?)" for a parameter that is not there: a word may also be the path of another object.
std::string parameterHint(const std::string &parameter, const std::string &object);

// The refusal of parameters that no object of a path has; `hint` stands behind it.
Failure absentParameter(const std::string &object, const std::string &parameters, const std::string &hint);

// The refusal of a path of which a part is not there, with what there is instead of the first such part.
Failure withHint(const Failure &failure, const std::string &path);

// The refusal of a search with what may have been meant by the first of these parameters that the table does not have.
Failure withParameterHint(const Failure &failure, const std::string &table, const std::vector<std::string> &parameters);

// What `act` answers; its refusal of the path comes with that hint.
template <class Act>
auto hinting(const std::string &path, Act act) {
    try {
        return act();
    } catch (const Failure &failure) {
        if (failure.code() != CALTOFAL_ABSENT_OBJECT) {
            throw; // as what it is
        }
        throw withHint(failure, path);
    }
}

// The same of several paths, one of which was refused; in a change also for a parameter.
Failure withHint(const Failure &failure, const std::vector<Object> &objects);

} // namespace pages::objects
