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
        std::ifstream file(path, std::ios::binary);
        EXPECT_TRUE(file.is_open()) << path;
        return {std::istreambuf_iterator<char>(file), {}};
    }

    /// Makes a file in the folder and returns its path.
    std::string Make(const std::string &name, std::string_view bytes) const {
        const std::string path = Path(name);
        std::ofstream file(path, std::ios::binary);
        file << bytes;
        EXPECT_TRUE(file.flush().good()) << path;
        return path;
    }

    using FileMap = std::map<std::string, std::string>;

    /// The files below `folder` by name, with their bytes. Folders end in a slash.
    static FileMap Files(const std::string &folder) {
        FileMap files;
        for (const auto &entry : std::filesystem::recursive_directory_iterator(folder)) {
            const std::string name =
                std::filesystem::relative(entry.path(), folder).generic_string();
            if (entry.is_directory())
                files[name + '/'];
            else
                files[name] = Read(entry.path());
        }
        return files;
    }

    /// The files of the test's own folder.
    FileMap Files() const { return Files(Path("")); }

private:
    QTemporaryDir folder_;
};
