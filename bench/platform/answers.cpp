// SPDX-License-Identifier: MIT
#include "answers.h"

namespace bench {
namespace {

constexpr std::string_view kGet = "get ";
constexpr std::string_view kEquals = " = ";
constexpr std::string_view kVendor = "...";

constexpr std::string_view kVendorParams = R"(
    X_LANTIQ_COM_Description = ptm0.7
    X_LANTIQ_COM_UciSection = wan_vdsl
    X_LANTIQ_COM_UciType = interface
    X_LANTIQ_COM_UciConfig = network
    X_LANTIQ_COM_Persistent = true
    X_LANTIQ_COM_Owner = operator
    X_LANTIQ_COM_Revision = 14
    X_LANTIQ_COM_LastWriter = cwmp
    X_LANTIQ_COM_LastWrite = 2026-11-15T08:12:05Z
    X_ZINTU_Visible = true
    X_ZINTU_Editable = false
    X_ZINTU_Group = wan
    X_ZINTU_Order = 3
    X_ZINTU_Label = Internet over DSL
    X_ZINTU_Source = provisioning
    X_ZINTU_Provisioned = true
    X_ZINTU_Lock = 0
    X_ZINTU_Checksum = 7c1f09ab
)";

// Takes the next line off a text; without the blanks around it.
std::string_view takeLine(std::string_view &text) {
    std::string_view line = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(line.size() + 1, text.size()));
    const size_t first = line.find_first_not_of(' ');
    return first == std::string_view::npos ? "" : line.substr(first, line.find_last_not_of(' ') - first + 1);
}

// "NAME =" is an empty value: the blank behind it went with the line's end.
size_t findEquals(std::string_view line) {
    return line.ends_with(" =") ? line.size() - 2 : line.find(kEquals);
}

void parseInto(Answers &answers, std::string_view text) {
    while (!text.empty()) {
        const std::string_view line = takeLine(text);
        const size_t equals = findEquals(line);
        if (line.empty()) {
            continue;
        }
        if (line.starts_with(kGet)) {
            answers.push_back({std::string(line.substr(kGet.size())), {}});
        } else if (line == kVendor) {
            parseInto(answers, kVendorParams);
        } else if (equals == std::string_view::npos) {
            answers.back().objects.push_back({std::string(line), {}});
        } else {
            const std::string_view value = line.substr(std::min(equals + kEquals.size(), line.size()));
            answers.back().objects.back().params.push_back({std::string(line.substr(0, equals)), std::string(value)});
        }
    }
}

template <class Item>
std::vector<Item> repeated(const std::vector<Item> &items, int times) {
    std::vector<Item> result;
    for (int i = 0; i < times; ++i) {
        result.insert(result.end(), items.begin(), items.end());
    }
    return result;
}

} // namespace

Answers parseAnswers(std::string_view text) {
    Answers answers;
    parseInto(answers, text);
    return answers;
}

Answers grow(const Answers &answers, Growth growth, int times) {
    Answers result = answers;
    for (Answer &answer : result) {
        if (growth == Growth::Objects) {
            answer.objects = repeated(answer.objects, times);
        }
        for (Object &object : answer.objects) {
            if (growth == Growth::Params) {
                object.params = repeated(object.params, times);
            }
        }
    }
    return result;
}

} // namespace bench
