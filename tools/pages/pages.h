// SPDX-License-Identifier: MIT
// The pages of a gateway, for every program that shows them: a command line, a server.
//
// A page is a function: plain arguments in, a Report out, which holds one value for JSON (json.h prints it) and one
// table for people. It throws Failure, whose category a program turns into its own terms (an exit code, a status), and
// which errorValue() makes JSON of. What people typed is checked first (checked.h); where only a check makes an
// argument's type, nothing unchecked can reach a shell.
//
//     using namespace pages;
//     std::string body;
//     try {
//         const Report report = wifi::stations(InterfaceName(given), "");
//         body = toJson(report.json, 2) + "\n"; // what `caltofal wifi stations wlan0 --json` prints
//     } catch (const Failure &failure) {
//         body = toJson(errorValue(failure)) + "\n";
//     }
//
// Any thread may ask for any page at any time. Nothing here knows a terminal, the command line or the process's own
// streams. What a program decides about its process, it says before the first page, once:
//   - process/output.h: who takes what the library and the device's tools write besides results (nobody, if not said);
//   - process/streams.h: keeps the library's lines out of the program's standard output and standard error;
//   - process/console.h: where the library's console trace goes;
//   - process/wait.h: how to wait, show how far it is, and cancel, for pages that wait (wifi::scan(), wifi::startWps(),
//     mesh::sync()); a Wait of its own for each call.
// The library's requests are told apart by thread (layer/request_log.h), as is what its shell commands complain about
// (process/shell_output.h). To that end the program's own cal_getValue(), cal_setValue(), cal_setValueToDb(), system(),
// popen(), pclose() and open() stand before those of the shared libraries: they come with this library.
#pragma once

#include "pages/failure.h"
#include "pages/json.h"
#include "pages/mesh/pages.h"
#include "pages/network/pages.h"
#include "pages/objects/pages.h"
#include "pages/wifi/pages.h"
