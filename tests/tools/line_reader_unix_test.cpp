// Named pipes, which only Unix has among its files.

#include "tests/support/becomes.h"
#include "tests/tools/folder_test.h"
#include "tools/line_reader.h"

#include <gtest/gtest.h>

#include <thread>

#include <fcntl.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <zlib.h>

namespace {

using LineReaderOnUnix = FolderTest;

// A pipe may hand out as little as a byte at a time, and the mark of gzip has two.
TEST_F(LineReaderOnUnix, ReadsWhatAPipeHandsOut) {
    ASSERT_EQ(mkfifo(Path("pipe").c_str(), 0600), 0);
    const std::string packed = Path("packed");
    const gzFile file = gzopen(packed.c_str(), "wb");
    gzwrite(file, "a\nbc\n", 5);
    gzclose(file);
    for (const std::string &bytes : {std::string("a\nbc\n"), Read(packed)}) {
        std::thread writer([&] {
            const int pipe = open(Path("pipe").c_str(), O_WRONLY);
            for (const char byte : bytes) {
                EXPECT_EQ(write(pipe, &byte, 1), 1);
                int waiting = 1; // bytes that nobody has read yet
                EXPECT_TRUE(
                    Becomes([&] { return ioctl(pipe, FIONREAD, &waiting) == 0 && waiting == 0; }));
            }
            close(pipe);
        });
        LineReader reader(QString::fromStdString(Path("pipe")));
        std::string line;
        EXPECT_EQ(reader.Next(line), LineReader::Found::Line);
        EXPECT_EQ(line, "a");
        EXPECT_EQ(reader.Next(line), LineReader::Found::Line);
        EXPECT_EQ(line, "bc");
        EXPECT_EQ(reader.Next(line), LineReader::Found::End);
        EXPECT_EQ(reader.Size(), 0);
        writer.join();
    }
}

} // namespace
