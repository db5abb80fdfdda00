// SPDX-License-Identifier: MIT
#include "answers.h"

#include "body.h"
#include "device_tools.h"
#include "pages/checked.h"
#include "pages/failure.h"
#include "pages/layer/call.h"
#include "pages/mesh/pages.h"
#include "pages/network/pages.h"
#include "pages/objects/pages.h"
#include "pages/text.h"
#include "pages/wifi/interface.h"
#include "pages/wifi/pages.h"

#include <algorithm>
#include <stdexcept>

namespace web {
namespace {

using pages::Report;
using pages::Usage;
using pages::Value;
using SettingsOf = pages::wifi::Subject;

int numberOf(const Call &call, const char *what) {
    return pages::checkedInstance(call.argument, what);
}

template <SettingsOf subject>
int instanceOf(const Call &call) {
    return numberOf(call, subject == SettingsOf::Ssid ? "SSID" : "radio");
}

template <auto page>
Report show(const Call & /*call*/) {
    return page();
}

template <SettingsOf subject>
Report showSettings(const Call &call) {
    return pages::wifi::settings(subject, instanceOf<subject>(call));
}

Report showDns(const Call & /*call*/) {
    return pages::dns({});
}

Report showMesh(const Call & /*call*/) {
    needDeviceTools();
    return pages::mesh::status();
}

// An object twice is read once: each costs the memory of all that is below it.
bool isAsked(const pages::objects::Query &query, const std::string &path) {
    return std::any_of(query.objects.begin(), query.objects.end(),
                       [&](const auto &object) { return pages::withoutDot(object.name) == pages::withoutDot(path); });
}

Report showObjects(const Call &call) {
    pages::objects::Query query{.objects = {}, .where = {}, .leaf = call.flag("leaf")};
    for (const QueryItem &item : call.query) {
        if (item.name == "path" && !isAsked(query, item.value)) {
            query.objects.push_back({pages::checkedPath(item.value)});
        } else if (item.name == "where") {
            query.where.push_back(pages::assignment(item.value, "where"));
        }
    }
    if (query.objects.empty()) {
        throw Usage("which object? GET /api/v1/objects?path=Device.OBJECT");
    }
    pages::objects::check(query);
    return pages::objects::read(query);
}

Report showChannels(const Call &call) {
    const pages::InterfaceName interface(call.argument);
    needDeviceTools();
    return pages::wifi::channels(interface);
}

Report showStations(const Call &call) {
    const pages::InterfaceName interface(call.argument);
    needDeviceTools();
    return pages::wifi::stations(interface, {});
}

Report showSurvey(const Call &call) {
    needDeviceTools();
    try {
        return pages::wifi::survey({}, {});
    } catch (const pages::Failure &failure) {
        if (failure.category() != pages::Category::Absent || !call.flag("empty")) {
            throw;
        }
        return {.json = Value::object({{"networks", Value::list()}})};
    }
}

Report showEndpoint(const Call & /*call*/) {
    needDeviceTools();
    return pages::wifi::endPoint();
}

template <SettingsOf subject>
Report changeSettings(const Call &call) {
    return pages::wifi::changeSettings({.subject = subject,
                                        .instance = instanceOf<subject>(call),
                                        .wanted = parametersOf(call.body),
                                        .uiWords = true,
                                        .dryRun = call.flag("dry_run"),
                                        .storeOnly = call.flag("db_only")});
}

Report changeObjects(const Call &call) {
    return pages::objects::setDiffering(objectsOf(call.body), call.flag("dry_run"), call.flag("db_only"));
}

Report changeMesh(const Call &call) {
    allowMembers(call.body, {"enabled"});
    if (!call.body["enabled"].isFlag()) {
        throw Usage(R"(give {"enabled": true} or {"enabled": false})");
    }
    const std::string wanted = call.body["enabled"].flag() ? "true" : "false";
    return pages::objects::setDiffering({{"Device.WiFi.X_ZINTU_RoamingMesh.", {{"Enable", wanted}}}},
                                        call.flag("dry_run"), false);
}

struct Row {
    Subject subject;
    Report (*read)(const Call &);
    Report (*change)(const Call &) = nullptr;
};

constexpr Row kRows[] = {
    {Subject::Status, show<pages::status>},
    {Subject::Mode, show<pages::mode>},
    {Subject::Gateway, show<pages::gateway>},
    {Subject::Wan, show<pages::wan>},
    {Subject::Dns, showDns},
    {Subject::Ipv6, show<pages::ipv6>},
    {Subject::Dsl, show<pages::dsl>},
    {Subject::Atm, show<pages::atm>},
    {Subject::Lan, show<pages::wholeLan>},
    {Subject::MultiWan, show<pages::multiWan>},
    {Subject::Iptv, show<pages::iptv>},
    {Subject::Hosts, show<pages::hosts>},
    {Subject::Mesh, showMesh, changeMesh},
    {Subject::Objects, showObjects, changeObjects},
    {Subject::WifiRadios, show<pages::wifi::radios>},
    {Subject::WifiRadio, showSettings<SettingsOf::Radio>, changeSettings<SettingsOf::Radio>},
    {Subject::WifiSsids, show<pages::wifi::ssids>},
    {Subject::WifiSsid, showSettings<SettingsOf::Ssid>, changeSettings<SettingsOf::Ssid>},
    {Subject::WifiChannels, showChannels},
    {Subject::WifiStations, showStations},
    {Subject::WifiSurvey, showSurvey},
    {Subject::WifiEndpoint, showEndpoint},
};

const Row &rowOf(const Call &call) {
    for (const Row &row : kRows) {
        if (row.subject == call.resource->subject) {
            return row;
        }
    }
    throw std::logic_error("a resource without a page");
}

// Milliseconds, as the command line's --pace.
std::chrono::milliseconds paceOf(const Value &body) {
    constexpr int64_t kMost = 60'000;
    const Value &pace = body["pace"];
    if (pace.isNull()) {
        return std::chrono::seconds(1);
    }
    if (!pace.isNumber() || pace.whole() < 1 || pace.whole() > kMost) {
        throw Usage("pace is not a number of milliseconds, 1 to " + std::to_string(kMost));
    }
    return std::chrono::milliseconds(pace.whole());
}

Jobs::Task scanTask(const Call &call) {
    allowMembers(call.body, {"interface", "ssid", "pace"});
    pages::wifi::ScanRequest request =
        pages::wifi::checkedScan(textOf(call.body, "interface"), textOf(call.body, "ssid"));
    request.unit = paceOf(call.body);
    pages::wifi::findInterface(request.interface);
    const std::string interface = request.interface.text();
    return {[request = std::move(request)](pages::Wait &wait) { return pages::wifi::scan(request, wait); }, interface};
}

Jobs::Task wpsTask(const Call &call) {
    allowMembers(call.body, {"pace"});
    return {[unit = paceOf(call.body)](pages::Wait &wait) { return pages::wifi::startWps(unit, wait); }};
}

Jobs::Task syncTask(const Call &call) {
    allowMembers(call.body, {});
    return {[](pages::Wait &wait) { return pages::mesh::sync(wait); }};
}

Jobs::Task plainTaskOf(const Call &call) {
    switch (call.resource->subject) {
    case Subject::WifiScans:
        return scanTask(call);
    case Subject::WifiWps:
        return wpsTask(call);
    default:
        return syncTask(call);
    }
}

// Failed requests that a page hides are notes, as on the command line.
template <class Page>
Report noted(const Page &page) {
    const pages::HiddenFailures hidden;
    Report report = page();
    report.notes.insert(report.notes.end(), hidden.notes().begin(), hidden.notes().end());
    return report;
}

} // namespace

Report read(const Call &call) {
    return noted([&] { return rowOf(call).read(call); });
}

Report change(const Call &call) {
    return noted([&] { return rowOf(call).change(call); });
}

Jobs::Task taskOf(const Call &call) {
    needDeviceTools();
    Jobs::Task task = plainTaskOf(call);
    task.work = [work = std::move(task.work)](pages::Wait &wait) { return noted([&] { return work(wait); }); };
    return task;
}

} // namespace web
