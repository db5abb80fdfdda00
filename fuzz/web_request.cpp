// SPDX-License-Identifier: MIT
// What judges a request of the web back end: host and origin, target, query and body.
#include "body.h"
#include "bytes.h"
#include "call.h"
#include "etag.h"
#include "origin.h"
#include "pages/failure.h"
#include "refusal.h"

#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);

namespace {

using namespace web;

void require(bool holds, const char *what) {
    if (!holds) {
        fprintf(stderr, "%s\n", what);
        abort();
    }
}

std::string encoded(const std::string &text) {
    std::string result;
    for (const unsigned char byte : text) {
        char escaped[4];
        snprintf(escaped, sizeof(escaped), "%%%02x", byte);
        result += byte == '/' ? "/" : escaped;
    }
    return result;
}

std::string encoded(const Target &target) {
    std::string text = encoded(target.path);
    for (const QueryItem &item : target.query) {
        text += (&item == target.query.data() ? "?" : "&") + encoded(item.name) + "=" + encoded(item.value);
    }
    return text;
}

void checkTarget(const Target &target) {
    require(target.path.find('\0') == std::string::npos, "a path with a NUL");
    const std::string text = encoded(target);
    require(encoded(parseTarget(text)) == text, "written anew it is another target");
}

void checkCall(const Call &call) {
    require((call.method & call.resource->methods) != 0, "a method that the resource has not");
    require(call.argument.find('/') == std::string::npos, "an argument of two components");
    static_cast<void>(call.flag("dry_run"));
}

// What a client names as read: in no case another tag than the one that stands there.
void checkTags(const std::string &ifMatch) {
    const std::string tag = etagOf("");
    const bool allowed = etagAllows(ifMatch, tag).value_or(false);
    require(!allowed || ifMatch.find('*') != std::string::npos || ifMatch.find(tag) != std::string::npos,
            "a foreign tag");
    require(etagAllows(ifMatch + "," + tag, tag).value_or(true), "a tag that is not found");
}

void checkBody(const pages::Value &body) {
    for (const pages::Object &object : objectsOf(body)) {
        require(object.name.starts_with("Device.") && !object.parameters.empty(), "a change of nothing");
        for (const pages::Parameter &parameter : object.parameters) {
            require((parameter.name + parameter.value).find('\0') == std::string::npos, "a value with a NUL");
        }
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    fuzz::Bytes bytes(data, size);
    const std::string host = bytes.text();
    const std::string origin = bytes.text();
    const bool own = OwnHosts("127.0.0.1:8080", {"gateway.example"}).isOwn(host);
    require(!own || !isFromOwnPage(host, "http://evil.example", "same-origin"), "a foreign page");
    static_cast<void>(isFromOwnPage(host, origin, ""));

    checkTags(origin);

    const std::string method = bytes.text();
    const std::string text = bytes.text();
    try {
        const Target target = parseTarget(text);
        checkTarget(target);
        Call call = parseCall(method, target);
        checkCall(call);
        takeBody(call, bytes.rest());
        checkBody(call.body);
        static_cast<void>(parametersOf(call.body));
    } catch (const Refusal &) {
        return 0;
    } catch (const pages::Failure &) {
        return 0;
    }
    return 0;
}
