#pragma once

// A test with a folder of its own that goes away with it.

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <string_view>

class FolderTest : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(folder_.isValid()); }

    std::string Path(const std::string &name) const {
        return folder_.filePath(QString::fromStdString(name)).toStdString();
    }

    static std::string Read(const std::string &path) {
        std::ifstream file(Native(path), std::ios::binary);
        EXPECT_TRUE(file.is_open()) << path;
        return {std::istreambuf_iterator<char>(file), {}};
    }

    /// A path, which is UTF-8 everywhere in the tests, as the system has it.
    static std::filesystem::path Native(const std::string &path) {
        return std::u8string(path.begin(), path.end());
    }

    /// Makes a file in the folder and returns its path.
    std::string Make(const std::string &name, std::string_view bytes) const {
        const std::string path = Path(name);
        std::ofstream file(Native(path), std::ios::binary);
        file << bytes;
        EXPECT_TRUE(file.flush().good()) << path;
        return path;
    }

    using FileMap = std::map<std::string, std::string>;

    /// The files below `folder` by name, with their bytes. Folders end in a slash.
    static FileMap Files(const std::string &folder) {
        FileMap files;
        for (const auto &entry : std::filesystem::recursive_directory_iterator(Native(folder))) {
            const auto name = entry.path().lexically_relative(Native(folder)).generic_u8string();
            const auto path = entry.path().u8string();
            if (entry.is_directory())
                files[std::string(name.begin(), name.end()) + '/'];
            else
                files[std::string(name.begin(), name.end())] = Read({path.begin(), path.end()});
        }
        return files;
    }

    /// The files of the test's own folder.
    FileMap Files() const { return Files(Path("")); }

private:
    QTemporaryDir folder_;
};
