// SPDX-License-Identifier: MIT

#include "caltofal.h"
#include "pages/layer/lacking.h"
#include "pages/network/pages.h"

namespace pages {
namespace {

Value dslModes(Lacking &lacking) {
    int32_t flags[10] = {};
    lacking.ask([&] { return ZintuGet_DslMode(flags); }, {"no DSL modes"});
    Value names = lacking.has("Device.DSL.X_LANTIQ_COM_Config") ? Value() : Value::list();
    for (size_t i = 0; i < std::size(flags); ++i) {
        if (flags[i] != 0) {
            names.push(DEF_DSL_MODE[i]);
        }
    }
    return names;
}

std::vector<Field> direction(int32_t rate, int32_t most, int32_t noise, const std::string &attenuation) {
    return {
        {"rate_kbit_s", "Rate", number(rate), "kbit/s"},
        {"max_rate_kbit_s", "Attainable rate", number(most), "kbit/s"},
        {"noise_margin_db", "Noise margin", tenths(noise), "dB"},
        {"attenuation_db", "Attenuation per band", decibels(attenuation), "dB"},
    };
}

} // namespace

Page dsl() {
    ZintuDslLineInfo line{};
    untouch(line.nUpstreamCurrRate, line.nDownstreamCurrRate, line.nUpstreamMaxBitRate, line.nDownstreamMaxBitRate,
            line.nUpstreamNoiseMargin, line.nDownstreamNoiseMargin, line.nXTURCRCErrors, line.nXTUCCRCErrors);
    Lacking lacking;
    lacking.ask([&] { return ZintuGet_LineInfo(&line); }, {"no DSL line"});
    Page page{{
        {"",
         "",
         {
             {"status", "Status", text(line.sStatus)},
             {"profile", "Profile", text(line.sCurrentProfile)},
             {"modes", "Modes enabled", dslModes(lacking)},
         }},
        {"downstream", "Downstream",
         direction(line.nDownstreamCurrRate, line.nDownstreamMaxBitRate, line.nDownstreamNoiseMargin,
                   text(line.sLATNds))},
        {"upstream", "Upstream",
         direction(line.nUpstreamCurrRate, line.nUpstreamMaxBitRate, line.nUpstreamNoiseMargin, text(line.sLATNus))},
        {"crc_errors",
         "CRC errors",
         {
             {"modem", "Seen by the modem", number(line.nXTURCRCErrors)},
             {"exchange", "Seen by the exchange", number(line.nXTUCCRCErrors)},
         }},
    }};
    lacking.tell(page.notes);
    return page;
}

} // namespace pages
