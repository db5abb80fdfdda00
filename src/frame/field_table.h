// SPDX-License-Identifier: MIT
// A page as a table: parameter name -> record member -> copy rule, read by one engine.
//
// Names stand inline in the row: a table without pointers needs no relocation and stays in shared read-only pages.
// What happens to a parameter is the same on every page: an unknown name is skipped, a name met again overwrites, and
// an absent one leaves its field as the caller had it.
#pragma once

#include "caltofal.h"
#include "frame/name_filter.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
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

// Whether an empty value is stored like any other.
enum class Empty : uint8_t { Store, Skip };

// One row.
struct alignas(4) Field {
    char name[28];
    uint16_t offset;
    uint16_t size;
    Rule rule;
    uint8_t length; // of the name
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

// Never defined and no constant expressions: their names are what the compiler says.
void thisRuleDoesNotFitTheTypeOfTheField();
void aRowHoldsNamesOf4To27Characters();

// Builds a row; a rule that does not fit the member, or a name that does not fit the row, does not compile.
template <class Member>
consteval Field bindField(std::string_view name, size_t offset, Rule rule = defaultRule<Member>()) {
    if (!fits<Member>(rule)) {
        thisRuleDoesNotFitTheTypeOfTheField();
    }
    if (name.size() < sizeof(uint32_t) || name.size() >= sizeof(Field::name)) {
        aRowHoldsNamesOf4To27Characters();
    }
    Field field = {{},
                   static_cast<uint16_t>(offset),
                   static_cast<uint16_t>(sizeof(Member)),
                   rule,
                   static_cast<uint8_t>(name.size())};
    std::copy(name.begin(), name.end(), field.name);
    return field;
}

// A row for a record's member, by the rule of the member's type or by another one.
#define FIELD(Record, member, name) ::frame::bindField<decltype(Record::member)>(name, offsetof(Record, member))
#define FIELD_BY(Record, member, name, rule)                                                                           \
    ::frame::bindField<decltype(Record::member)>(name, offsetof(Record, member), rule)

// A table with the filter of its names, which the compiler makes where a table is named as an argument.
struct Fields {
    std::span<const Field> rows;
    NameFilter filter;

    template <size_t Count>
    consteval Fields(const Field (&table)[Count]) : Fields(std::span(table)) {} // NOLINT(google-explicit-constructor)
    constexpr Fields(std::span<const Field> table) : rows(table) {              // NOLINT(google-explicit-constructor)
        for (const Field &field : table) {
            filter.add(field.name);
        }
    }
    // The same with a name in its filter that has no row: a parameter that the page reads itself.
    [[nodiscard]] consteval Fields with(const char *name) const {
        Fields more = *this;
        more.filter.add(name);
        return more;
    }
};

// The row of a parameter, or nullptr. The name stands in a node: it is read as far as the names of rows
// reach.
const Field *findField(const Fields &fields, const char *name);

// Stores a value into the record by the row's rule.
void storeField(const Field &field, const char *value, void *record, size_t recordSize);

// Stores a parameter, where it has a row.
void storeParam(const ParamNode &param, const Fields &fields, void *record, size_t recordSize, Empty empty);

// Stores every parameter of an object that has a row, in order.
void fillRecord(ObjectNode &object, const Fields &fields, void *record, size_t recordSize, Empty empty);

template <class Record>
void fill(ObjectNode &object, const Fields &fields, Record &record, Empty empty = Empty::Store) {
    fillRecord(object, fields, &record, sizeof(Record), empty);
}

// As fill() from an object, for one of its parameters.
template <class Record>
void fill(const ParamNode &param, const Fields &fields, Record &record, Empty empty = Empty::Store) {
    if (fields.filter.mayHold(param.name)) {
        storeParam(param, fields, &record, sizeof(Record), empty);
    }
}

} // namespace frame
