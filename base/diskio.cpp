// The system's file calls, every result checked.
#include "base/diskio.h"

#include <array>
#include <chrono>
#include <optional>
#include <random>
#include <utility>
#include <vector>

#include "base/errors.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#endif

namespace fs = std::filesystem;

// -- What differs between the systems -----------------------------------------------------------------------------

namespace {
#ifdef _WIN32

[[noreturn]] void Fail() {
    throw Error(NumberOf(std::error_code(static_cast<int>(GetLastError()), std::system_category())));
}

/// A file handle that is closed on every way out.
class OpenFile {
  public:
    /// Takes over the handle; fails if opening has failed.
    explicit OpenFile(HANDLE opened) : handle_(opened) {
        if (handle_ == INVALID_HANDLE_VALUE) Fail();
    }
    OpenFile(OpenFile&& other) noexcept : handle_(std::exchange(other.handle_, INVALID_HANDLE_VALUE)) {}
    OpenFile& operator=(OpenFile&&) = delete;
    ~OpenFile() {
        if (handle_ != INVALID_HANDLE_VALUE) CloseHandle(handle_);
    }

    std::size_t readSome(char* buffer, std::size_t count) {
        DWORD got = 0;
        if (!ReadFile(handle_, buffer, PartOf(count), &got, nullptr)) Fail();
        return got;
    }
    std::size_t writeSome(std::string_view bytes) {
        DWORD done = 0;
        if (!WriteFile(handle_, bytes.data(), PartOf(bytes.size()), &done, nullptr)) Fail();
        return done;
    }
    void sync() {
        if (!FlushFileBuffers(handle_)) Fail();
    }
    void beginSync() {}
    std::uint64_t size() const {
        LARGE_INTEGER size;
        if (!GetFileSizeEx(handle_, &size)) Fail();
        return static_cast<std::uint64_t>(size.QuadPart);
    }
    void goToEnd() {
        if (!SetFilePointerEx(handle_, LARGE_INTEGER{}, nullptr, FILE_END)) Fail();
    }
    void cutTo(std::uint64_t size) {
        LARGE_INTEGER place;
        place.QuadPart = static_cast<LONGLONG>(size);
        if (SetFilePointerEx(handle_, place, nullptr, FILE_BEGIN)) SetEndOfFile(handle_);
    }
    void close() {
        if (!CloseHandle(std::exchange(handle_, INVALID_HANDLE_VALUE))) Fail();
    }

  private:
    static DWORD PartOf(std::size_t count) { return count > (1u << 24) ? (1u << 24) : static_cast<DWORD>(count); }
    HANDLE handle_;
};

HANDLE Open(const fs::path& path, DWORD access, DWORD sharing, DWORD creation) {
    return CreateFileW(path.c_str(), access, sharing, nullptr, creation, FILE_ATTRIBUTE_NORMAL, nullptr);
}

OpenFile OpenForReading(const fs::path& path) {
    constexpr DWORD Anybody = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    return OpenFile(Open(path, GENERIC_READ, Anybody, OPEN_EXISTING));
}

OpenFile OpenForAppending(const fs::path& path) {
    OpenFile file(Open(path, GENERIC_WRITE, FILE_SHARE_READ, OPEN_ALWAYS));
    file.goToEnd();
    return file;
}

/// Nothing if the name is taken.
std::optional<OpenFile> CreateNew(const fs::path& path, const fs::path&) {
    const HANDLE opened = Open(path, GENERIC_WRITE | GENERIC_READ, FILE_SHARE_READ, CREATE_NEW);
    if (opened == INVALID_HANDLE_VALUE && GetLastError() == ERROR_FILE_EXISTS) return std::nullopt;
    return OpenFile(opened);
}

void ClearReadOnly(const fs::path& path) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0)
        SetFileAttributesW(path.c_str(), attributes & ~static_cast<DWORD>(FILE_ATTRIBUTE_READONLY));
}

void PutInPlace(const fs::path& from, const fs::path& to) {
    ClearReadOnly(to);
    if (!MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) Fail();
}

bool Remove(const fs::path& path) {
    ClearReadOnly(path);
    if (DeleteFileW(path.c_str())) return true;
    if (GetLastError() != ERROR_FILE_NOT_FOUND && GetLastError() != ERROR_PATH_NOT_FOUND) Fail();
    return false;
}

/// A folder whose entries are to be on the disk for good. Here every change of them is written through.
class OpenFolder {
  public:
    explicit OpenFolder(const fs::path&) {}
    void sync() {}
};

#else

[[noreturn]] void Fail() { throw Error(NumberOf(std::error_code(errno, std::generic_category()))); }

/// A file descriptor that is closed on every way out.
class OpenFile {
  public:
    /// Takes over the descriptor; fails if opening has failed.
    explicit OpenFile(int opened) : descriptor_(opened) {
        if (descriptor_ < 0) Fail();
    }
    OpenFile(OpenFile&& other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) {}
    OpenFile& operator=(OpenFile&&) = delete;
    ~OpenFile() {
        if (descriptor_ >= 0) ::close(descriptor_);
    }

    std::size_t readSome(char* buffer, std::size_t count) {
        for (;;) {
            const ssize_t got = ::read(descriptor_, buffer, count);
            if (got >= 0) return static_cast<std::size_t>(got);
            if (errno != EINTR) Fail();
        }
    }
    std::size_t writeSome(std::string_view bytes) {
        for (;;) {
            const ssize_t done = ::write(descriptor_, bytes.data(), bytes.size());
            if (done >= 0) return static_cast<std::size_t>(done);
            if (errno != EINTR) Fail();
        }
    }
    void sync() {
        while (::fsync(descriptor_) != 0) {
            // Some file systems cannot sync what needs none; every other refusal is a failure.
            if (errno == EINVAL || errno == ENOTSUP) return;
            if (errno != EINTR) Fail();
        }
    }
    /// Lets the disk begin with what has been written so far. Only `sync` waits, and only it says whether all is well.
    void beginSync() {
#ifdef __linux__
        ::sync_file_range(descriptor_, 0, 0, SYNC_FILE_RANGE_WRITE);
#endif
    }
    std::uint64_t size() const { return static_cast<std::uint64_t>(status().st_size); }
    bool isFile() const { return S_ISREG(status().st_mode); }
    void cutTo(std::uint64_t size) {
        if (::ftruncate(descriptor_, static_cast<off_t>(size)) != 0) return;  // what led here is reported, not this
    }
    /// Takes over the owner and the permissions, and lets the owner write.
    void takeOver(const struct stat& replaced) {
        // File systems without owners or permissions refuse; a save does not fail for that.
        if (replaced.st_uid != ::geteuid() && ::fchown(descriptor_, replaced.st_uid, replaced.st_gid) != 0) return;
        if (::fchmod(descriptor_, (replaced.st_mode & 0777) | S_IWUSR) != 0) return;
    }
    void close() {
        // Interrupted, the descriptor is closed all the same.
        if (::close(std::exchange(descriptor_, -1)) != 0 && errno != EINTR) Fail();
    }

  private:
    struct stat status() const {
        struct stat status {};
        if (::fstat(descriptor_, &status) != 0) Fail();
        return status;
    }
    int descriptor_;
};

int Open(const fs::path& path, int flags, mode_t mode = 0) { return ::open(path.c_str(), flags | O_CLOEXEC, mode); }

/// Opens without waiting: what is no file (a pipe that nobody fills) must not hold the program up.
OpenFile OpenedFile(const fs::path& path, int flags) {
    OpenFile file(Open(path, flags | O_NONBLOCK, 0666));
    if (!file.isFile()) throw Error(PathFileAccess);
    return file;
}

OpenFile OpenForReading(const fs::path& path) { return OpenedFile(path, O_RDONLY); }
OpenFile OpenForAppending(const fs::path& path) { return OpenedFile(path, O_WRONLY | O_CREAT | O_APPEND); }

/// Nothing if the name is taken. The file is never more open to others than the one it will replace.
std::optional<OpenFile> CreateNew(const fs::path& path, const fs::path& replaced) {
    struct stat status {};
    const bool replaces = ::stat(replaced.c_str(), &status) == 0;
    const int opened = Open(path, O_RDWR | O_CREAT | O_EXCL, replaces ? S_IRUSR | S_IWUSR : 0666);
    if (opened < 0 && errno == EEXIST) return std::nullopt;
    OpenFile file(opened);
    if (replaces) file.takeOver(status);
    return file;
}

void PutInPlace(const fs::path& from, const fs::path& to) {
    if (::rename(from.c_str(), to.c_str()) != 0) Fail();
}

bool Remove(const fs::path& path) {
    if (::unlink(path.c_str()) == 0) return true;
    if (errno != ENOENT) Fail();
    return false;
}

/// A folder whose entries are to be on the disk for good. It is opened before anything is changed in it, so that a
/// folder that cannot be synced is known in time.
class OpenFolder {
  public:
    explicit OpenFolder(const fs::path& path) : folder_(Open(path, O_RDONLY | O_DIRECTORY)) {}
    void sync() { folder_.sync(); }

  private:
    OpenFile folder_;
};

#endif
}  // namespace

// -- The calls ----------------------------------------------------------------------------------------------------

namespace {
fs::path FolderOf(const fs::path& path) { return path.has_parent_path() ? path.parent_path() : fs::path("."); }

void CheckFolder(const fs::path& folder) {
    std::error_code failure;
    if (!fs::is_directory(folder, failure)) throw Error(PathNotFound);
}

OpenFile OpenToRead(const fs::path& path) {
    std::error_code failure;
    const fs::file_type type = fs::status(path, failure).type();
    if (type == fs::file_type::directory) throw Error(PathFileAccess);
    if (type == fs::file_type::not_found) CheckFolder(FolderOf(path));
    return OpenForReading(path);
}

std::string ReadFromDisk(const fs::path& path) {
    OpenFile file = OpenToRead(path);
    // One byte more than the size is asked for, so that the usual file is at its end after two reads; one that grows
    // meanwhile is read on.
    std::string bytes(static_cast<std::size_t>(file.size()) + 1, '\0');
    std::size_t filled = 0;
    while (const std::size_t got = file.readSome(bytes.data() + filled, bytes.size() - filled)) {
        filled += got;
        if (filled == bytes.size()) bytes.resize(bytes.size() * 2);
    }
    bytes.resize(filled);
    return bytes;
}

bool DiskHolds(const fs::path& path, std::string_view bytes) {
    OpenFile file = OpenToRead(path);
    if (file.size() != bytes.size()) return false;
    std::array<char, 1 << 16> piece;
    while (const std::size_t got = file.readSome(piece.data(), piece.size())) {
        if (!bytes.starts_with({piece.data(), got})) return false;
        bytes.remove_prefix(got);
    }
    return bytes.empty();
}

/// Long contents go piece by piece, so that the disk is at work while the next piece is handed over.
void WriteAll(OpenFile& file, std::string_view bytes) {
    constexpr std::size_t Piece = 1 << 19;
    while (!bytes.empty()) {
        const std::size_t done = file.writeSome(bytes.substr(0, Piece));
        if (done == 0) throw Error(DiskFull);
        bytes.remove_prefix(done);
        if (!bytes.empty()) file.beginSync();
    }
    file.sync();
}

constexpr std::string_view TemporaryPrefix = "~save-";
constexpr std::string_view TemporarySuffix = ".tmp";

/// A new file beside the one that it will replace, under a name of its own: programs that save at the same time (on a
/// shared folder) never write into each other's. Removed again unless it is put in place.
class Temporary {
  public:
    explicit Temporary(const fs::path& replaced) : replaced_(replaced), file_(create()) {}
    Temporary(const Temporary&) = delete;
    Temporary& operator=(const Temporary&) = delete;
    ~Temporary() {
        file_.reset();
        std::error_code ignored;
        if (!placed_) fs::remove(path_, ignored);
    }

    void fill(std::string_view bytes) {
        WriteAll(*file_, bytes);
        if (file_->size() != bytes.size()) throw Error(DiskFull);
        file_->close();
    }
    void putInPlace() {
        PutInPlace(path_, replaced_);
        placed_ = true;
    }

  private:
    std::optional<OpenFile> create() {
        std::random_device random;
        for (int tries = 0; tries < 100; ++tries) {
            path_ = FolderOf(replaced_) /
                    std::string(TemporaryPrefix).append(std::to_string(random())).append(TemporarySuffix);
            if (auto file = CreateNew(path_, replaced_)) return file;
        }
        throw Error(PathFileAccess);
    }

    fs::path replaced_;
    fs::path path_;
    std::optional<OpenFile> file_;
    bool placed_ = false;
};

/// Removes what programs that were killed in the middle of a save have left: temporaries an hour older than the file
/// that has just been written. Both times are the file system's own, so that no clock needs to be right.
void RemoveLeftovers(const fs::path& written) {
    std::error_code ignored;
    const auto now = fs::last_write_time(written, ignored);
    std::vector<fs::path> left;
    for (fs::directory_iterator entry(FolderOf(written), ignored), end; entry != end; entry.increment(ignored)) {
        const std::u8string name = entry->path().filename().u8string();
        const std::string_view view(reinterpret_cast<const char*>(name.data()), name.size());
        if (view.starts_with(TemporaryPrefix) && view.ends_with(TemporarySuffix)) left.push_back(entry->path());
    }
    for (const fs::path& file : left) {
        const auto made = fs::last_write_time(file, ignored);
        if (!ignored && now - made > std::chrono::hours(1)) fs::remove(file, ignored);
    }
}

/// A link stays a link: the file is the one it leads to, whether that exists yet or not.
fs::path BehindLinks(fs::path path) {
    std::error_code failure;
    for (int links = 0; fs::is_symlink(path, failure); ++links) {
        if (links == 40) throw Error(PathFileAccess);
        const fs::path target = fs::read_symlink(path, failure);
        if (failure) throw Error(NumberOf(failure));
        path = FolderOf(path) / target;  // an absolute target stands for itself
    }
    return path;
}

void WriteToDisk(const fs::path& wanted, std::string_view bytes) {
    const fs::path path = BehindLinks(wanted);
    CheckFolder(FolderOf(path));
    OpenFolder folder(FolderOf(path));
    Temporary temporary(path);
    temporary.fill(bytes);
    temporary.putInPlace();
    folder.sync();
    RemoveLeftovers(path);
}

void AppendOnDisk(const fs::path& path, std::string_view bytes) {
    CheckFolder(FolderOf(path));
    OpenFile file = OpenForAppending(path);
    const std::uint64_t before = file.size();
    try {
        WriteAll(file, bytes);
    } catch (const Error&) {
        file.cutTo(before);
        throw;
    }
    file.close();
    if (before == 0) OpenFolder(FolderOf(path)).sync();  // it may just have been made
}

void RemoveFromDisk(const fs::path& path) {
    std::error_code failure;
    if (!fs::is_directory(FolderOf(path), failure)) return;
    OpenFolder folder(FolderOf(path));
    if (Remove(path)) folder.sync();
}

void MakeFolderOnDisk(const fs::path& path) {
    std::error_code failure;
    if (fs::is_directory(path, failure)) return;
    if (path.has_parent_path() && path.has_relative_path()) MakeFolderOnDisk(path.parent_path());
    OpenFolder parent(FolderOf(path));
    if (!fs::create_directory(path, failure) && failure) throw Error(NumberOf(failure));
    parent.sync();
}

DiskCalls SystemDisk() {
    return {ReadFromDisk, WriteToDisk, RemoveFromDisk, AppendOnDisk, MakeFolderOnDisk, DiskHolds};
}

DiskCalls& CurrentDisk() {
    static DiskCalls calls = SystemDisk();
    return calls;
}
}  // namespace

const DiskCalls& Disk() { return CurrentDisk(); }

void SetDisk(DiskCalls calls) {
    DiskCalls& current = CurrentDisk();
    current = SystemDisk();
    const auto put = [](auto& place, auto& call) {
        if (call) place = std::move(call);
    };
    put(current.read, calls.read);
    put(current.write, calls.write);
    put(current.remove, calls.remove);
    put(current.append, calls.append);
    put(current.makeFolder, calls.makeFolder);
    put(current.holds, calls.holds);
}
