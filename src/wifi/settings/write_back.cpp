// SPDX-License-Identifier: MIT
// Sending a table of changes: one set per object, all in one message.
#include "frame/lookup.h"
#include "frame/text.h"
#include "wifi/settings/param_table.h"
#include "wifi/wifi_trace.h"

#include <cstdio>
#include <cstdlib>
#include <memory>

using namespace frame;
using namespace wifi;

namespace {

constexpr char kFunction[] = "faltocal_fromDB";
constexpr size_t kTextSize = 127; // texts are cut to 126 characters

using Slot = char[256];

struct Free {
    void operator()(void *memory) const { free(memory); }
};

struct Pair {
    Slot parameter;
    Slot value;
};

// What changes in one object.
struct Pairs {
    Pair pairs[kTableRows];
};
static_assert(sizeof(Pairs) == 51200); // 200 slots

// Distinct object paths in order of first appearance.
struct Objects {
    Slot slots[kTableRows];
};
static_assert(sizeof(Objects) == 25600); // 100 slots

template <class Scratch>
using Allocated = std::unique_ptr<Scratch, Free>;

template <class Scratch>
Allocated<Scratch> allocate() {
    return Allocated<Scratch>(static_cast<Scratch *>(malloc(sizeof(Scratch))));
}

bool contains(const Objects &found, int count, const char *object) {
    for (int i = 0; i < count; ++i) {
        if (sameName(found.slots[i], object)) {
            return true;
        }
    }
    return false;
}

// The number of distinct objects.
int collectObjects(const WifiParamTable &changes, Objects &found) {
    int count = 0;
    for (const WifiParamRow &row : rows(changes)) {
        if (contains(found, count, row.object)) {
            continue;
        }
        copyText(found.slots[count], kTextSize, row.object);
        PRINT_TO_CONSOLE("\n\n  %s:%d ==> change object %d:%s\n\n", kFunction, __LINE__, count, found.slots[count]);
        ++count;
    }
    return count;
}

// The number of pairs that change an object.
int collectPairs(const WifiParamTable &changes, const char *object, Pairs &found) {
    int count = 0;
    for (const WifiParamRow &row : rows(changes)) {
        if (!sameName(row.object, object)) {
            continue;
        }
        Pair &pair = found.pairs[count];
        copyText(pair.parameter, kTextSize, row.parameter);
        copyText(pair.value, kTextSize, row.value);
        PRINT_TO_CONSOLE("\n\n  %s:%d ==> <%d> %s.%s=>%s\n\n", kFunction, __LINE__, count, object, pair.parameter,
                         pair.value);
        ++count;
    }
    return count;
}

int sendObject(MsgHeader *header, const char *object, bool last, const char *mainOper, int count, const Pairs &found) {
    char path[128];
    snprintf(path, sizeof(path), "%s%s", object, last ? "" : "&");
    const char *texts[2 * kTableRows];
    const char **next = texts;
    for (int i = 0; i < count; ++i) {
        *next++ = found.pairs[i].parameter;
        *next++ = found.pairs[i].value;
    }
    return faltocal_send_main_multi_obj_No_variable(header, path, mainOper, "set", count, texts);
}

} // namespace

int faltocal_fromDB(MsgHeader *header, WifiParamTable *changes, int moreFollows, int onlyDb) {
    if (!header || !changes) {
        return -1;
    }
    const auto pairs = allocate<Pairs>();
    if (!pairs) {
        return -1;
    }
    const auto found = allocate<Objects>();
    if (!found) {
        return -1;
    }
    const int objectCount = collectObjects(*changes, *found);
    int result = 0;
    for (int i = 0; i < objectCount && result != -1; ++i) {
        const char *object = found->slots[i];
        const bool last = i == objectCount - 1 && moreFollows == 0;
        const int count = collectPairs(*changes, object, *pairs);
        result = sendObject(header, object, last, onlyDb != 0 ? "set_only_db" : "set", count, *pairs);
        if (result == -1) {
            traceFailedRequest();
        }
    }
    return result;
}
