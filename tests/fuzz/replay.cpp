// fuzz_replay TARGET FILE-OR-FOLDER...
// Gives a target all inputs of its corpus, without libFuzzer. Fails when there is none.

#include "tests/fuzz/fuzz.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace {

std::vector<std::filesystem::path> FilesIn(const std::filesystem::path &place) {
    if (!std::filesystem::is_directory(place))
        return {place};
    std::vector<std::filesystem::path> files;
    for (const auto &entry : std::filesystem::directory_iterator(place))
        files.push_back(entry.path());
    std::ranges::sort(files);
    return files;
}

} // namespace

int main(int argc, char *argv[]) {
    const std::string_view name = argc > 1 ? argv[1] : "";
    const auto target = std::ranges::find(FuzzTarget::All(), name, &FuzzTarget::Name);
    if (target == FuzzTarget::All().end()) {
        std::fprintf(stderr, "there is no target \"%s\"\n", argc > 1 ? argv[1] : "");
        return 2;
    }
    int inputs = 0;
    for (int index = 2; index < argc; ++index) {
        for (const std::filesystem::path &file : FilesIn(argv[index])) {
            std::ifstream stream(file, std::ios::binary);
            const std::string bytes{std::istreambuf_iterator<char>(stream), {}};
            if (!stream.is_open() || stream.bad()) {
                std::fprintf(stderr, "cannot read %s\n", file.c_str());
                return 1;
            }
            // Where it ends the process, this says which input it was.
            std::fprintf(stderr, "%s\n", file.filename().c_str());
            target->Run(bytes);
            ++inputs;
        }
    }
    std::printf("%d inputs\n", inputs);
    return inputs > 0 ? 0 : 1;
}
