#include "tools/output.h"

#include "report/flush_to_disk.h"

#include <QFileInfo>
#include <QRandomGenerator>

#include <algorithm>
#include <cerrno>
#include <limits>

#include <fcntl.h>
#include <io.h>
#include <windows.h>

namespace {

/// What the last failed call of the system would have left in errno.
int ErrorNow() {
    switch (GetLastError()) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_NAME:
    case ERROR_BAD_NETPATH:
        return ENOENT;
    case ERROR_ACCESS_DENIED:
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_WRITE_PROTECT:
        return EACCES;
    case ERROR_FILE_EXISTS:
    case ERROR_ALREADY_EXISTS:
        return EEXIST;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
        return ENOSPC;
    case ERROR_FILENAME_EXCED_RANGE:
        return ENAMETOOLONG;
    default:
        return EIO;
    }
}

HANDLE HandleOf(int descriptor) { return reinterpret_cast<HANDLE>(_get_osfhandle(descriptor)); }

/// The system removes a file that is doomed when it is closed, however the process ends.
bool SetDoomed(int descriptor, bool doomed) {
    FILE_DISPOSITION_INFO facts{};
    facts.DeleteFile = doomed;
    return SetFileInformationByHandle(HandleOf(descriptor), FileDispositionInfo, &facts,
                                      sizeof facts) != 0;
}

/// Whether the system takes `name` for a device such as NUL, or a named pipe.
bool IsDevice(const std::wstring &name) {
    constexpr DWORD longest = 32'768;
    std::wstring whole(longest, L'\0');
    whole.resize(GetFullPathNameW(name.c_str(), longest, whole.data(), nullptr));
    return whole.starts_with(L"\\\\.\\");
}

/// `name` with all links followed, also where the last one leads to nothing yet.
std::wstring BehindLinks(const std::wstring &name) {
    constexpr int most = 40;
    QFileInfo file(QString::fromStdWString(name));
    for (int followed = 0; followed < most && file.isSymbolicLink(); ++followed)
        file.setFile(file.symLinkTarget());
    return file.filePath().toStdWString();
}

} // namespace

Output::Name Output::NameOf(const QString &path) { return path.toStdWString(); }

void Output::OpenNamed(const Name &name) {
    if (name.empty() || name == L"-") {
        descriptor_ = 1;
        if (HandleOf(descriptor_) == INVALID_HANDLE_VALUE)
            Fail(EBADF);
    } else if (IsDevice(name)) {
        descriptor_ = _wopen(name.c_str(), _O_WRONLY | _O_BINARY | _O_NOINHERIT);
        if (descriptor_ < 0)
            Fail(errno);
        owned_ = true;
    } else {
        OpenBeside(BehindLinks(name));
    }
}

Output::~Output() {
    if (owned_ && descriptor_ >= 0)
        _close(descriptor_); // which removes an unfinished file
}

void Output::OpenBeside(Name place) {
    const DWORD present = GetFileAttributesW(place.c_str());
    if (present != INVALID_FILE_ATTRIBUTES && (present & FILE_ATTRIBUTE_DIRECTORY) != 0)
        Fail(EISDIR);

    const auto folder = place.find_last_of(L"/\\:");
    const Name start = folder == Name::npos ? L"" : place.substr(0, folder + 1);
    HANDLE file = INVALID_HANDLE_VALUE;
    for (int tries = 0; file == INVALID_HANDLE_VALUE; ++tries) {
        const QString mark = QString::number(QRandomGenerator::global()->generate(), 36);
        temporary_ = start + L".orravane-" + mark.toStdWString();
        file = CreateFileW(temporary_.c_str(), GENERIC_WRITE | DELETE, FILE_SHARE_READ, nullptr,
                           CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
        if (file == INVALID_HANDLE_VALUE && (GetLastError() != ERROR_FILE_EXISTS || tries == 100))
            Fail(ErrorNow());
    }
    descriptor_ = _open_osfhandle(reinterpret_cast<intptr_t>(file), _O_BINARY | _O_NOINHERIT);
    owned_ = true;
    place_ = std::move(place);
    if (!SetDoomed(descriptor_, true))
        Fail(ErrorNow());
}

bool Output::IsTerminal() const {
    DWORD mode = 0; // _isatty says yes to NUL as well
    return GetConsoleMode(HandleOf(descriptor_), &mode) != 0;
}

void Output::Write(std::string_view bytes) {
    constexpr std::size_t most = std::numeric_limits<int>::max();
    while (!bytes.empty()) {
        const int written =
            _write(descriptor_, bytes.data(), static_cast<unsigned>(std::min(bytes.size(), most)));
        if (written < 0)
            Fail(errno);
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
}

void Output::Finish() {
    if (place_.empty())
        return;
    if (kind_ == Kind::Named)
        if (const std::error_code error = FlushToDisk(descriptor_))
            Fail(error.value());
    if (!SetDoomed(descriptor_, false))
        Fail(ErrorNow());
    owned_ = false;
    if (_close(descriptor_) != 0)
        Fail(errno);
    PutInPlace();
    place_.clear();
}

void Output::PutInPlace() {
    const DWORD how = kind_ == Kind::NewInFolder ? 0 : MOVEFILE_REPLACE_EXISTING;
    if (MoveFileExW(temporary_.c_str(), place_.c_str(), how) != 0)
        return;
    const int error = ErrorNow();
    DeleteFileW(temporary_.c_str());
    if (kind_ != Kind::NewInFolder || error != EEXIST)
        Fail(error);
}

void Output::LeaveUnfinishedToParent() {}
