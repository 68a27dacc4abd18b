/* Put before a program with LD_PRELOAD: its writes into regular files are cut short, as a disk
 * that is nearly full does it, and a disk that runs full.
 *
 * SHORT_WRITES: each write of more than a byte writes half of it.
 * ROOM_ON_DISK: as many bytes as all files together can take; a write that does not fit writes
 * what fits, and the next one fails. */

#define _GNU_SOURCE
#include <dlfcn.h>
#include <errno.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

static long written;

ssize_t write(int file, const void *bytes, size_t count) {
    static ssize_t (*real)(int, const void *, size_t);
    if (real == NULL)
        real = (ssize_t(*)(int, const void *, size_t))dlsym(RTLD_NEXT, "write");
    struct stat facts;
    if (fstat(file, &facts) != 0 || !S_ISREG(facts.st_mode))
        return real(file, bytes, count);
    if (getenv("SHORT_WRITES") != NULL && count > 1)
        count = (count + 1) / 2;
    const char *room = getenv("ROOM_ON_DISK");
    if (room != NULL) {
        const long left = atol(room) - written;
        if (left <= 0 && count > 0) {
            errno = ENOSPC;
            return -1;
        }
        if ((long)count > left)
            count = (size_t)left;
    }
    const ssize_t done = real(file, bytes, count);
    if (done > 0)
        written += done;
    return done;
}
