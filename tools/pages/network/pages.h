// SPDX-License-Identifier: MIT
// The pages of the WAN, the LAN and what lies between them; each stands in the file of its name. They ask the gateway
// and throw Failure.
#pragma once

#include "pages/page.h"

#include <string>

namespace pages {

Report status(); // the others at a glance
Page mode();
Page gateway();
Page wan();
Page bridgeWan();                   // of a device in bridge mode
Page dns(const std::string &given); // of an interface; "": of the default WAN
Page ipv6();
Page dsl();
Page atm();

enum class LanPart { Both, Ipv4, Ipv6 };
Page lan(LanPart part);
Page wholeLan();

Page multiWan();
Page iptv();

// Every client of the LAN.
Report hosts();
// One of them by MAC or IPv4 address. Throws Usage for what is neither.
Page host(const std::string &address);

// What lies below an object of the interface stack.
struct LowerLayers {
    bool walk = false;  // on down to the physical interface, below the first of several
    bool whole = false; // also what the library's record has no room for; a walk takes every branch
};
Report lowerLayers(const std::string &object, const LowerLayers &how);

// What kind of address a text is.
Report address(const std::string &text);

// Single values.
Report connectionModes(); // the words that uciSectionOfMode() takes
Report uciSectionOfMode(const std::string &mode);
Report wanInterfaceName();     // the Linux name
Report ethernetWanInterface(); // the IP interface object

} // namespace pages
