// SPDX-License-Identifier: MIT
// The statuses of HTTP that the server answers.
#pragma once

namespace web {

enum class Status : unsigned {
    Ok = 200,
    Accepted = 202,
    SeeOther = 303,
    NotModified = 304,
    BadRequest = 400,
    Unauthorized = 401,
    Forbidden = 403,
    NotFound = 404,
    MethodNotAllowed = 405,
    RequestTimeout = 408,
    LengthRequired = 411,
    PreconditionFailed = 412,
    ContentTooLarge = 413,
    UnsupportedMediaType = 415,
    MisdirectedRequest = 421,
    UnprocessableContent = 422,
    HeadersTooLarge = 431,
    InternalError = 500,
    Unavailable = 503,
    GatewayTimeout = 504,
};

} // namespace web
