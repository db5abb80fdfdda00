// SPDX-License-Identifier: MIT
#include "stub_tools.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace bench {
namespace {

namespace fs = std::filesystem;

constexpr char kWaveDirectory[] = "/tmp/wlan_wave";

struct Tool {
    const char *name;
    const char *script;
};

constexpr Tool kTools[] = {
    {"iw", R"(case $1 in
dev) printf '%s\n' "Interface $2" '	ifindex 12' '	wdev 0x1' '	addr 00:1d:aa:01:02:03' '	type AP' '	wiphy 0' ;;
*) i=1; while [ $i -le 13 ]; do echo "$i $((2407 + 5 * i)) - - 40+ - -"; i=$((i + 1)); done ;;
esac
)"},
    {"iwlist", R"(printf '%s\n' "$1  13 channels in total; available frequencies :"
i=1; while [ $i -le 13 ]; do echo "          Channel $i : 2.4 GHz"; i=$((i + 1)); done
echo '          Current Channel=6'
)"},
    {"cat", R"(case $1 in
/proc/net/mtlk/*/channel) printf '%s\n' 'primary_channel: 36' 'width: 80' 'center_freq: 5210' ;;
/proc/net/mtlk/*)
  i=10; while [ $i -le 41 ]; do
    printf '%s\n' "00:1d:aa:00:00:$i : STA MAC" "1200 : Packets sent" "13400 : Packets received" \
      '-40 : Short-term RSSI average per antenna' '-42 : Short-term RSSI average per antenna' \
      '-128 : Short-term RSSI average per antenna' '-128 : Short-term RSSI average per antenna'
    i=$((i + 1)); done ;;
*) exec /bin/cat "$@" ;;
esac
)"},
    {"gddbc", "echo 1"},
    {"killall", ""},
    {"source", ""},
    {"ubus", "echo '{ }'"},
};

} // namespace

StubTools::StubTools() {
    char pattern[] = "/tmp/caltofal-tools-XXXXXX";
    directory_ = mkdtemp(pattern);
    for (const Tool &tool : kTools) {
        const fs::path path = fs::path(directory_) / tool.name;
        std::ofstream(path) << "#!/bin/sh\n" << tool.script;
        fs::permissions(path, fs::perms::owner_all);
    }
    setenv("PATH", (directory_ + ':' + getenv("PATH")).c_str(), 1);
    madeWaveDirectory_ = fs::create_directory(kWaveDirectory);
}

StubTools::~StubTools() {
    fs::remove_all(directory_);
    for (const char *file : {"/tmp/wlan_wave/sta_info_bench0", "/tmp/wlan_wave/bench0_peer_info"}) {
        fs::remove(file);
    }
    if (madeWaveDirectory_) {
        fs::remove(kWaveDirectory);
    }
}

} // namespace bench
