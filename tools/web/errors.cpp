// SPDX-License-Identifier: MIT
#include "errors.h"

#include <algorithm>
#include <iterator>

namespace web {
namespace {

struct Row {
    int exit;
    Status status;
};

// docs/web.md has the same table.
constexpr Row kRows[] = {
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
    const auto *row =
        std::find_if(std::begin(kRows), std::end(kRows), [&](const Row &candidate) { return candidate.exit == exit; });
    return row == std::end(kRows) ? Status::InternalError : row->status;
}

Response errorResponse(const pages::Failure &failure) {
    return jsonResponse(pages::errorValue(failure), statusOf(static_cast<int>(failure.category())));
}

} // namespace web
