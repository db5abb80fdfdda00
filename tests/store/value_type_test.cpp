// SPDX-License-Identifier: MIT
#include "value/value_type.h"

#include <gtest/gtest.h>
#include <stdexcept>

using sandbox::ValueType;
using Verdict = ValueType::Verdict;

TEST(ValueType, JudgesValues) {
    const std::string max64 = "18446744073709551615";
    struct Case {
        const char *type;
        Verdict verdict;
        std::vector<std::string> values;
    };
    const Case cases[] = {
        {"string", Verdict::Valid, {"", "any\ntext", "\xff"}},
        {"string(3)", Verdict::Valid, {"", "abc"}},
        {"string(3)", Verdict::OutOfRange, {"abcd"}},
        {"string(1:3)", Verdict::OutOfRange, {""}},
        {"string(5:5,13:13)", Verdict::Valid, {"12345", "1234567890123"}},
        {"string(5:5,13:13)", Verdict::OutOfRange, {"123456"}},
        {"boolean", Verdict::Valid, {"true", "false", "1", "0"}},
        {"boolean", Verdict::WrongType, {"", "True", "yes", "2"}},
        {"int", Verdict::Valid, {"0", "-2147483648", "2147483647", "007"}},
        {"int", Verdict::OutOfRange, {"2147483648", "-2147483649"}},
        {"int", Verdict::WrongType, {"", "-", "1.0", "0x10", " 1", "+1"}},
        {"int(-10:10)", Verdict::Valid, {"-10", "-0", "10"}},
        {"int(-10:10)", Verdict::OutOfRange, {"-11", "11"}},
        {"int(:-5)", Verdict::Valid, {"-5", "-2147483648"}},
        {"int(:-5)", Verdict::OutOfRange, {"-4", "0"}},
        {"unsignedInt", Verdict::OutOfRange, {"-1", "4294967296"}},
        {"unsignedInt(1:13,36:165)", Verdict::Valid, {"1", "13", "36", "165"}},
        {"unsignedInt(1:13,36:165)", Verdict::OutOfRange, {"0", "14", "35", "166"}},
        {"long", Verdict::OutOfRange, {"9223372036854775808"}},
        {"unsignedLong", Verdict::Valid, {max64, "0" + max64}},
        {"unsignedLong", Verdict::OutOfRange, {"18446744073709551616"}},
        {"decimal(-1.5:2)", Verdict::Valid, {"-1.5", "-1.50", "1.999999999999999999999", "2.0"}},
        {"decimal(-1.5:2)", Verdict::OutOfRange, {"-1.51", "2.000000000000000000001"}},
        {"decimal", Verdict::WrongType, {"1.", ".5", "1.-5", "1e3"}},
        {"dateTime", Verdict::Valid, {"0001-01-01T00:00:00Z", "2024-02-29T23:59:60", "2024-01-01T00:00:00.5+09:00"}},
        {"dateTime",
         Verdict::WrongType,
         {"", "2024-13-01T00:00:00Z", "2024-01-01", "2024-01-01T00:00:00.Z", "2024-01-01T00:00:00+9"}},
        {"base64(2)", Verdict::Valid, {"", "TQ==", "TWE="}},
        {"base64(2)", Verdict::OutOfRange, {"TWFu"}},
        {"base64", Verdict::WrongType, {"TQ=", "T===", "T@=="}},
        {"hexBinary(2:2)", Verdict::Valid, {"00fF"}},
        {"hexBinary(2:2)", Verdict::OutOfRange, {"00"}},
        {"hexBinary", Verdict::WrongType, {"0", "0g"}},
        {"IPv4Address", Verdict::Valid, {"", "192.0.2.1"}},
        {"IPv4Address", Verdict::WrongType, {"foo", "192.0.2", "192.0.2.256", "::1", "192.0.2.1/24"}},
        {"IPv6Address", Verdict::Valid, {"", "2001:db8::1", "2001:db8::1/64", "::/0"}},
        {"IPv6Address", Verdict::WrongType, {"192.0.2.1", "::1/129", "::1/-1", "::1/", "/64", "fe80::1::2"}},
        {"list IPAddress", Verdict::Valid, {"", "192.0.2.1, ::1"}},
        {"list IPAddress", Verdict::WrongType, {"192.0.2.1,notanip", "::1/64"}},
        {"enum(Up|\"No Signal\"|\"a|b)\")", Verdict::Valid, {"Up", "No Signal", "a|b)"}},
        {"enum(Up|\"No Signal\"|\"a|b)\")", Verdict::OutOfRange, {"", "up", "No"}},
        {"list enum(a|b)", Verdict::Valid, {"", "a", "a,b", "a, b"}},
        {"list enum(a|b)", Verdict::OutOfRange, {"a,c", "a,,b"}},
        {"list unsignedInt(1:9)", Verdict::WrongType, {"1,x"}},
    };
    for (const Case &row : cases) {
        const ValueType type = ValueType::parse(row.type);
        EXPECT_EQ(type.text(), row.type);
        for (std::string value : row.values) {
            EXPECT_EQ(type.check(value), row.verdict) << row.type << " <- " << value;
        }
    }
}

TEST(ValueType, StoresFlagsAsWords) {
    for (const auto &[given, kept] : {std::pair("1", "true"), {"true", "true"}, {"0", "false"}, {"false", "false"}}) {
        std::string value = given;
        ValueType::parse("boolean").check(value);
        EXPECT_EQ(value, kept);
    }
}

TEST(ValueType, RefusesWhatIsNoType) {
    for (const char *text : {"", "text", "int(", "int(a:b)", "int(5:1)", "int(:)", "boolean(1:2)", "enum", "enum(\"a)",
                             "enum(\"a\"b)", "list", "list list int", "string(1:2"}) {
        EXPECT_THROW(ValueType::parse(text), std::invalid_argument) << text;
    }
}
