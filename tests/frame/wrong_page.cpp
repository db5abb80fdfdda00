// SPDX-License-Identifier: MIT
// A page that compiles, and what does not: wrong_page_test names one mistake at a time.
#include "network/pages.h"

using namespace frame;

struct Small {
    char text[8];
    int32_t number;
    int64_t large;
};

constexpr auto kSmall = page<Small>("Device.X.", Empty::Store,
                                    {
                                        FIELD(Small, text, "Text"),
                                        FIELD_BY(Small, number, "Number", Rule::Number),
#ifdef FOREIGN_ROW
                                        FIELD(LANv4Info, nLeaseTimeSec, "LeaseTime"),
#endif
#ifdef WRONG_RULE
                                        FIELD_BY(Small, number, "Counter", Rule::Text),
#endif
#ifdef TYPE_WITHOUT_RULE
                                        FIELD(Small, large, "Large"),
#endif
#ifdef SHORT_NAME
                                        FIELD(Small, text, "Abc"),
#endif
                                    });

void fillSmall(ObjectNode &object, Small &small) {
    fill(object, kSmall, small);
#ifdef WRONG_RECORD
    fill(object, network::kLanPool, small);
#endif
}
