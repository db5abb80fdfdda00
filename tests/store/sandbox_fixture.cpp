// SPDX-License-Identifier: MIT
#include "sandbox_fixture.h"

#include "exchange/gateway.h"
#include "exchange/gateway_export.h"
#include "exchange/gateway_file.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

Message::Message(uint32_t mainOper, uint32_t listFlags) {
    header.mainOper = mainOper;
    header.listFlags = listFlags;
    header.owner = CALTOFAL_OWNER_HOST;
    header.initialised = 1;
    header.objectList = static_cast<ObjectNode *>(help_calloc(1, sizeof(ObjectNode), "test", 0));
    ListLink &link = header.objectList->link;
    link.next = link.prev = &link;
}

Message::~Message() {
    help_delMsg(&header, 1);
}

std::unique_ptr<Message> Message::get(uint32_t listFlags, const std::string &path, const Lines &names) {
    auto message = std::make_unique<Message>(CALTOFAL_OPER_GET, listFlags);
    message->object(path);
    for (const std::string &name : names) {
        message->param(name, nullptr);
    }
    return message;
}

std::unique_ptr<Message> Message::filter(const std::string &path, const Pairs &filters) {
    auto message = std::make_unique<Message>(CALTOFAL_OPER_GET, kFilterGet);
    message->with(path, 0, filters);
    return message;
}

std::unique_ptr<Message> Message::set() {
    return std::make_unique<Message>(CALTOFAL_OPER_SET, SOPT_OBJVALUE);
}

Message &Message::object(const std::string &path, uint32_t subOper) {
    object_ = help_addObjList(header.objectList, path.c_str(), 0, 0, subOper, 0);
    return *this;
}

Message &Message::param(const std::string &name, const char *value) {
    help_addParamList(object_, name.c_str(), 0, value, 0);
    return *this;
}

Message &Message::with(const std::string &path, uint32_t subOper, const Pairs &values) {
    object(path, subOper);
    for (const auto &[name, value] : values) {
        param(name, value.c_str());
    }
    return *this;
}

Lines Message::lines() const {
    Lines lines;
    for (ObjectNode *object = nullptr; (object = caltofal_nextObject(&header, object)) != nullptr;) {
        ParamNode *param = nullptr;
        if (!caltofal_nextParam(object, param)) {
            lines.emplace_back(object->name);
        }
        while ((param = caltofal_nextParam(object, param)) != nullptr) {
            lines.push_back(std::string(object->name) + "." + param->name + "=" + param->value);
        }
    }
    return lines;
}

int setOne(const std::string &path, const Pairs &values) {
    return cal_setValue(&Message::set()->with(path, kSet, values).header);
}

std::string valueOf(const std::string &path, const std::string &name) {
    const auto message = Message::get(kLeafGet, path, {name});
    const int code = cal_getValue(&message->header);
    const ObjectNode *object = code == 0 ? caltofal_nextObject(&message->header, nullptr) : nullptr;
    return object ? caltofal_nextParam(object, nullptr)->value : "?" + std::to_string(code);
}

void SandboxTest::SetUp() {
    std::string pattern = (std::filesystem::temp_directory_path() / "caltofal-store-XXXXXX").string();
    ASSERT_NE(mkdtemp(pattern.data()), nullptr);
    directory = pattern;
    setenv("CALTOFAL_SANDBOX_DIR", directory.c_str(), 1);
    setenv("CALTOFAL_GATEWAY", "lab", 1);
    const std::string text = readFile(LAB_FILE);
    ASSERT_TRUE(sandbox::createGateway(location(), sandbox::readGatewayFile(text, "lab.tr181"), "lab.tr181"));
}

void SandboxTest::TearDown() {
    std::filesystem::remove_all(directory);
}

Lines SandboxTest::exported(const std::string &name) {
    Lines lines;
    const auto database = sandbox::openGateway(location(name));
    for (const sandbox::Entry &entry : sandbox::exportEntries(*database, "", sandbox::View::Both)) {
        lines.push_back(sandbox::gatewayLine(entry));
    }
    return lines;
}

std::string SandboxTest::readFile(const std::string &file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}
