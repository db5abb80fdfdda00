// SPDX-License-Identifier: MIT
// Converters and validators, on any text.
#include "fuzz.h"

namespace {

using Converter = const char *(*)(const char *, int);
constexpr Converter kConverters[] = {
    OperatingStandards_ConvStr,    BandWidth_ConvStr,  ExtensionChannel_ConvStr, ShortGuardInterval_ConvStr,
    VhtShortGuardInterval_ConvStr, WMMOption_ConvStr,  Dot11nProtect_ConvStr,    TransmitPower_ConvStr,
    AutoChannelEnable_ConvStr,     ChannelList_ConvStr};

void checkEscapes(const std::string &text) {
    std::vector<char> escaped(4 * text.size() + 1);
    fuzz::Text source(text);
    ConvSpecialChar_forUciCli(source.get(), escaped.data());
    fuzz::require(strlen(escaped.data()) >= text.size(), "an escaped text lost something");

    std::vector<char> digits(2 * text.size() + 1);
    std::vector<char> back(text.size() + 1);
    ConvCharStrToHexDec(text.data(), static_cast<int>(text.size()), digits.data());
    ConvHexDecToCharStr(digits.data(), back.data());
    fuzz::require(text == back.data(), "digits do not read back");
    std::vector<char> any(text.size() / 2 + 1);
    ConvHexDecToCharStr(source.get(), any.data());
}

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    fuzz::Bytes bytes(data, size);
    fuzz::startOver();
    const int direction = bytes.byte() % 3;
    const std::string first = bytes.text(300);
    fuzz::Text text(first);
    fuzz::Text other(bytes.text());
    for (const Converter convert : kConverters) {
        fuzz::require(convert(text.get(), direction) != nullptr, "no text");
    }
    FapiToUi_Str(text.get(), WireLessMode_FapiToUi_Table, 12);
    UiToFapi_Str(text.get(), SecurityType_FapiToUi_Table, 8);
    DevToPhy_Str(text.get(), Interface_DevToPhy_Table, 4);
    GetSideChannel(ConvFreqChannel(ConvInt(text.get())), other.get(), "x");
    ConvStrToBool(text.get());
    ConvMacACLModeToUI(text.get());
    fuzz::require(my_strnicmp(text.get(), text.get(), static_cast<int>(first.size())) == (first.empty() ? -1 : 0),
                  "a text differs from itself");
    my_strnicmp(text.get(), other.get(), static_cast<int>(first.size()));
    const bool colons = zintu_isValidMacAddress(text.get()) == 0;
    fuzz::require(!colons || isValidMacAddress(text.get()) == 1, "the two address checks disagree");
    zintu_isValidIPv4Address(text.get());
    IPConvertTouint(text.get());
    validationCheck_IPv6Addr(text.get());
    atob(text.get());
    checkEscapes(first);
    return 0;
}
