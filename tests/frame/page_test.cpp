// SPDX-License-Identifier: MIT
#include "frame/page.h"
#include "network/pages.h"
#include "platform.h"

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

constexpr auto kPage = page<Record>("Device.X.", Empty::Store,
                                    {
                                        FIELD(Record, text, "Text"),
                                        FIELD_BY(Record, padded, "Padded", Rule::Padded),
                                        FIELD_BY(Record, whole, "Whole", Rule::Whole),
                                        FIELD_BY(Record, overrunning, "Overrunning", Rule::Overrunning),
                                        FIELD(Record, number, "Number"),
                                        FIELD(Record, flag, "Flag"),
                                        FIELD_BY(Record, last, "Last", Rule::Overrunning),
                                    });

struct RuleRow {
    const char *name, *value;
    size_t offset;
    std::string bytes; // what the field and what lies behind it become; '#' is untouched
};

TEST(Pages, Rules) {
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
        if (const Field *field = findField(kPage.head, row.name)) {
            storeField(*field, row.value, &record, sizeof(record));
        }
        const size_t length = std::min(row.bytes.size(), sizeof(record) - row.offset);
        EXPECT_EQ(row.bytes.substr(0, length), std::string(reinterpret_cast<char *>(&record) + row.offset, length))
            << row.name << ' ' << row.value;
    }
    for (const auto &[value, number] : {std::pair{"-12", -12}, {"7x", 7}, {"x", 0}, {"", 0}}) {
        Record record = {};
        storeField(*findField(kPage.head, "Number"), value, &record, sizeof(record));
        EXPECT_EQ(number, record.number);
    }
}

// Every row of every page: inside its record, on a field of its own, under a name of its own.
TEST(Pages, RowsOfAllPages) {
    for (const PageHead *page : network::kPages) {
        SCOPED_TRACE(page->object());
        std::set<std::string> names;
        std::set<uint16_t> offsets;
        for (const Field &field : page->fields()) {
            EXPECT_TRUE(names.insert(field.name).second) << field.name;
            EXPECT_TRUE(offsets.insert(field.offset).second) << field.name;
            EXPECT_LE(field.offset + field.size, page->recordSize) << field.name;
            EXPECT_EQ(&field, findField(*page, field.name));
        }
        EXPECT_FALSE(names.empty());
    }
    EXPECT_STREQ("Device.DSL.Line.1.", network::kDslLine.head.object());
}

} // namespace
