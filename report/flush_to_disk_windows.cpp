#include "report/flush_to_disk.h"

#include <io.h>
#include <windows.h>

// Not by _commit of the C library: it says nothing of why it failed.
std::error_code FlushToDisk(int descriptor) {
    if (FlushFileBuffers(reinterpret_cast<HANDLE>(_get_osfhandle(descriptor))) != 0)
        return {};
    switch (GetLastError()) {
    case ERROR_INVALID_FUNCTION:
    case ERROR_NOT_SUPPORTED:
        return {};
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
        return std::make_error_code(std::errc::no_space_on_device);
    case ERROR_ACCESS_DENIED:
        return std::make_error_code(std::errc::permission_denied);
    default:
        return std::make_error_code(std::errc::io_error);
    }
}
