// SPDX-License-Identifier: MIT
// The pages of the radios and what goes over them; each stands in the file of its name. They throw Failure. Those that
// run the device's own tools, or read its files, say so: they need the device, or the sandbox's device box.
#pragma once

#include "pages/checked.h"
#include "pages/layer/query.h"
#include "pages/process/wait.h"
#include "pages/report.h"
#include "pages/wifi/settings.h"

#include <optional>
#include <string>
#include <vector>

namespace pages::wifi {

// What the configuration layer alone tells.
Report radios();
Report ssids();
Report clients(int radio); // how many a radio's active SSIDs have
Report macFilter(int ssid);
Report mayJoin(int ssid, const std::string &mac); // by the MAC filter; `mac` with colons

// The settings of one SSID or one radio.
Report settings(Subject subject, int instance);

struct SettingsChange {
    Subject subject;
    int instance;
    std::vector<Parameter> wanted;
    bool uiWords = false;   // the values are in the user interface's words
    bool dryRun = false;    // tells what would be written, and no more
    bool storeOnly = false; // all that is wanted is stored, nothing applied
    bool force = false;     // what is the same is written as well
};

// Writes what differs, in one message.
Report changeSettings(const SettingsChange &change);

// What the driver tells of a radio. Need the device.
Report channels(const InterfaceName &name);
Report currentChannel(const InterfaceName &name);

// The associated stations; with `mac` that one alone. Needs the device.
Report stations(const InterfaceName &interface, const std::string &mac);

// A repeater's uplink: the enabled end point's, or that interface. Need the device.
Report endPoint();
Report endPoint(const InterfaceName &interface);

// The networks that the last scans found, on one interface or on all; with an `ssid` that network alone. Need the
// device.
Report survey(const std::optional<InterfaceName> &interface, const std::string &ssid);

// The same drawn by channels: which each network takes, and how strongly. Needs the device.
Report surveyChart(const std::optional<InterfaceName> &interface);

struct ScanRequest {
    InterfaceName interface;
    std::string ssid;                     // "": all networks
    std::chrono::milliseconds unit{1000}; // of the retry table
};

// Throws Usage for what a scan's command line cannot carry.
ScanRequest checkedScan(const std::string &interface, const std::string &ssid);

// Has the device look for networks, waits for them and shows them. Needs the device.
Report scan(const ScanRequest &wanted, Wait &wait);

// WPS by push-button: presses the button and waits for a device to join; ends that; forgets what it has configured.
// Need the device.
Report startWps(std::chrono::milliseconds unit, Wait &wait);
Report cancelWps();
Report resetWps();

// Values of the configuration layer and of the user interface: the list of conversions, the words of one, one value.
Report conversions();
Report conversionWords(const std::string &name);
Report convert(const std::string &name, const std::string &value, bool toUi);

// A text as it stands in a UCI command line; the bytes of a text as hexadecimal digits, and back.
Report escaped(const std::string &given);
Report toHex(const std::string &given);
Report fromHex(const std::string &given);

// Empties the directory of the generated configuration. Needs the device.
Report clearConfs();

} // namespace pages::wifi
