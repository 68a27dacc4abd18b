#include "report/flush_to_disk.h"

#include <cerrno>

#include <unistd.h>

std::error_code FlushToDisk(int descriptor) {
    int result = 0;
    do
        result = fsync(descriptor);
    while (result != 0 && errno == EINTR);
    if (result == 0 || errno == EINVAL || errno == EROFS || errno == ENOSYS)
        return {};
    return {errno, std::generic_category()};
}
