// SPDX-License-Identifier: MIT
#include "pages/wifi/file_mark.h"

#include <sys/stat.h>

namespace pages::wifi {

FileMark::FileMark(const std::string &path) {
    struct stat status {};
    present_ = stat(path.c_str(), &status) == 0;
    inode_ = status.st_ino;
    changed_ = status.st_mtim;
    size_ = status.st_size;
}

bool FileMark::isNewerThan(const FileMark &before) const {
    return present_ && (!before.present_ || inode_ != before.inode_ || size_ != before.size_ ||
                        changed_.tv_sec != before.changed_.tv_sec || changed_.tv_nsec != before.changed_.tv_nsec);
}

} // namespace pages::wifi
