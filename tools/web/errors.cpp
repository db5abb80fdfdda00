// SPDX-License-Identifier: MIT
#include "errors.h"

#include <algorithm>
#include <iterator>

namespace web {
namespace {

struct StatusOfExit {
    int exit;
    Status status;
};

// docs/web.md has the same table.
constexpr StatusOfExit kStatuses[] = {
    {static_cast<int>(pages::Category::Failed), Status::InternalError},
    {static_cast<int>(pages::Category::Usage), Status::BadRequest},
    {static_cast<int>(pages::Category::TimeOut), Status::GatewayTimeout},
    {static_cast<int>(pages::Category::NoLayer), Status::Unavailable},
    {static_cast<int>(pages::Category::Refused), Status::UnprocessableContent},
    {static_cast<int>(pages::Category::Absent), Status::NotFound},
    {kExitNoBox, Status::Unavailable},
};

} // namespace

Status statusOf(int exit) {
    const auto *row = std::find_if(std::begin(kStatuses), std::end(kStatuses),
                                   [&](const StatusOfExit &candidate) { return candidate.exit == exit; });
    return row == std::end(kStatuses) ? Status::InternalError : row->status;
}

Response errorResponse(const pages::Failure &failure) {
    return jsonResponse(pages::errorValue(failure), statusOf(static_cast<int>(failure.category())));
}

} // namespace web
