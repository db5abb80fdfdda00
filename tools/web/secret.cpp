// SPDX-License-Identifier: MIT
#include "secret.h"

#include "pages/checked.h"
#include "pages/text.h"
#include "pages/wifi/settings.h"

#include <algorithm>
#include <array>

namespace web {

pages::Value secretOf(const Call &call) {
    constexpr std::array<std::string_view, 3> kSecrets = {"KeyPassphrase", "WEPKey", "RadiusSecret"};
    const int ssid = pages::checkedInstance(call.argument, "SSID");
    pages::Value result = pages::Value::object();
    const pages::wifi::Settings settings = pages::wifi::snapshot(pages::wifi::Subject::Ssid, ssid);
    for (const WifiParamRow &row : pages::wifi::rows(*settings)) {
        const std::string name = pages::text(row.parameter);
        if (std::find(kSecrets.begin(), kSecrets.end(), name) != kSecrets.end()) {
            result[name] = pages::text(row.value);
        }
    }
    return result;
}

} // namespace web
