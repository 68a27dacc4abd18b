// Writes the lines of a file to another one by plain file writes, each on its way before
// the next, and prints how many seconds the writes took. Reading the input is not counted.

#include <chrono>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

int main(int argc, char *argv[]) {
    if (argc != 3) {
        std::fprintf(stderr, "usage: plain_writes FROM TO\n");
        return 2;
    }
    std::vector<std::string> lines;
    std::ifstream from(argv[1]);
    for (std::string line; std::getline(from, line);)
        lines.push_back(line + '\n');

    const auto start = std::chrono::steady_clock::now();
    std::FILE *to = std::fopen(argv[2], "w");
    if (to == nullptr)
        return 1;
    for (const std::string &line : lines)
        if (std::fwrite(line.data(), 1, line.size(), to) != line.size() || std::fflush(to) != 0)
            return 1;
    std::fclose(to);
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
    std::printf("%.6f\n", took.count());
    return 0;
}
