// The system's file calls, every result checked.
#include "base/diskio.h"

#include <cerrno>
#include <utility>

#include "base/errors.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace fs = std::filesystem;

namespace {
#ifdef _WIN32

[[noreturn]] void FailWithLastError() {
    switch (GetLastError()) {
        case ERROR_FILE_NOT_FOUND:
            throw Error(FileNotFound);
        case ERROR_PATH_NOT_FOUND:
            throw Error(PathNotFound);
        case ERROR_ACCESS_DENIED:
        case ERROR_SHARING_VIOLATION:
        case ERROR_LOCK_VIOLATION:
        case ERROR_WRITE_PROTECT:
            throw Error(PermissionDenied);
        case ERROR_HANDLE_DISK_FULL:
        case ERROR_DISK_FULL:
            throw Error(DiskFull);
        default:
            throw Error(DeviceIoError);
    }
}

/// A file handle that is closed on every way out.
class OpenFile {
  public:
    OpenFile(const fs::path& path, DWORD access, DWORD creation)
        : handle_(
              CreateFileW(path.c_str(), access, FILE_SHARE_READ, nullptr, creation, FILE_ATTRIBUTE_NORMAL, nullptr)) {
        if (handle_ == INVALID_HANDLE_VALUE) FailWithLastError();
    }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;
    ~OpenFile() { close(); }

    std::size_t read(char* buffer, std::size_t count) {
        DWORD got = 0;
        if (!ReadFile(handle_, buffer, static_cast<DWORD>(count), &got, nullptr)) FailWithLastError();
        return got;
    }
    void write(std::string_view bytes) {
        while (!bytes.empty()) {
            const DWORD part = bytes.size() > (1u << 24) ? (1u << 24) : static_cast<DWORD>(bytes.size());
            DWORD done = 0;
            if (!WriteFile(handle_, bytes.data(), part, &done, nullptr)) FailWithLastError();
            if (done == 0) throw Error(DiskFull);
            bytes.remove_prefix(done);
        }
    }
    void sync() {
        if (!FlushFileBuffers(handle_)) FailWithLastError();
    }
    std::uint64_t size() const {
        LARGE_INTEGER size;
        if (!GetFileSizeEx(handle_, &size)) FailWithLastError();
        return static_cast<std::uint64_t>(size.QuadPart);
    }
    void close() {
        if (handle_ != INVALID_HANDLE_VALUE) CloseHandle(std::exchange(handle_, INVALID_HANDLE_VALUE));
    }

  private:
    HANDLE handle_;
};

OpenFile OpenForReading(const fs::path& path) { return {path, GENERIC_READ, OPEN_EXISTING}; }
OpenFile CreateFresh(const fs::path& path, const fs::path&) {
    return {path, GENERIC_WRITE | GENERIC_READ, CREATE_ALWAYS};
}

void ClearReadOnly(const fs::path& path) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN)) != 0)
        SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
}

void PutInPlace(const fs::path& from, const fs::path& to) {
    if (!MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) FailWithLastError();
}

void SyncFolder(const fs::path&) {}  // the rename was written through

void RemoveQuietly(const fs::path& path) { DeleteFileW(path.c_str()); }

void RemoveChecked(const fs::path& path) {
    ClearReadOnly(path);
    if (DeleteFileW(path.c_str()) || GetLastError() == ERROR_FILE_NOT_FOUND || GetLastError() == ERROR_PATH_NOT_FOUND)
        return;
    FailWithLastError();
}

#else

[[noreturn]] void FailWithErrno(int code = errno) {
    switch (code) {
        case ENOENT:
            throw Error(FileNotFound);
        case ENOTDIR:
            throw Error(PathNotFound);
        case EACCES:
        case EPERM:
        case ETXTBSY:
            throw Error(PermissionDenied);
        case EROFS:
        case EISDIR:
        case ENAMETOOLONG:
            throw Error(PathFileAccess);
        case ENOSPC:
        case EDQUOT:
        case EFBIG:
            throw Error(DiskFull);
        default:
            throw Error(DeviceIoError);
    }
}

/// A file descriptor that is closed on every way out.
class OpenFile {
  public:
    OpenFile(const fs::path& path, int flags, mode_t mode = 0)
        : descriptor_(::open(path.c_str(), flags | O_CLOEXEC, mode)) {
        if (descriptor_ < 0) FailWithErrno();
    }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;
    ~OpenFile() {
        if (descriptor_ >= 0) ::close(descriptor_);
    }

    std::size_t read(char* buffer, std::size_t count) {
        for (;;) {
            const ssize_t got = ::read(descriptor_, buffer, count);
            if (got >= 0) return static_cast<std::size_t>(got);
            if (errno != EINTR) FailWithErrno();
        }
    }
    void write(std::string_view bytes) {
        while (!bytes.empty()) {
            const ssize_t done = ::write(descriptor_, bytes.data(), bytes.size());
            if (done < 0 && errno == EINTR) continue;
            if (done < 0) FailWithErrno();
            if (done == 0) throw Error(DiskFull);
            bytes.remove_prefix(static_cast<std::size_t>(done));
        }
    }
    void sync() {
        // Some file systems cannot sync what needs none (EINVAL, ENOTSUP); every other refusal is a failure.
        if (::fsync(descriptor_) != 0 && errno != EINVAL && errno != ENOTSUP) FailWithErrno();
    }
    std::uint64_t size() const { return static_cast<std::uint64_t>(status().st_size); }
    bool isFolder() const { return S_ISDIR(status().st_mode); }
    void copyMode(mode_t mode) {
        if (::fchmod(descriptor_, mode) != 0 && errno != EPERM && errno != ENOTSUP) FailWithErrno();
    }
    void close() {
        if (::close(std::exchange(descriptor_, -1)) != 0 && errno != EINTR) FailWithErrno();
    }

  private:
    struct stat status() const {
        struct stat status {};
        if (::fstat(descriptor_, &status) != 0) FailWithErrno();
        return status;
    }
    int descriptor_;
};

OpenFile OpenForReading(const fs::path& path) {
    struct stat status {};
    if (::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode)) throw Error(PathFileAccess);
    if (!fs::exists(path.parent_path())) throw Error(PathNotFound);
    return {path, O_RDONLY};
}

/// Creates the temporary with the permissions of the file it will replace, writable by its owner.
OpenFile CreateFresh(const fs::path& path, const fs::path& replaced) {
    struct stat status {};
    const bool known = ::stat(replaced.c_str(), &status) == 0;
    return {path, O_RDWR | O_CREAT | O_TRUNC, known ? (status.st_mode & 0777) | S_IWUSR : 0666};
}

void ClearReadOnly(const fs::path&) {}  // a rename replaces a read-only file as well

void PutInPlace(const fs::path& from, const fs::path& to) {
    if (::rename(from.c_str(), to.c_str()) != 0) FailWithErrno();
}

void SyncFolder(const fs::path& folder) {
    OpenFile(folder.empty() ? fs::path(".") : folder, O_RDONLY | O_DIRECTORY).sync();
}

void RemoveQuietly(const fs::path& path) { ::unlink(path.c_str()); }

void RemoveChecked(const fs::path& path) {
    if (::unlink(path.c_str()) == 0)
        SyncFolder(path.parent_path());
    else if (errno != ENOENT)
        FailWithErrno();
}

#endif

std::string ReadFromDisk(const fs::path& path) {
    OpenFile file = OpenForReading(path);
    std::string bytes(static_cast<std::size_t>(file.size()) + 1, '\0');
    std::size_t filled = 0;
    // One byte more than the size is asked for, so that the usual file is at its end after two reads; one that grows
    // meanwhile is read on.
    while (const std::size_t got = file.read(bytes.data() + filled, bytes.size() - filled)) {
        filled += got;
        if (filled == bytes.size()) bytes.resize(bytes.size() * 2);
    }
    bytes.resize(filled);
    return bytes;
}

void WriteTemporary(const fs::path& temporary, const fs::path& path, std::string_view bytes) {
    OpenFile file = CreateFresh(temporary, path);
    file.write(bytes);
    file.sync();
    if (file.size() != bytes.size()) throw Error(DiskFull);
    file.close();
}

void WriteToDisk(const fs::path& wanted, std::string_view bytes) {
    std::error_code failure;
    // A link stays a link: what it points to is replaced.
    const fs::path path = fs::is_symlink(wanted, failure) ? fs::weakly_canonical(wanted) : wanted;
    if (!path.parent_path().empty() && !fs::is_directory(path.parent_path(), failure)) throw Error(PathNotFound);
    const fs::path temporary = path.parent_path() / (path.filename().string() + ".tmp");
    try {
        WriteTemporary(temporary, path, bytes);
        ClearReadOnly(path);
        PutInPlace(temporary, path);
    } catch (const Error&) {
        RemoveQuietly(temporary);
        throw;
    }
    SyncFolder(path.parent_path());
}

void RenameOnDisk(const fs::path& from, const fs::path& to) {
    ClearReadOnly(to);
    PutInPlace(from, to);
    SyncFolder(to.parent_path());
}

DiskCalls SystemDisk() { return {ReadFromDisk, WriteToDisk, RemoveChecked, RenameOnDisk}; }

DiskCalls& CurrentDisk() {
    static DiskCalls calls = SystemDisk();
    return calls;
}
}  // namespace

const DiskCalls& Disk() { return CurrentDisk(); }

void SetDisk(DiskCalls calls) { CurrentDisk() = calls.read ? std::move(calls) : SystemDisk(); }
