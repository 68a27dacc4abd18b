// peak_memory RESULT PROGRAM [ARGUMENT]... runs the program and writes two numbers into the
// file RESULT: the size in KiB that a child of this process starts with, and the greatest
// resident size of the program. A child counts its parent's size until it becomes the
// program, so a parent as small as this one has to start it.

#include <csignal>
#include <cstdio>

#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

/// Runs the program that `argv` begins with, or nothing for a null pointer.
bool Run(char *argv[], int &status, rusage &usage) {
    const pid_t child = fork();
    if (child == 0) {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (argv == nullptr)
            _exit(0);
        execv(argv[0], argv);
        _exit(127);
    }
    return child > 0 && wait4(child, &status, 0, &usage) == child;
}

} // namespace

int main(int argc, char *argv[]) {
    int status = 0;
    rusage floor{};
    rusage program{};
    if (argc < 3 || !Run(nullptr, status, floor) || !Run(argv + 2, status, program))
        return 125;
    std::FILE *result = std::fopen(argv[1], "w");
    if (result == nullptr)
        return 125;
    std::fprintf(result, "%ld %ld\n", floor.ru_maxrss, program.ru_maxrss);
    std::fclose(result);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 126;
}
