#pragma once

// The lines of an input, one by one: a file or standard input, plain or gzip. Memory does not
// grow with the input nor with the length of a line.

#include <QString>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

class LineReader {
public:
    /// A longer line is not kept in memory.
    static constexpr std::size_t longestLine = 1'000'000; // bytes

    enum class Found {
        Line,
        TooLong, ///< of the line only the beginning is there, longestLine bytes
        End
    };

    /// Opens `file`; "-" is standard input. Whether it is gzip shows in its first bytes. Throws
    /// Refusal with ExitCode::CannotReadOrWrite when it cannot be opened.
    explicit LineReader(const QString &file);
    ~LineReader();
    LineReader(const LineReader &) = delete;
    LineReader &operator=(const LineReader &) = delete;

    /// Puts the next line into `line`, without its line feed, without a carriage return before
    /// that, and without a byte order mark in front, which also stands within an input that
    /// was put together from several. Waits for no more than the line. Throws Refusal with
    /// ExitCode::CannotReadOrWrite when the input breaks off or is damaged.
    Found Next(std::string &line);

    /// How many bytes the file has on the disk; 0 where that is not known.
    long long Size() const { return size_; }

    /// How many of these are behind the last line.
    long long Passed() const;

private:
    struct Gzip;

    /// Fills the buffer with the bytes that come next. Returns false at the end.
    bool Fill();
    bool FillFromGzip();
    std::size_t Read(char *bytes, std::size_t most);
    [[noreturn]] void Fail(const QString &what) const;

    QString name_; ///< in messages
    int descriptor_ = -1;
    bool owned_ = false; ///< whether the descriptor is closed in the end
    long long size_ = 0;
    long long passed_ = 0;
    bool begun_ = false;
    std::vector<char> buffer_;
    std::string_view unread_; ///< within the buffer
    std::unique_ptr<Gzip> gzip_;
};
