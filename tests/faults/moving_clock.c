/* Put before a program with LD_PRELOAD: its clock of date and time is wrong by as many seconds as
 * the file MOVING_CLOCK says, at each look anew, so that it can jump while the program runs. What
 * counts the time that has passed, as timers do, goes on undisturbed, and so do the times of files.
 *
 * The file has two whole numbers of 64 bits: the seconds, and how often the clock was looked at,
 * which is counted here. */

#define _GNU_SOURCE
#include <fcntl.h>
#include <stdint.h>
#include <stdlib.h>
#include <sys/mman.h>
#include <sys/syscall.h>
#include <sys/time.h>
#include <time.h>
#include <unistd.h>

struct moving_clock {
    volatile int64_t seconds;
    int64_t looks;
};

static struct moving_clock *moving(void) {
    static struct moving_clock *clock;
    static struct moving_clock none;
    if (clock == NULL) {
        const char *name = getenv("MOVING_CLOCK");
        const int file = name != NULL ? open(name, O_RDWR | O_CLOEXEC) : -1;
        void *shared = file >= 0 ? mmap(NULL, sizeof *clock, PROT_READ | PROT_WRITE, MAP_SHARED, file, 0)
                                 : MAP_FAILED;
        if (file >= 0)
            close(file);
        clock = shared != MAP_FAILED ? shared : &none;
    }
    return clock;
}

static int64_t look(void) {
    __atomic_add_fetch(&moving()->looks, 1, __ATOMIC_RELAXED);
    return moving()->seconds;
}

int clock_gettime(clockid_t which, struct timespec *now) {
    const int result = (int)syscall(SYS_clock_gettime, which, now);
    if (result == 0 && (which == CLOCK_REALTIME || which == CLOCK_REALTIME_COARSE))
        now->tv_sec += look();
    return result;
}

int gettimeofday(struct timeval *restrict now, void *restrict zone) {
    (void)zone;
    struct timespec exact;
    clock_gettime(CLOCK_REALTIME, &exact);
    now->tv_sec = exact.tv_sec;
    now->tv_usec = exact.tv_nsec / 1000;
    return 0;
}

time_t time(time_t *now) {
    struct timespec exact;
    clock_gettime(CLOCK_REALTIME, &exact);
    if (now != NULL)
        *now = exact.tv_sec;
    return exact.tv_sec;
}
