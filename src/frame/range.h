// SPDX-License-Identifier: MIT
// The rings of a message as ranges: for (ObjectNode &object : objects(message)), for (ParamNode &param :
// params(object)).
#pragma once

#include "caltofal.h"

namespace frame {

// The nodes linked into a ring after its head. A node is found from its link by the offset of that link in it.
template <class Node>
class Ring {
  public:
    class Iterator {
      public:
        explicit Iterator(ListLink *link) : link_(link) {}
        Node &operator*() const {
            return *reinterpret_cast<Node *>(reinterpret_cast<char *>(link_) - offsetof(Node, link));
        }
        Iterator &operator++() {
            link_ = link_->next;
            return *this;
        }
        bool operator!=(const Iterator &other) const { return link_ != other.link_; }

      private:
        ListLink *link_;
    };

    // A null head, and a head that was never linked, are an empty ring.
    explicit Ring(ListLink *head) : head_(head && head->next ? head : nullptr) {}
    [[nodiscard]] Iterator begin() const { return Iterator(head_ ? head_->next : nullptr); }
    [[nodiscard]] Iterator end() const { return Iterator(head_); }

  private:
    ListLink *head_;
};

// The value objects of a message or of its object list, in order.
inline Ring<ObjectNode> objects(ObjectNode *listHead) {
    return Ring<ObjectNode>(listHead ? &listHead->link : nullptr);
}
inline Ring<ObjectNode> objects(const MsgHeader &message) {
    return objects(message.objectList);
}

// The parameters of a value object, in order.
inline Ring<ParamNode> params(ObjectNode &object) {
    return Ring<ParamNode>(&object.params);
}

} // namespace frame
