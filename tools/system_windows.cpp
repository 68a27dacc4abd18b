#include "tools/system.h"

#include <array>
#include <cerrno>

#include <fcntl.h>
#include <io.h>
#include <windows.h>

namespace {

/// What the console was set to before this program.
struct ConsoleBefore {
    UINT codePage = 0; ///< 0 where there is no console
    DWORD modeOfErrors = 0;
    bool modeChanged = false;
} before;

HANDLE StreamHandle(int descriptor) {
    return GetStdHandle(descriptor == 1 ? STD_OUTPUT_HANDLE : STD_ERROR_HANDLE);
}

} // namespace

StandardStreams::StandardStreams() {
    for (const int stream : {0, 1, 2})
        _setmode(stream, _O_BINARY);

    before = {};
    before.codePage = GetConsoleOutputCP();
    if (before.codePage != 0)
        SetConsoleOutputCP(CP_UTF8);
    // Older consoles do not know escape sequences, and refuse.
    const HANDLE errors = StreamHandle(2);
    if (GetConsoleMode(errors, &before.modeOfErrors) != 0)
        before.modeChanged = SetConsoleMode(errors, before.modeOfErrors | ENABLE_PROCESSED_OUTPUT |
                                                        ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
}

StandardStreams::~StandardStreams() {
    if (before.modeChanged)
        SetConsoleMode(StreamHandle(2), before.modeOfErrors);
    if (before.codePage != 0)
        SetConsoleOutputCP(before.codePage);
}

bool ArgumentsAreBytes() { return false; }

bool IsTerminal(int descriptor) {
    // _isatty says yes to NUL as well.
    DWORD mode = 0;
    if (GetConsoleMode(StreamHandle(descriptor), &mode) == 0)
        return false;
    return descriptor == 1 || (mode & ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
}

int TerminalColumns() {
    CONSOLE_SCREEN_BUFFER_INFO facts{};
    if (GetConsoleScreenBufferInfo(StreamHandle(2), &facts) == 0)
        return 80;
    return facts.srWindow.Right - facts.srWindow.Left + 1;
}

void WriteToStandardError(std::string_view bytes) {
    _write(2, bytes.data(), static_cast<unsigned>(bytes.size()));
}

std::optional<InputFile::Opened> InputFile::Open(const QString &name) {
    const std::wstring path = name.toStdWString();
    const DWORD facts = GetFileAttributesW(path.c_str());
    if (facts != INVALID_FILE_ATTRIBUTES && (facts & FILE_ATTRIBUTE_DIRECTORY) != 0)
        return Opened{-1, true, 0}; // the system does not open it
    const int descriptor = _wopen(path.c_str(), _O_RDONLY | _O_BINARY | _O_NOINHERIT);
    if (descriptor < 0)
        return std::nullopt;
    const auto handle = reinterpret_cast<HANDLE>(_get_osfhandle(descriptor));
    LARGE_INTEGER size{};
    if (GetFileType(handle) != FILE_TYPE_DISK || GetFileSizeEx(handle, &size) == 0)
        size.QuadPart = 0;
    return Opened{descriptor, false, size.QuadPart};
}

long long InputFile::Read(int descriptor, char *bytes, std::size_t most) {
    return _read(descriptor, bytes, static_cast<unsigned>(most));
}

void InputFile::Close(int descriptor) {
    if (descriptor >= 0)
        _close(descriptor);
}
