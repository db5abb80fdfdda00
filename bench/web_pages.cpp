// SPDX-License-Identifier: MIT
// caltofal_web_pages THREADS SECONDS: how many times a second the default WAN's page becomes JSON text in a process, by
// that many threads: what the web back end adds HTTP to.
#include "pages/json.h"
#include "pages/network/pages.h"

#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <thread>
#include <vector>

int main(int argc, char **argv) {
    const int threads = argc > 1 ? atoi(argv[1]) : 1;
    const int seconds = argc > 2 ? atoi(argv[2]) : 1;
    std::atomic<long> made{0};
    std::atomic<bool> stop{false};
    std::vector<std::thread> makers;
    makers.reserve(static_cast<size_t>(threads));
    for (int i = 0; i < threads; ++i) {
        makers.emplace_back([&] {
            while (!stop) {
                made += pages::toJson(pages::Report(pages::wan()).json, 2).empty() ? 0 : 1;
            }
        });
    }
    std::this_thread::sleep_for(std::chrono::seconds(seconds));
    stop = true;
    for (std::thread &maker : makers) {
        maker.join();
    }
    printf("%.0f\n", static_cast<double>(made) / seconds);
    return 0;
}
