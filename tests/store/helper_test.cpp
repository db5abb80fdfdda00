// SPDX-License-Identifier: MIT
//
// libhelper.so; the address sanitizer sees what is not released.
#include "helper/node_words.h"
#include "sandbox_fixture.h"

#include <cstring>

using namespace sandbox;

TEST(Helper, AppendsAndCutsTexts) {
    Message message(CALTOFAL_OPER_SET, SOPT_OBJVALUE);
    message.object("Device.A.", kSet).param("First", "1").param("Second", nullptr).object("Device.B.", kDelete);
    EXPECT_EQ(message.lines(), (Lines{"Device.A..First=1", "Device.A..Second=", "Device.B."}));

    const std::string longText(3000, 'x');
    ObjectNode *object = help_addObjList(message.header.objectList, longText.c_str(), 11, 12, 13, 14);
    ParamNode *param = help_addParamList(object, longText.c_str(), 15, longText.c_str(), 16);
    EXPECT_EQ(strlen(object->name), sizeof(object->name) - 1);
    EXPECT_EQ(strlen(param->value), sizeof(param->value) - 1);
    const auto objectWords = readWords<ObjectWords>(*object);
    EXPECT_EQ(objectWords.objectId, 11U);
    EXPECT_EQ(objectWords.instance, 12U);
    EXPECT_EQ(objectWords.subOper, 13U);
    EXPECT_EQ(objectWords.cut, kCutName);
    EXPECT_EQ(readWords<ParamWords>(*param).cut, kCutName | kCutValue);
}

TEST(Helper, ReleasesEveryKindOfList) {
    const auto head = [](size_t size) { return static_cast<ObjectNode *>(help_calloc(1, size, "test", 0)); };
    MsgHeader attributes{};
    attributes.listFlags = SOPT_OBJATTR;
    attributes.objectList = head(sizeof(AttrObjectNode)); // zeroed and never linked: an empty list
    auto *object = static_cast<ObjectNode *>(help_addObjAttrList(attributes.objectList, "Device.A.", 1, 2));
    EXPECT_NE(help_addParamAttrList(object, "Name", 1, 2, 3, 4, 5, 6, 7, 8, 9), nullptr);
    EXPECT_NE(help_addParamAttrList(object, nullptr, 1, 2, 3, 4, 5, 6, 7, 8, 9), nullptr);
    EXPECT_EQ(help_delMsg(&attributes, 1), 0);
    EXPECT_EQ(attributes.objectList, nullptr);
    EXPECT_EQ(help_delMsg(&attributes, 1), 0);

    MsgHeader access{};
    access.listFlags = SOPT_OBJACSATTR;
    access.objectList = head(sizeof(AcsAttrObjectNode));
    EXPECT_EQ(help_delMsg(&access, 1), 0);
    EXPECT_EQ(access.objectList, nullptr);
}

TEST(Helper, AddsNothingToNothing) {
    EXPECT_EQ(help_addObjList(nullptr, "Device.", 0, 0, 0, 0), nullptr);
    EXPECT_EQ(help_addObjAttrList(nullptr, "Device.", 0, 0), nullptr);
    EXPECT_EQ(help_addParamList(nullptr, "A", 0, "1", 0), nullptr);
    EXPECT_EQ(help_addParamAttrList(nullptr, "A", 0, 0, 0, 0, 0, 0, 0, 0, 0), nullptr);
    EXPECT_NE(help_delMsg(nullptr, 1), 0);
}
