// SPDX-License-Identifier: MIT
// Answers of the configuration layer into every function that asks it: objects and parameters out of the words that
// the pages look for, or of any bytes.
#include "getters.h"

#include "fuzz.h"

namespace {

std::string anyText(fuzz::Bytes &bytes, const std::vector<std::string> &words, size_t room) {
    const uint8_t choice = bytes.byte();
    if (choice < words.size()) {
        return words[choice];
    }
    std::string text = bytes.text(40);
    return choice == 255 ? std::string(room - 1, text.empty() ? 'x' : text.front()) : text;
}

// Objects of the answer that reaches every parameter, with some of their own parameters or strange ones.
test::Reply answer(fuzz::Bytes &bytes) {
    static const std::vector<test::Object> &known = test::richAnswer().objects;
    test::Reply reply{static_cast<int8_t>(bytes.byte() < 240 ? 0 : bytes.byte())};
    for (int count = bytes.byte() % 5; count > 0; --count) {
        const uint8_t choice = bytes.byte();
        const test::Object &like = known[choice % known.size()];
        test::Object object = {choice < 240 ? like.name : anyText(bytes, {""}, 256), {}};
        for (int params = bytes.byte() % 8; params > 0; --params) {
            const uint8_t row = bytes.byte();
            test::Param param =
                row < 240 ? like.params[row % like.params.size()] : test::Param{anyText(bytes, {}, 256), ""};
            if (row >= 240 || bytes.byte() % 2 == 0) {
                param.value = anyText(bytes, {"", "1", "true", "Device.IP.Interface.3", "fe80::1"}, PARAM_VALUE_SIZE);
            }
            object.params.push_back(param);
        }
        reply.objects.push_back(object);
    }
    return reply;
}

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    fuzz::Bytes bytes(data, size);
    fuzz::startOver();
    const auto &getters = test::getters();
    const test::Getter &getter = getters[bytes.byte() % getters.size()];
    test::platform().otherwiseAsk([&] { return answer(bytes); });
    test::shell().onPopen = [&](const std::string &) { return bytes.text(200); };
    getter.run();
    fuzz::require(getter.leftMessages > 0 ? test::platform().heads() <= getter.leftMessages
                                          : test::platform().nodes() == 0,
                  "a message was left unreleased");
    return 0;
}
