// One running program for one data folder: a file in the folder, locked by the system for as long as the program runs.
#include "forms/qt/instanceLock.h"

#include <QString>

#ifdef _WIN32
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#endif

bool TakeInstanceLock(const QString& folder) {
    const QString name = folder + QStringLiteral("/Tasmoro.lock");
#ifdef _WIN32
    // Opened without sharing, the file cannot be opened a second time; the system deletes it with its last handle.
    const HANDLE file = CreateFileW(reinterpret_cast<const wchar_t*>(name.utf16()), GENERIC_WRITE, 0, nullptr,
                                    OPEN_ALWAYS, FILE_ATTRIBUTE_HIDDEN | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    return file != INVALID_HANDLE_VALUE || GetLastError() != ERROR_SHARING_VIOLATION;
#else
    // The file stays when the program ends: deleting it would open a gap in which two programs lock two files.
    const QByteArray path = name.toLocal8Bit();
    int file = open(path.constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
    if (file < 0) file = open(path.constData(), O_RDONLY | O_CLOEXEC);  // another user's, or a read-only medium
    if (file < 0) return true;
    while (flock(file, LOCK_EX | LOCK_NB) != 0) {
        if (errno == EINTR) continue;
        const bool taken = errno == EWOULDBLOCK;
        close(file);
        return !taken;
    }
    return true;
#endif
}
