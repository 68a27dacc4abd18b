// Writes each file of a folder into another folder under the same name, by one plain write
// each, and prints how many seconds that took. Reading the files is not counted.

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

int main(int argc, char *argv[]) {
    if (argc != 3) {
        std::fprintf(stderr, "usage: plain_files FROM TO\n");
        return 2;
    }
    const std::filesystem::path folder = argv[2];
    std::vector<std::pair<std::string, std::string>> files;
    for (const auto &entry : std::filesystem::directory_iterator(argv[1])) {
        std::ifstream file(entry.path(), std::ios::binary);
        files.emplace_back((folder / entry.path().filename()).string(),
                           std::string(std::istreambuf_iterator<char>(file), {}));
    }

    const auto start = std::chrono::steady_clock::now();
    for (const auto &[name, bytes] : files) {
        std::FILE *to = std::fopen(name.c_str(), "w");
        if (to == nullptr || std::fwrite(bytes.data(), 1, bytes.size(), to) != bytes.size() ||
            std::fclose(to) != 0)
            return 1;
    }
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
    std::printf("%.6f\n", took.count());
    return 0;
}
