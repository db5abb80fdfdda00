// SPDX-License-Identifier: MIT
// A capture is written back to a device, whose layer tells nothing of types and access.
#include "pages/capture/pages.h"

#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>

using namespace pages;

// In front of the sandbox's own.
extern "C" __attribute__((visibility("default"))) const char *cal_sandboxDefinition(const char * /*path*/) {
    return "";
}

namespace {

class Apply : public testing::Test {
  protected:
    Apply() { setenv("CALTOFAL_SANDBOX_DIR", directory_.c_str(), 1); }
    ~Apply() override { std::filesystem::remove_all(directory_); }

    static std::string now(const std::string &object, const std::string &name) {
        return valueOf(get({{object, {{name}}}}, Reading::Leaf).at(0), name);
    }

  private:
    std::string directory_ = [] {
        std::string name = (std::filesystem::temp_directory_path() / "caltofal-pages-XXXXXX").string();
        return std::string(mkdtemp(name.data()));
    }();
};

TEST_F(Apply, SkipsWhatTheStandardMakesReadOnly) {
    const std::string upTime = now("Device.DeviceInfo", "UpTime");
    const Report report = capture::apply("@capture\n"
                                         "Device.DeviceInfo.UpTime = 1\n"
                                         "Device.DeviceInfo.ProvisioningCode = changed\n"
                                         "Device.DeviceInfo.X_ACME_Nothing = 1\n"
                                         "Device.PPP.Interface.1.Password = (hidden)\n"
                                         "Device.WiFi.Radio.1.Channel [unsignedInt ro] = 11\n",
                                         "attic", false, false);
    EXPECT_EQ(report.json["changes"].items().size(), 1U);
    const std::vector<std::string> notes = {
        "skipped, a secret that was replaced in the file: Device.PPP.Interface.1.Password",
        "skipped, read-only: Device.DeviceInfo.UpTime, Device.WiFi.Radio.1.Channel",
        "skipped, unknown to the gateway: Device.DeviceInfo.X_ACME_Nothing", "written: 1, skipped: 4"};
    EXPECT_EQ(report.notes, notes);
    EXPECT_EQ(now("Device.DeviceInfo", "ProvisioningCode"), "changed");
    EXPECT_EQ(now("Device.DeviceInfo", "UpTime"), upTime);
}

} // namespace
