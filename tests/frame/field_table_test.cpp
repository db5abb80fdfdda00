// SPDX-License-Identifier: MIT
#include "frame/field_table.h"
#include "platform.h"

#include "../../src/network/field_tables.h"

#include <set>

using namespace frame;
using namespace test;

namespace {

struct Record {
    char text[8];
    char padded[8];
    char whole[8];
    char overrunning[8];
    int32_t number;
    uint8_t flag;
    char last[4];
};

constexpr Field kFields[] = {
    FIELD(Record, text, "Text"),
    FIELD_BY(Record, padded, "Padded", Rule::Padded),
    FIELD_BY(Record, whole, "Whole", Rule::Whole),
    FIELD_BY(Record, overrunning, "Overrunning", Rule::Overrunning),
    FIELD(Record, number, "Number"),
    FIELD(Record, flag, "Flag"),
    FIELD_BY(Record, last, "Last", Rule::Overrunning),
};

struct RuleRow {
    const char *name, *value;
    size_t offset;
    std::string bytes; // what the field and what lies behind it become; '#' is untouched
};

TEST(FieldTable, Rules) {
    const std::string nul(1, '\0');
    const RuleRow rows[] = {
        {"Text", "abc", 0, "abc" + nul + "####"},
        {"Text", "1234567", 0, "1234567" + nul},
        {"Text", "12345678", 0, "1234567" + nul + "#"},
        {"Text", "", 0, nul + "#######"},
        {"Padded", "abc", 8, "abc" + std::string(5, '\0') + "#"},
        {"Padded", "123456789", 8, "12345678#"},
        {"Whole", "1234567", 16, "1234567#"},
        {"Whole", "12345678", 16, "#########"},
        {"Overrunning", "abc", 24, "abc#####"},
        {"Overrunning", "1234567890", 24, "1234567890##"},
        {"Last", "123456789012345", offsetof(Record, last), "1234567"}, // the record's last padding included
        {"Flag", "TRUE", offsetof(Record, flag), "\x01#"},
        {"Flag", "yes", offsetof(Record, flag), nul + "#"},
        {"Texts", "abc", 0, "####"},
        {"Tex", "abc", 0, "####"},
    };
    for (const RuleRow &row : rows) {
        Record record;
        memset(&record, '#', sizeof(record));
        if (const Field *field = findField(kFields, row.name)) {
            storeField(*field, row.value, &record, sizeof(record));
        }
        const size_t length = std::min(row.bytes.size(), sizeof(record) - row.offset);
        EXPECT_EQ(row.bytes.substr(0, length), std::string(reinterpret_cast<char *>(&record) + row.offset, length))
            << row.name << ' ' << row.value;
    }
    for (const auto &[value, number] : {std::pair{"-12", -12}, {"7x", 7}, {"x", 0}, {"", 0}}) {
        Record record = {};
        storeField(*findField(kFields, "Number"), value, &record, sizeof(record));
        EXPECT_EQ(number, record.number);
    }
}

struct Table {
    const char *name;
    std::span<const Field> fields;
    size_t recordSize;
};

// Every row of every page: inside its record, on a field of its own, under a name of its own.
TEST(FieldTable, RowsOfAllPages) {
    using namespace network;
    const Table tables[] = {
        {"kDefaultGateway", kDefaultGateway, sizeof(ZintuWanInfo)},
        {"kWanAddress", kWanAddress, sizeof(ZintuWanInfo)},
        {"kPpp", kPpp, sizeof(ZintuWanInfo)},
        {"kDslLine", kDslLine, sizeof(ZintuDslLineInfo)},
        {"kDslChannel", kDslChannel, sizeof(ZintuDslLineInfo)},
        {"kDslTestParams", kDslTestParams, sizeof(ZintuDslLineInfo)},
        {"kDslTotals", kDslTotals, sizeof(ZintuDslLineInfo)},
        {"kLanAddress", kLanAddress, sizeof(LANv4Info)},
        {"kLanPool", kLanPool, sizeof(LANv4Info)},
        {"kLanEthernet", kLanEthernet, sizeof(LANv4Info)},
        {"kLanIpv6", kLanIpv6, sizeof(LANv6Info)},
        {"kLanPoolV6", kLanPoolV6, sizeof(LANv6Info)},
    };
    for (const Table &table : tables) {
        SCOPED_TRACE(table.name);
        std::set<std::string> names;
        std::set<uint16_t> offsets;
        for (const Field &field : table.fields) {
            EXPECT_TRUE(names.insert(field.name).second) << field.name;
            EXPECT_TRUE(offsets.insert(field.offset).second) << field.name;
            EXPECT_LE(field.offset + field.size, table.recordSize) << field.name;
            EXPECT_EQ(&field, findField(table.fields, field.name));
        }
    }
}

} // namespace
