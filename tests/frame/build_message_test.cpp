// SPDX-License-Identifier: MIT
#include "libhelper.h"
#include "platform.h"

using namespace test;

namespace {

using BuildMessage = LibraryTest;

// A created message. Its header is a node too: the platform releases it as if it were a list head.
class Created {
  public:
    Created(uint32_t mainOper, uint32_t listFlags) : header(faltocal_createMessage(mainOper, listFlags)) {}
    ~Created() {
        faltocal_finalize(header);
        MsgHeader asHead = {0, SOPT_OBJACSATTR, 0, 0, 0, reinterpret_cast<ObjectNode *>(header)};
        help_delMsg(&asHead, 1);
    }
    Created(const Created &) = delete;
    Created &operator=(const Created &) = delete;

    MsgHeader *const header;
};

TEST_F(BuildMessage, HeadIsOfTheKindThatTheFlagsChoose) {
    struct Row {
        uint32_t flags;
        size_t linkOffset; // 0: no list
    };
    const Row rows[] = {
        {4, offsetof(ObjectNode, link)},
        {0x1004, offsetof(ObjectNode, link)},
        {0x40, offsetof(ObjectNode, link)},
        {0x100, offsetof(ObjectNode, link)},
        {8, offsetof(AttrObjectNode, link)},
        {8 | 4, offsetof(ObjectNode, link)},
        {16, offsetof(AcsAttrObjectNode, link)},
        {16 | 8, offsetof(AttrObjectNode, link)},
        {0, 0},
        {0x1000, 0},
    };
    for (const Row &row : rows) {
        const Created message(1, row.flags);
        const MsgHeader &header = *message.header;
        EXPECT_EQ(1U, header.mainOper);
        EXPECT_EQ(row.flags, header.listFlags);
        EXPECT_EQ(2U, header.owner);
        EXPECT_EQ(1U, header.initialised);
        ASSERT_EQ(row.linkOffset != 0, header.objectList != nullptr) << row.flags;
        if (header.objectList) {
            auto *link = reinterpret_cast<ListLink *>(reinterpret_cast<char *>(header.objectList) + row.linkOffset);
            EXPECT_EQ(link, link->next);
            EXPECT_EQ(link, link->prev);
        }
    }
    const std::string refused = "3 faltocal{HELP_CREATE_OBJ, 135}: Pass Proper Objlist Flag (i.e SOPT_OBJVALUE, "
                                "SOPT_OBJATTR, SOPT_OBJACSATTR\n";
    EXPECT_EQ((std::vector<std::string>{refused, refused}), takeSyslog());
}

TEST_F(BuildMessage, FailedHeadAllocationIsLoggedWithItsLine) {
    const std::pair<uint32_t, int> rows[] = {{4, 102}, {8, 114}, {16, 127}};
    for (const auto &[flags, line] : rows) {
        platform().failAllocation(2);
        const Created message(1, flags);
        EXPECT_EQ(nullptr, message.header->objectList);
        EXPECT_EQ(std::vector{"2 faltocal{HELP_CREATE_OBJ, " + std::to_string(line) + "}: malloc failed\n"},
                  takeSyslog());
    }
    platform().failAllocation(1);
    EXPECT_EQ(nullptr, faltocal_createMessage(1, 4));
}

TEST_F(BuildMessage, FillObjectByOperation) {
    ObjectNode untouched;
    struct Row {
        uint32_t mainOper, subOper, flags;
        int result;
        char node; // 'a'dded, 'n'ull, 'u'ntouched
    };
    const Row rows[] = {
        {1, 8, 4, 0, 'a'},   {1, 8, 0x1100, 0, 'a'}, {1, 8, 0, -1, 'n'},  {1, 8, 16, -1, 'n'}, {2, 1, 4, 0, 'a'},
        {2, 2, 4, 0, 'a'},   {2, 4, 4, 0, 'a'},      {2, 8, 4, -1, 'u'},  {2, 16, 4, -1, 'u'}, {2, 0, 4, -1, 'u'},
        {32, 16, 4, 0, 'u'}, {128, 4, 4, 0, 'u'},    {256, 8, 4, 0, 'u'},
    };
    for (const Row &row : rows) {
        const Created message(1, 4);
        const size_t before = platform().nodes();
        ObjectNode *node = &untouched;
        EXPECT_EQ(row.result, faltocal_FillObject(&node, message.header->objectList, "Device.X.", row.mainOper,
                                                  row.subOper, row.flags));
        EXPECT_EQ(row.node == 'u', node == &untouched) << row.mainOper << ' ' << row.subOper;
        EXPECT_EQ(row.node == 'n', node == nullptr);
        EXPECT_EQ(before + (row.node == 'a' ? 1U : 0U), platform().nodes());
    }
    EXPECT_EQ(std::vector<std::string>(2, "3 faltocal{HELP_OBJECT_GET, 241}:Error in Objlist Construction, Pass proper "
                                          "flag(i.e SOPT_OBJVALUE, SOPT_OBJATTR\n"),
              takeSyslog());
}

TEST_F(BuildMessage, AttributeGetAddsAttributeNodes) {
    const Created message(1, 8);
    ObjectNode *node = nullptr;
    ASSERT_EQ(0, faltocal_FillObject(&node, message.header->objectList, "Device.X.", 1, 8, 8));
    EXPECT_STREQ("Device.X.", node->name);
    auto *head = reinterpret_cast<AttrObjectNode *>(message.header->objectList);
    EXPECT_EQ(&reinterpret_cast<AttrObjectNode *>(node)->link, head->link.next);
}

TEST_F(BuildMessage, ParametersAndFilters) {
    const Created message(2, 4);
    ObjectNode *node = nullptr;
    ASSERT_EQ(0, faltocal_FillObject(&node, message.header->objectList, "Device.X.", 2, 4, 4));
    EXPECT_EQ(0, faltocal_FillParam(&node, 2, "Set", 0, "v"));
    EXPECT_EQ(0, faltocal_FillParam(&node, 1, "Asked", 0, "ignored"));
    EXPECT_EQ(0, faltocal_FillParam(&node, 128, "Dropped", 0, "v"));
    EXPECT_EQ(0, faltocal_FillParam(&node, 1, nullptr, 7, nullptr));
    EXPECT_EQ(-1, faltocal_FillParam(&node, 1, nullptr, 0, nullptr));
    EXPECT_EQ(0, faltocal_AddFilter(&node, "Alias", "wan"));
    EXPECT_EQ(-1, faltocal_AddFilter(&node, nullptr, "wan"));
    platform().otherwise({});
    EXPECT_EQ(0, faltocal_sendQuery(message.header));
    EXPECT_EQ(std::vector<std::string>{"setValue 2/0x4/2 Device.X.(Set=v,Asked,,Alias=wan)"}, platform().callTexts());
    EXPECT_EQ((std::vector<std::string>{
                  "3 faltocal{faltocal_FillParam, 120}:Either of Parameter Name or Param ID is mandatory\n",
                  "3 faltocal{faltocal_AddFilter, 139}:Either of Parameter Name  is mandatory\n"}),
              takeSyslog());
}

} // namespace
