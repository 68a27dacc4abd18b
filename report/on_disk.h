#pragma once

// Whether a file has come to the disk. One implementation for each kind of system.

/// Waits until what was written to the open file `descriptor` is on the disk. Returns false when
/// the system says that it will not come there, such as a disk that is full, or broken, and has
/// told so only now. A file system that cannot tell counts as one that has done it.
bool IsOnDisk(int descriptor);
