#include "report/on_disk.h"

#include <cerrno>

#include <unistd.h>

bool IsOnDisk(int descriptor) {
    int result = 0;
    do
        result = fsync(descriptor);
    while (result != 0 && errno == EINTR);
    return result == 0 || errno == EINVAL || errno == EROFS || errno == ENOSYS;
}
