// Disks for tests, by the system's own means where they fail.
#include "tests/support/disk.h"

#include <fstream>
#include <string_view>

#include "base/diskio.h"

#ifdef __linux__
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>

#include <csignal>

MemoryDisk::MemoryDisk(const std::filesystem::path& folder, const std::string& options) : folder_(folder.string()) {
    mounted_ = unshare(CLONE_NEWNS) == 0 && mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
               mount("tmpfs", folder_.c_str(), "tmpfs", 0, options.c_str()) == 0;
}
MemoryDisk::~MemoryDisk() {
    if (mounted_) umount2(folder_.c_str(), MNT_DETACH);
}
bool MemoryDisk::makeReadOnly() {
    return mounted_ && mount("tmpfs", folder_.c_str(), "tmpfs", MS_REMOUNT | MS_RDONLY, nullptr) == 0;
}

namespace {
void LimitFileSize(rlim_t bytes) {
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    limit.rlim_cur = bytes;
    setrlimit(RLIMIT_FSIZE, &limit);
}
}  // namespace

FileSizeLimit::FileSizeLimit(std::uint64_t bytes) {
    std::signal(SIGXFSZ, SIG_IGN);
    LimitFileSize(bytes);
}
FileSizeLimit::~FileSizeLimit() {
    LimitFileSize(RLIM_INFINITY);
    std::signal(SIGXFSZ, SIG_DFL);
}
#endif

UnsyncedDisk::UnsyncedDisk() {
    using std::filesystem::path;
    SetDisk({.write = [](const path& file, std::string_view bytes) { std::ofstream(file, std::ios::binary) << bytes; },
             .append = [](const path& file, std::string_view bytes) { std::ofstream(file, std::ios::app) << bytes; },
             .makeFolder = [](const path& folder) { std::filesystem::create_directories(folder); }});
}
UnsyncedDisk::~UnsyncedDisk() { SetDisk({}); }
