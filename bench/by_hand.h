// SPDX-License-Identifier: MIT
// The floor's way to the platform: the calls themselves, nothing between. It reads names by their first four bytes and
// then compares against the literal, without a call.
#pragma once

#include "caltofal.h"
#include "libcal.h"
#include "libhelper.h"

#include <bit>
#include <charconv>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <strings.h>
#include <type_traits>
#include <unistd.h>

namespace by_hand {

// Starts a message; false when memory is short.
inline bool begin(MsgHeader &message, uint32_t mainOper, uint32_t listFlags, uint32_t owner) {
    auto *head = static_cast<ObjectNode *>(help_calloc(1, sizeof(ObjectNode), "by_hand", __LINE__));
    message = {mainOper, listFlags, owner, 1, 0, head};
    if (!head) {
        return false;
    }
    head->link.next = head->link.prev = &head->link;
    return true;
}

inline ObjectNode *object(MsgHeader &message, const char *path, uint32_t subOper = 0) {
    return help_addObjList(message.objectList, path, 0, 0, subOper, 0);
}

inline void param(ObjectNode *object, const char *name, const char *value = nullptr) {
    help_addParamList(object, name, 0, value, 0);
}

inline int locked(int (*call)(MsgHeader *), MsgHeader &message) {
    pthread_mutex_lock(&capi_mutex);
    const int code = call(&message);
    pthread_mutex_unlock(&capi_mutex);
    return code;
}

inline int release(MsgHeader &message) {
    return help_delMsg(&message, 1);
}

// Asks for a whole object.
inline int get(MsgHeader &message, const char *path, uint32_t listFlags = SOPT_OBJVALUE,
               uint32_t owner = CALTOFAL_OWNER_SINGLE) {
    if (!begin(message, CALTOFAL_OPER_GET, listFlags, owner)) {
        return -1;
    }
    object(message, path);
    return locked(cal_getValue, message);
}

// Asks for the instances of a table whose parameter has a value.
inline int getFiltered(MsgHeader &message, const char *path, const char *name, const char *value) {
    if (!begin(message, CALTOFAL_OPER_GET, CALTOFAL_LIST_LEAF, CALTOFAL_OWNER_HOST)) {
        return -1;
    }
    param(object(message, path), name, value);
    return locked(cal_getValue, message);
}

// Writes a console line.
inline void print(const char *line, size_t length) {
    const int console = open("/dev/console", O_RDWR);
    if (console >= 0) {
        [[maybe_unused]] const ssize_t written = write(console, line, length);
        close(console);
    }
}

template <size_t Size>
void print(const char (&line)[Size]) {
    print(line, Size - 1);
}

// The first four bytes of a name of at least three characters.
constexpr uint32_t four(const char *name) {
    if (std::is_constant_evaluated()) {
        const char bytes[4] = {name[0], name[1], name[2], name[3]};
        return std::bit_cast<uint32_t>(bytes);
    }
    uint32_t bytes = 0;
    memcpy(&bytes, name, sizeof(bytes));
    return bytes;
}

// Whether a text that fills a larger buffer equals a literal.
template <size_t Size>
bool is(const char *text, const char (&literal)[Size]) {
    return memcmp(text, literal, Size) == 0;
}

// Whether it begins with the literal.
template <size_t Size>
bool begins(const char *text, const char (&literal)[Size]) {
    return memcmp(text, literal, Size - 1) == 0;
}

// Whether it begins with the literal in any case; mostly in its own.
template <size_t Size>
bool beginsAnyCase(const char *text, const char (&literal)[Size]) {
    return begins(text, literal) || strncasecmp(text, literal, Size - 1) == 0;
}

// A switch that is on: '1', or "true" in any case.
inline bool isOn(const char *value) {
    return *value == '1' || beginsAnyCase(value, "true");
}

// As atoi(), cheaper for up to nine digits.
inline int number(const char *value) {
    const bool negative = *value == '-';
    const char *first = value + (negative ? 1 : 0);
    const char *digit = first;
    int result = 0;
    for (; *digit >= '0' && *digit <= '9' && digit < first + 9; ++digit) {
        result = result * 10 + (*digit - '0');
    }
    if (digit == first || digit == first + 9) {
        return atoi(value);
    }
    return negative ? -result : result;
}

// Puts a literal and its terminator at the end of a text that is being built; the new end.
template <size_t Size>
char *append(char *end, const char (&literal)[Size]) {
    memcpy(end, literal, Size);
    return end + Size - 1;
}

// A field's text, which has no terminator when it fills the field.
template <size_t Size>
char *appendField(char *end, const char (&field)[Size]) {
    return static_cast<char *>(mempcpy(end, field, strnlen(field, Size)));
}

inline char *append(char *end, int value) {
    return std::to_chars(end, end + 11, value).ptr;
}

// Copies at most Size - 1 characters and terminates.
template <size_t Size>
void copy(char (&field)[Size], const char *value) {
    const size_t length = strnlen(value, Size - 1);
    memcpy(field, value, length);
    field[length] = '\0';
}

// Copies a value's characters without a terminator.
inline void copyUnterminated(char *field, const char *value) {
    memcpy(field, value, strlen(value)); // NOLINT(bugprone-not-null-terminated-result): as its name says
}

// for each object or parameter: the rings, walked by their links.
template <class Visit>
void eachObject(const MsgHeader &message, Visit visit) {
    ListLink *head = &message.objectList->link;
    for (ListLink *at = head->next; at != head; at = at->next) {
        visit(*reinterpret_cast<ObjectNode *>(reinterpret_cast<char *>(at) - offsetof(ObjectNode, link)));
    }
}

template <class Visit>
void eachParam(const ObjectNode &object, Visit visit) {
    const ListLink *head = &object.params;
    for (ListLink *at = head->next; at != head; at = at->next) {
        const auto *node = reinterpret_cast<ParamNode *>(reinterpret_cast<char *>(at) - offsetof(ParamNode, link));
        visit(static_cast<const char *>(node->name), static_cast<const char *>(node->value));
    }
}

} // namespace by_hand
