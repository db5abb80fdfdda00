// SPDX-License-Identifier: MIT
// How values and words are read.
#include "help/similar.h"
#include "pages/page.h"
#include "pages/text.h"

#include <gtest/gtest.h>

using namespace pages;

namespace {

TEST(Text, ValuesHaveTheTypeThatTheyLookLike) {
    const struct {
        const char *parameter, *value;
        Value typed;
    } cases[] = {
        {"Channel", "6", 6},
        {"Channel", "-6", -6},
        {"Channel", "06", "06"},
        {"Channel", "+6", "+6"},
        {"Channel", "", ""},
        {"Channel", "6 ", "6 "},
        {"BytesSent", "18446744073709551615", uint64_t{18446744073709551615U}},
        {"BytesSent", "18446744073709551616", "18446744073709551616"},
        {"Enable", "true", true},
        {"Enable", "TRUE", "TRUE"},
        {"SSID", "12", "12"},
        {"KeyPassphrase", "12345678", "12345678"},
        {"HostName", "true", "true"},
    };
    for (const auto &row : cases) {
        const Value value = typed(row.parameter, row.value);
        EXPECT_EQ(value, row.typed) << row.parameter << " " << row.value;
        EXPECT_EQ(value.isText(), row.typed.isText()) << row.parameter << " " << row.value;
    }
}

TEST(Text, AnotherSpellingIsWrittenAsTheLayerDoes) {
    const struct {
        Value now;
        const char *given, *written;
    } cases[] = {
        {true, "1", "true"}, {true, "FALSE", "false"}, {true, "maybe", "maybe"},
        {6, "+007", "7"},    {6, "000", "0"},          {6, "-7", "-7"},
        {6, "+", "+"},       {6, "7x", "7x"},          {6, "", ""},
        {"a", "007", "007"}, {"6x", "TRUE", "TRUE"},
    };
    for (const auto &row : cases) {
        EXPECT_EQ(spelledLike(row.now, row.given), row.written);
    }
}

TEST(Text, OnlyTheWordsOfFlagsAreFlags) {
    const struct {
        const char *text;
        Value flag;
    } cases[] = {
        {"true", true},   {"True", true}, {"1", true},   {"FALSE", false},   {"0", false},
        {"yes", Value()}, {"2", Value()}, {"", Value()}, {"true ", Value()}, {"enabled", Value()},
    };
    for (const auto &row : cases) {
        EXPECT_EQ(flagOf(row.text), row.flag) << row.text;
    }
}

TEST(Text, CharactersEndWhereUtf8SaysSo) {
    const struct {
        std::string_view text;
        size_t length;
    } cases[] = {
        {"a", 1},
        {"", 0},
        {"\x80", 0},
        {"\xc1\x80", 0},
        {"\xc2\x80", 2},
        {"\xc3", 0},
        {"\xe0\x9f\x80", 0},
        {"\xed\xa0\x80", 0},
        {"\xef\xbf\xbf", 3},
        {"\xf4\x8f\xbf\xbf", 4},
        {"\xf4\x90\x80\x80", 0},
        {"\xf0\x9f\x92", 0},
    };
    for (const auto &row : cases) {
        EXPECT_EQ(utf8Length(row.text), row.length) << hexOf(row.text);
    }
}

TEST(Text, AttenuationsMayBeInTenthsOrInDecibels) {
    EXPECT_EQ(decibels("123,45.5,0"), decibels("12.3,45.5,0.0"));
    EXPECT_EQ(decibels("123,45.5").items()[0], 12.3);
    EXPECT_EQ(decibels("12,x"), "12,x");
    EXPECT_EQ(decibels("12;13"), "12;13");
}

TEST(Text, WhatWasMeant) {
    const std::vector<std::string> known = {"host", "hosts", "status", "Channel", "ChannelsInUse", "ip"};
    const struct {
        const char *word, *meant;
    } cases[] = {
        {"hots", " (did you mean host or hosts?)"},
        {"Chanel", " (did you mean Channel?)"},
        {"Chan", " (did you mean Channel or ChannelsInUse?)"},
        {"frobnicate", ""},
        {"", ""},
        {"STATUS", " (did you mean status?)"},
        {"xy", ""},
    };
    for (const auto &row : cases) {
        EXPECT_EQ(help::didYouMean(row.word, known), row.meant) << row.word;
    }
}

} // namespace
