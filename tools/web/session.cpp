// SPDX-License-Identifier: MIT
#include "session.h"

#include "refusal.h"
#include "token.h"

#include <string_view>
#include <strings.h>

namespace web {
namespace {

constexpr std::string_view kBearer = "Bearer ";

// Whether a Cookie header has this one. Other servers on the host can set some of the same name, which may come first.
bool hasCookie(std::string_view header, std::string_view name, std::string_view value) {
    bool found = false;
    while (!header.empty()) {
        std::string_view item = header.substr(0, header.find(';'));
        header.remove_prefix(item.size() == header.size() ? item.size() : item.size() + 1);
        item.remove_prefix(std::min(item.find_first_not_of(' '), item.size()));
        if (item.starts_with(name) && item.substr(name.size()).starts_with('=')) {
            found = isSameSecret(item.substr(name.size() + 1), value) || found;
        }
    }
    return found;
}

} // namespace

Session::Session(int port)
    : token_(randomToken()), cookie_(randomToken()), cookieName_("caltofal-" + std::to_string(port)) {}

void Session::check(const Request &request) {
    const std::string &given = request.authorization;
    if (given.size() >= kBearer.size() && strncasecmp(given.data(), kBearer.data(), kBearer.size()) == 0) {
        checkToken(std::string(trimmed(std::string_view(given).substr(kBearer.size()))), request);
        return;
    }
    // A cookie from another start is no try: a page that stayed open asks with it for hours.
    if (!hasCookie(request.cookie, cookieName_, cookie_)) {
        throw Refusal(
            Status::Unauthorized,
            "there is no session: open the URL that caltofal-web printed, or send its token as Authorization: "
            "Bearer TOKEN",
            {{"WWW-Authenticate", "Bearer"}});
    }
}

std::string Session::open(const std::string &token, const Request &request) {
    checkToken(token, request);
    return cookieName_ + "=" + cookie_ + "; Path=/; HttpOnly; SameSite=Strict";
}

void Session::checkToken(const std::string &token, const Request &request) {
    const bool right = isSameSecret(token, token_);
    if (tries_.mustWait(request.address, right)) {
        throw Refusal(Status::Unavailable, "too many wrong tokens: wait a little",
                      {{"Retry-After", std::to_string(WrongTries::kWait.count())}});
    }
    if (!right) {
        tries_.noteWrong(request.address);
        throw Refusal(Status::Unauthorized, "the token is not the one that caltofal-web printed at its start",
                      {{"WWW-Authenticate", "Bearer"}});
    }
    tries_.noteRight(request.address);
}

} // namespace web
