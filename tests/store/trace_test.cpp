// SPDX-License-Identifier: MIT
//
// The trace of messages that CALTOFAL_SANDBOX_TRACE orders.
#include "sandbox_fixture.h"

#include <cstdlib>
#include <sstream>
#include <unistd.h>

namespace {

class TraceTest : public SandboxTest {
  protected:
    void SetUp() override {
        SandboxTest::SetUp();
        setenv("CALTOFAL_SANDBOX_TRACE", (directory + "/trace").c_str(), 1);
    }
    void TearDown() override {
        unsetenv("CALTOFAL_SANDBOX_TRACE");
        SandboxTest::TearDown();
    }

    // The lines without what changes from run to run; the file is gone afterwards.
    std::string takeTrace() {
        std::istringstream trace(readFile(directory + "/trace"));
        unlink((directory + "/trace").c_str());
        std::string text;
        for (std::string line; std::getline(trace, line);) {
            std::istringstream words(line);
            std::string time, gateway, process, operation, code, name, spent, rest;
            words >> time >> gateway >> process >> operation >> code >> name >> spent;
            std::getline(words, rest);
            EXPECT_EQ(time.size(), std::string("2026-11-21T19:09:48.125+0000").size()) << line;
            EXPECT_EQ(process, "store_test[" + std::to_string(getpid()) + "]") << line;
            EXPECT_TRUE(std::isdigit(spent.front()) && spent.ends_with("us")) << line;
            text.append(gateway).append(" " + operation).append(" " + code).append(" " + name).append(rest + "\n");
        }
        return text;
    }
};

TEST_F(TraceTest, HasALineForEachMessage) {
    const std::string longValue(100, 'x');
    const auto several = Message::get(kPlainGet, "Device.Info.", {"Name", "UpTime"});
    several->object("Device.Pair.");
    cal_getValue(&several->header);
    cal_getValue(&Message::get(kLeafGet, "Device.Net.Host")->header);
    cal_getValue(&Message::get(kDefaultGet, "Device.Info")->header);
    cal_getValue(&Message::filter("Device.Net.Host.", {{"Name", "two"}, {"Level", "5"}})->header);
    cal_setValue(&Message::set()->with("Device.Info", kSet, {{"Name", "x y"}, {"Text", longValue}}).header);
    cal_setValueToDb(
        &Message::set()->with("Device.Net.Host", kAdd, {{"Name", "n"}}).with("Device.Net.Host.2", kDelete, {}).header);
    EXPECT_EQ(takeTrace(), "lab get 0 ok Device.Info.(Name,UpTime) Device.Pair.\n"
                           "lab get-leaf 0 ok Device.Net.Host\n"
                           "lab get-defaults 0 ok Device.Info\n"
                           "lab get 0 ok Device.Net.Host.(Name=\"two\",Level=\"5\")\n"
                           "lab set 0 ok Device.Info(Name=\"x y\",Text=\"" +
                               longValue.substr(0, 64) +
                               "\"...)\n"
                               "lab setToDb 0 ok add Device.Net.Host(Name=\"n\") delete Device.Net.Host.2\n");
}

TEST_F(TraceTest, TellsWhyAMessageIsRefused) {
    cal_setValue(&Message::set()->with("Device.Pair", kSet, {{"Left", "1"}, {"KeyPassphrase", "secret"}}).header);
    cal_setValue(&Message::set()
                      ->with("Device.Pair", kSet, {{"Left", "1"}, {"KeyPasphrase", "secret"}, {"Right", ""}})
                      .with("Device.Net.Host", kAdd, {{"Level", "5"}, {"Pasword", "secret"}})
                      .with("Device.Net.Host.99", kSet, {{"Name", "n"}, {"Tokn", "secret"}})
                      .with("Device.Nope", kSet, {{"Left", "1"}})
                      .header);
    cal_getValue(nullptr);
    Message empty(CALTOFAL_OPER_GET, SOPT_OBJVALUE);
    cal_getValue(&empty.header);
    setenv("CALTOFAL_GATEWAY", "nosuch", 1);
    cal_getValue(&Message::get(kPlainGet, "Device.Info.")->header);
    setenv("CALTOFAL_GATEWAY", "no/name", 1);
    cal_getValue(&Message::get(kPlainGet, "Device.Info.")->header);
    EXPECT_EQ(takeTrace(),
              "lab set -203 unknown-parameter Device.Pair(Left=\"1\",KeyPassphrase=(hidden)) : "
              "Device.Pair: no parameter \"KeyPassphrase\"\n"
              "lab set -203 unknown-parameter Device.Pair(Left=\"1\",KeyPasphrase=(hidden),Right=\"\") "
              "add Device.Net.Host(Level=\"5\",Pasword=(hidden)) "
              "Device.Net.Host.99(Name=\"n\",Tokn=(hidden)) Device.Nope(Left=(hidden)) : "
              "Device.Pair: no parameter \"KeyPasphrase\"\n"
              "lab get -201 bad-message no object : there is no message\n"
              "lab get -201 bad-message no object : the message names no object\n"
              "nosuch get -209 no-gateway Device.Info. : there is no gateway \"nosuch\" in " +
                  directory +
                  "\n"
                  "no/name get -209 no-gateway Device.Info. : "
                  "\"no/name\" is not a gateway name: it begins with a letter, a digit or '_', and goes on "
                  "with these, '.' and '-'\n");
}

TEST_F(TraceTest, TellsWhatASuccessLeftOut) {
    const auto several = Message::get(kPlainGet, "Device.Info.", {"Nmae", "UpTime", "Upp"});
    several->object("Device.Pair.").param("Lefft", nullptr);
    cal_getValue(&several->header);
    cal_getValue(&Message::filter("Device.Net.Host.", {{"Name", "two"}, {"Levle", "5"}})->header);
    const auto set = Message::set();
    set->object("Device.Info", kSet).param("Text", nullptr).param("Text", "");
    set->header.owner = 7;
    cal_setValue(&set->header);
    EXPECT_EQ(takeTrace(), "lab get 0 ok Device.Info.(Nmae,UpTime,Upp) Device.Pair.(Lefft) : "
                           "not answered: Device.Info.Nmae, Device.Info.Upp, Device.Pair.Lefft\n"
                           "lab get -208 no-match Device.Net.Host.(Name=\"two\",Levle=(hidden)) : "
                           "Device.Net.Host: no instance has a parameter \"Levle\"\n"
                           "lab set 0 ok Device.Info(Text=NULL,Text=\"\") : owner 7 is none of CaltofalOwner\n");
}

TEST_F(TraceTest, ShowsNoValueBehindAName) {
    cal_getValue(&Message::get(kPlainGet, "Device.Info.", {"Text=secret"})->header);
    cal_getValue(&Message::get(kPlainGet, "Device.Info.Text=secret")->header);
    cal_setValue(&Message::set()->with("Device.Info", kSet, {{"Text:secret", "x"}}).header);
    cal_getValue(&Message::filter("Device.Net.Host.", {{"Name=secret", "two"}})->header);
    EXPECT_EQ(takeTrace(), "lab get 0 ok Device.Info.(Text...) : not answered: Device.Info.Text...\n"
                           "lab get -202 absent-object Device.Info.Text... : \"Device.Info.Text...\": no such object\n"
                           "lab set -203 unknown-parameter Device.Info(Text...=(hidden)) : "
                           "Device.Info: no parameter \"Text...\"\n"
                           "lab get -208 no-match Device.Net.Host.(Name...=(hidden)) : "
                           "Device.Net.Host: no instance has a parameter \"Name...\"\n");
    EXPECT_EQ(readFile(location("lab").logFile()).find("secret"), std::string::npos);
}

TEST_F(TraceTest, FailsNoMessage) {
    setenv("CALTOFAL_SANDBOX_TRACE", (directory + "/none/trace").c_str(), 1);
    EXPECT_EQ(valueOf("Device.Info", "Name"), "lab");
}

} // namespace
