#include "report/on_disk.h"

#include <cerrno>

#include <io.h>

bool IsOnDisk(int descriptor) { return _commit(descriptor) == 0 || errno == EBADF; }
