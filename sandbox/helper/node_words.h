// SPDX-License-Identifier: MIT
//
// How the stand-in platform libraries use the `platform` words of a node. Nobody else reads them.
#pragma once

#include "caltofal.h"

#include <cstdint>
#include <cstring>

namespace sandbox {

// Bits of the `cut` words: which text did not fit its field.
constexpr uint32_t kCutName = 1;
constexpr uint32_t kCutValue = 2;

// In ObjectNode::platform, from its first byte on.
struct ObjectWords {
    uint32_t objectId;
    uint32_t instance;
    uint32_t subOper; // CaltofalSubOperation; 0 on a get
    uint32_t flags;
    uint32_t cut;
};

// In ParamNode::platform.
struct ParamWords {
    uint32_t paramId;
    uint32_t flags;
    uint32_t valued; // not 0: the parameter was added with a value, also with an empty one
    uint32_t cut;
};

static_assert(sizeof(ObjectWords) <= sizeof(ObjectNode::platform));
static_assert(sizeof(ParamWords) == sizeof(ParamNode::platform));

template <class Words, class Node>
Words readWords(const Node &node) {
    Words words;
    memcpy(&words, node.platform, sizeof(words));
    return words;
}

template <class Words, class Node>
void writeWords(Node &node, const Words &words) {
    memcpy(node.platform, &words, sizeof(words));
}

} // namespace sandbox
