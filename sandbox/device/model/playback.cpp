// SPDX-License-Identifier: MIT
#include "device/model/playback.h"

#include "store/recording.h"

#include <cstdlib>
#include <fstream>
#include <string>

namespace device {
namespace {

namespace fs = std::filesystem;

void write(const fs::path &file, const std::string &content) {
    fs::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << content;
}

std::string fileNameOf(std::string command) {
    for (char &c : command) {
        c = c == '/' ? ':' : c == ' ' ? '+' : c;
    }
    return command;
}

// A path that leads nowhere else than below the directory it is put in.
bool isPlainPath(const std::string &path) {
    return path.starts_with('/') && fs::path(path).lexically_normal() == fs::path(path);
}

} // namespace

void layOut(sandbox::Database &database, const fs::path &directory) {
    for (const sandbox::Recording &recording : sandbox::recordings(database)) {
        if (recording.exitCode) {
            const fs::path answer = directory / "answers" / fileNameOf(recording.name);
            write(answer, recording.content);
            write(answer.string() + ".code", std::to_string(*recording.exitCode) + "\n");
        } else if (isPlainPath(recording.name)) {
            write(directory / "files" / recording.name.substr(1), recording.content);
        }
    }
}

fs::path recordingOf(const fs::path &file) {
    return fs::path(kRecorded) / "files" / file.relative_path();
}

bool isRecordedOnly() {
    const char *only = std::getenv("CALTOFAL_BOX_RECORDED_ONLY");
    return only != nullptr && *only != '\0';
}

} // namespace device
