// SPDX-License-Identifier: MIT
// A page as one typed value: the record that it fills, the object that it reads, what an empty value does, and rows
// parameter name -> record member -> copy rule. One engine reads them all.
//
// Names and paths stand inline: a table without pointers needs no relocation and stays in shared read-only memory.
// What happens to a parameter is the same on every page: an unknown name is skipped, a name met again overwrites, and
// an absent one leaves its field as the caller had it.
#pragma once

#include "caltofal.h"
#include "frame/name_filter.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <span>
#include <string_view>
#include <type_traits>

namespace frame {

// How a value becomes a field.
enum class Rule : uint8_t {
    Text,        // cut to the field, terminated
    Padded,      // as strncpy() over the whole field: zero-padded, without a terminator when it is full
    Whole,       // exactly its own characters without a terminator; left out when it does not leave room for one
    Overrunning, // exactly its own characters without a terminator; may run on to the record's end
    Number,      // decimal
    Flag,        // atob()
};

// What an empty value does.
enum class Empty : uint8_t {
    Store, // it is stored like any other
    Skip,  // the field keeps what it held
};

// One parameter and its place in the record.
struct alignas(4) Field {
    char name[28] = {};
    uint16_t offset = 0;
    uint16_t size = 0;
    Rule rule = Rule::Text;
    uint8_t length = 0; // of the name
};

// A field of records of one type: it fits no other page.
template <class Record>
struct Row {
    Field field;
};

// What the engine sees of a page. The fields follow it, then the path.
struct PageHead {
    NameFilter filter;
    uint16_t recordSize = 0;
    uint8_t count = 0; // of fields
    Empty empty = Empty::Store;

    [[nodiscard]] std::span<const Field> fields() const { return {reinterpret_cast<const Field *>(this + 1), count}; }
    // The path of the object that the page asks for. Where one message asks for the objects of several pages: a part of
    // the name by which the page's own object is found in the answer.
    [[nodiscard]] const char *object() const { return reinterpret_cast<const char *>(fields().data() + count); }
};

template <class Record, size_t Count, size_t PathSize>
struct Page {
    PageHead head;
    Field fields[Count];
    char path[PathSize];

    [[nodiscard]] const char *object() const { return path; }
};

template <class Member>
constexpr Rule defaultRule() {
    if constexpr (std::is_array_v<Member>) {
        return Rule::Text;
    } else if constexpr (std::is_same_v<Member, int32_t>) {
        return Rule::Number;
    } else {
        static_assert(std::is_same_v<Member, uint8_t>, "no copy rule for this field type");
        return Rule::Flag;
    }
}

template <class Member>
consteval bool fits(Rule rule) {
    switch (rule) {
    case Rule::Number:
        return std::is_same_v<Member, int32_t>;
    case Rule::Flag:
        return std::is_same_v<Member, uint8_t>;
    default:
        return std::is_same_v<std::remove_extent_t<Member>, char> && std::is_array_v<Member>;
    }
}

// Never defined and not constant expressions: the compiler's error shows their names.
void thisRuleDoesNotFitTheTypeOfTheField();
void aRowHoldsNamesOf4To27Characters();

// Builds a row; a rule that does not fit the member, or a name that does not fit the row, does not compile.
template <class Record, class Member>
consteval Row<Record> bindField(std::string_view name, size_t offset, Rule rule = defaultRule<Member>()) {
    if (!fits<Member>(rule)) {
        thisRuleDoesNotFitTheTypeOfTheField();
    }
    if (name.size() < sizeof(uint32_t) || name.size() >= sizeof(Field::name)) {
        aRowHoldsNamesOf4To27Characters();
    }
    Row<Record> row;
    std::copy(name.begin(), name.end(), row.field.name);
    row.field.offset = static_cast<uint16_t>(offset);
    row.field.size = static_cast<uint16_t>(sizeof(Member));
    row.field.rule = rule;
    row.field.length = static_cast<uint8_t>(name.size());
    return row;
}

// A row for a record's member, by the rule of the member's type or by another one.
#define FIELD(Record, member, name) ::frame::bindField<Record, decltype(Record::member)>(name, offsetof(Record, member))
#define FIELD_BY(Record, member, name, rule)                                                                           \
    ::frame::bindField<Record, decltype(Record::member)>(name, offsetof(Record, member), rule)

// Builds a page; a row of another record does not compile.
template <class Record, size_t PathSize, size_t Count>
consteval auto page(const char (&object)[PathSize], Empty empty, const Row<Record> (&rows)[Count]) {
    using Result = Page<Record, Count, PathSize>;
    static_assert(sizeof(Record) <= UINT16_MAX && Count <= UINT8_MAX);
    static_assert(offsetof(Result, fields) == sizeof(PageHead));
    static_assert(offsetof(Result, path) == sizeof(PageHead) + Count * sizeof(Field));
    Result result = {};
    result.head.recordSize = sizeof(Record);
    result.head.count = Count;
    result.head.empty = empty;
    for (size_t i = 0; i < Count; ++i) {
        result.fields[i] = rows[i].field;
        result.head.filter.add(rows[i].field.name);
    }
    std::copy(std::begin(object), std::end(object), result.path);
    return result;
}

// The field of a parameter, or nullptr. The name is that of a node: as many of its bytes are
// read as the longest field name has.
const Field *findField(const PageHead &page, const char *name);

// Stores a value into the record by the field's rule.
void storeField(const Field &field, const char *value, void *record, size_t recordSize);

// Stores every parameter of an object that has a row, in order. The object's name is not compared with the page's path:
// the caller chooses the objects.
void fillRecord(ObjectNode &object, const PageHead &page, void *record);

// As fillRecord(); the record of another page does not compile.
template <class Record, size_t Count, size_t PathSize>
void fill(ObjectNode &object, const Page<Record, Count, PathSize> &page, std::type_identity_t<Record> &record) {
    fillRecord(object, page.head, &record);
}

} // namespace frame
