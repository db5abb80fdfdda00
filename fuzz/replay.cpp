// SPDX-License-Identifier: MIT
// Hands the files of directories to a fuzzer's entry point: corpora as tests, with any compiler.
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);

int main(int argc, char **argv) {
    int count = 0;
    for (int i = 1; i < argc; ++i) {
        for (const auto &file : std::filesystem::directory_iterator(argv[i])) {
            std::ifstream stream(file.path(), std::ios::binary);
            const std::string content{std::istreambuf_iterator<char>(stream), {}};
            LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t *>(content.data()), content.size());
            ++count;
        }
    }
    printf("%d inputs\n", count);
    return count > 0 ? 0 : 1;
}
