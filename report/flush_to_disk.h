#pragma once

// Whether a file has come to the disk. One implementation for each kind of system. Needs the
// standard library alone.

#include <system_error>

/// Waits until what was written to the open file `descriptor` is on the disk. Returns the error
/// where the system says that it will not come there, such as of a disk that is full, or broken,
/// and has told so only now. A file system that cannot tell counts as one that has done it.
std::error_code FlushToDisk(int descriptor);
