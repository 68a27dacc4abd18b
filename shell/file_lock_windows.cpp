#include "shell/file_lock.h"

#include <QDir>

#include <array>

#include <windows.h>

namespace {

HANDLE Open(const std::wstring &path, DWORD access, DWORD disposition) {
    // Not inherited by programs that are started; a link is opened and not followed. Others may
    // open the file, so that one who only looks at it does not pass for a second instance.
    return CreateFileW(path.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                       nullptr, disposition, FILE_ATTRIBUTE_NORMAL | FILE_FLAG_OPEN_REPARSE_POINT,
                       nullptr);
}

bool IsRegularFile(HANDLE file) {
    BY_HANDLE_FILE_INFORMATION facts{};
    return GetFileType(file) == FILE_TYPE_DISK && GetFileInformationByHandle(file, &facts) != 0 &&
           (facts.dwFileAttributes &
            (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT | FILE_ATTRIBUTE_DEVICE)) == 0;
}

} // namespace

FileLock::~FileLock() {
    if (handle_ != none)
        CloseHandle(reinterpret_cast<HANDLE>(handle_));
}

FileLock::Outcome FileLock::TryLock(const QString &path, IfMissing ifMissing) {
    const std::wstring name = QDir::toNativeSeparators(path).toStdWString();
    HANDLE file = Open(name, GENERIC_READ | GENERIC_WRITE,
                       ifMissing == IfMissing::Create ? OPEN_ALWAYS : OPEN_EXISTING);
    if (file == INVALID_HANDLE_VALUE) // what has become read-only can still be locked
        file = Open(name, GENERIC_READ, OPEN_EXISTING);
    if (file == INVALID_HANDLE_VALUE)
        return Outcome::Impossible;
    if (!IsRegularFile(file)) {
        CloseHandle(file);
        return Outcome::Impossible;
    }

    OVERLAPPED firstByte{};
    if (LockFileEx(file, LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0,
                   &firstByte) == 0) {
        const DWORD failure = GetLastError();
        CloseHandle(file);
        return failure == ERROR_LOCK_VIOLATION || failure == ERROR_IO_PENDING
                   ? Outcome::HeldByAnother
                   : Outcome::Impossible;
    }
    handle_ = reinterpret_cast<qintptr>(file);
    return Outcome::Taken;
}

QString FileLock::User() {
    std::array<wchar_t, 257> name{}; // with its end, as long as one can be
    auto length = static_cast<DWORD>(name.size());
    return GetUserNameW(name.data(), &length) != 0 ? QString::fromWCharArray(name.data())
                                                   : QString();
}
