// SPDX-License-Identifier: MIT
// Memory for nodes of one type.
#pragma once

#include <cstddef>
#include <cstring>
#include <memory>
#include <vector>

namespace bench {

// Hands zeroed nodes out and takes them back; it grows by blocks and never shrinks.
template <class Node>
class Pool {
  public:
    Node *take() {
        if (!free_) {
            grow();
        }
        Slot *slot = free_;
        free_ = slot->next;
        memset(&slot->node, 0, sizeof(Node));
        return &slot->node;
    }

    void giveBack(Node *node) {
        Slot *slot = reinterpret_cast<Slot *>(node);
        slot->next = free_;
        free_ = slot;
    }

  private:
    union Slot {
        Slot *next;
        Node node;
    };

    void grow() {
        constexpr size_t kBlock = 1024;
        blocks_.push_back(std::make_unique<Slot[]>(kBlock));
        for (size_t i = kBlock; i-- > 0;) {
            giveBack(&blocks_.back()[i].node);
        }
    }

    Slot *free_ = nullptr;
    std::vector<std::unique_ptr<Slot[]>> blocks_;
};

} // namespace bench
