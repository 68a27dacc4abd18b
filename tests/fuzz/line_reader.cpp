// The lines of a file, plain or gzip, whatever pieces it comes in. The first byte of an input
// says how: bit 0, it is packed with gzip first, as two members; bit 1, it comes through a socket
// in pieces of the size that the second byte says. 4 to 7 say besides that the byte FF stands for
// 100,000 letters, so that lines can be too long. 8 to 11 stand for what cannot be read: a folder,
// a file that is not there, one that breaks off, a name of any bytes below a file.

#include "tools/line_reader.h"
#include "tests/fuzz/fuzz.h"
#include "tools/refusal.h"

#include <algorithm>
#include <cerrno>
#include <optional>

#include <sys/mman.h>
#include <sys/socket.h>
#include <unistd.h>
#include <zlib.h>

namespace {

using Found = LineReader::Found;

struct Line {
    Found found;
    std::string text;

    friend bool operator==(const Line &, const Line &) = default;
};

/// The lines of a text, cut longhand.
std::vector<Line> LinesOf(std::string_view text) {
    std::vector<Line> lines;
    while (!text.empty()) {
        const std::size_t feed = text.find('\n');
        std::string line(text.substr(0, feed));
        text.remove_prefix(feed == std::string_view::npos ? text.size() : feed + 1);
        const bool tooLong = line.size() > LineReader::longestLine;
        line.resize(std::min(line.size(), LineReader::longestLine));
        if (line.starts_with("\xEF\xBB\xBF"))
            line.erase(0, 3);
        if (line.ends_with('\r'))
            line.pop_back();
        lines.push_back({tooLong ? Found::TooLong : Found::Line, line});
    }
    return lines;
}

std::string Packed(std::string_view text) {
    z_stream stream{};
    Require(deflateInit2(&stream, Z_BEST_SPEED, Z_DEFLATED, 16 + MAX_WBITS, 8,
                         Z_DEFAULT_STRATEGY) == Z_OK,
            "zlib works");
    std::string packed(deflateBound(&stream, text.size()), '\0');
    stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(text.data()));
    stream.avail_in = static_cast<uInt>(text.size());
    stream.next_out = reinterpret_cast<Bytef *>(packed.data());
    stream.avail_out = static_cast<uInt>(packed.size());
    Require(deflate(&stream, Z_FINISH) == Z_STREAM_END, "zlib packs");
    packed.resize(packed.size() - stream.avail_out);
    deflateEnd(&stream);
    return packed;
}

/// What a file of gzip holds, member by member with zeros between them. `whole` is false where
/// it is damaged or cut short; what comes before that is there.
std::string Unpacked(std::string_view packed, bool &whole) {
    std::string text;
    whole = false;
    do {
        z_stream stream{};
        inflateInit2(&stream, 16 + MAX_WBITS);
        stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(packed.data()));
        stream.avail_in = static_cast<uInt>(packed.size());
        int result = Z_OK;
        char buffer[4096];
        do {
            stream.next_out = reinterpret_cast<Bytef *>(buffer);
            stream.avail_out = sizeof buffer;
            result = inflate(&stream, Z_NO_FLUSH);
            text.append(buffer, sizeof buffer - stream.avail_out);
        } while (result == Z_OK && text.size() < 20'000'000);
        packed.remove_prefix(packed.size() - stream.avail_in);
        inflateEnd(&stream);
        if (result != Z_STREAM_END)
            return text;
        packed.remove_prefix(std::min(packed.size(), packed.find_first_not_of('\0')));
    } while (!packed.empty());
    whole = true;
    return text;
}

/// While it lives, standard input has these bytes.
class StandardInput {
public:
    explicit StandardInput(std::string_view bytes, std::optional<std::size_t> piece) {
        if (!piece) {
            const int file = memfd_create("input", MFD_CLOEXEC);
            Require(file >= 0 && write(file, bytes.data(), bytes.size()) ==
                                     static_cast<ssize_t>(bytes.size()),
                    "the file can be made");
            lseek(file, 0, SEEK_SET);
            Take(file);
            return;
        }
        int ends[2];
        Require(socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends) == 0, "sockets work");
        for (std::size_t at = 0; at < bytes.size(); at += *piece) {
            const std::string_view part = bytes.substr(at, *piece);
            Require(send(ends[1], part.data(), part.size(), MSG_DONTWAIT) ==
                        static_cast<ssize_t>(part.size()),
                    "the socket takes all");
        }
        close(ends[1]);
        Take(ends[0]);
    }
    ~StandardInput() {
        dup2(before_, STDIN_FILENO);
        close(before_);
    }
    StandardInput(const StandardInput &) = delete;
    StandardInput &operator=(const StandardInput &) = delete;

private:
    void Take(int file) {
        before_ = dup(STDIN_FILENO);
        dup2(file, STDIN_FILENO);
        close(file);
    }

    int before_ = -1;
};

/// What cannot be read is refused with a message, when it is opened or at its first line.
void CheckUnreadable(unsigned which, std::string_view name) {
    QString file;
    switch (which) {
    case 0:
        file = QStringLiteral("/");
        break;
    case 1:
        file = QStringLiteral("/nonexistent/people");
        break;
    case 2:
        file = QStringLiteral("/proc/self/mem"); // opens, and has nothing at its beginning
        break;
    default:
        file = QStringLiteral("/dev/null/") + QStringView(AnyUnits(name)).toString();
        break;
    }
    try {
        LineReader reader(file);
        std::string line;
        reader.Next(line);
        Require(false, "what cannot be read is refused", name);
    } catch (const Refusal &refusal) {
        Require(refusal.Code() == ExitCode::CannotReadOrWrite &&
                    refusal.Line().startsWith(u"--batch: "),
                "what cannot be read is refused as such", name);
    }
}

void Run(std::string_view bytes) {
    if (bytes.size() < 2)
        return;
    const auto how = static_cast<unsigned char>(bytes[0]);
    const auto size = static_cast<unsigned char>(bytes[1]);
    if (how / 4U == 2U) {
        CheckUnreadable(how % 4U, bytes.substr(2, 200));
        return;
    }
    std::string text(bytes.substr(2, 4096));
    if (how / 4U == 1U) {
        std::string longer;
        for (const char byte : text) // few inputs, since each of them takes long
            if (byte != '\xFF')
                longer += byte;
            else if (longer.size() < 2'100'000)
                longer.append(100'000, 'x');
        text = std::move(longer);
    }
    std::string file = text;
    if ((how & 1U) != 0) {
        const std::size_t cut = text.size() * size / 255;
        file = Packed(std::string_view(text).substr(0, cut)) + std::string(size % 3U, '\0') +
               Packed(std::string_view(text).substr(cut)) + std::string(size % 5U, '\0');
    }
    bool whole = true;
    const std::string content = file.starts_with("\x1F\x8B") ? Unpacked(file, whole) : file;
    if ((how & 1U) != 0)
        Require(whole && content == text, "gzip gives back what was packed");

    std::optional<std::size_t> piece;
    if ((how & 2U) != 0 && file.size() <= 256)
        piece = 1 + size % 16U;
    const StandardInput input(file, piece);
    // A file can also be opened by its name, which tells its size.
    const bool byName = !piece && size % 2U == 1U;
    LineReader reader(byName ? QStringLiteral("/proc/self/fd/0") : QStringLiteral("-"));
    Require(reader.Size() == (byName ? static_cast<long long>(file.size()) : 0),
            "a file has its size", bytes);
    std::vector<Line> lines;
    bool ended = false;
    std::string line;
    try {
        for (;;) {
            const Found found = reader.Next(line);
            if (found == Found::End)
                break;
            lines.push_back({found, line});
        }
        ended = true;
    } catch (const Refusal &refusal) {
        Require(refusal.Code() == ExitCode::CannotReadOrWrite, "a damaged input is refused");
    }
    Require(ended == whole, "an input is read to its end where it has one", bytes);
    std::vector<Line> expected = LinesOf(content);
    if (!ended) { // the line in which it breaks off is no line, and those before may be few
        Require(lines.size() <= expected.size(), "no line is made up", bytes);
        expected.resize(lines.size());
    }
    Require(lines == expected, "the lines are those of the text", bytes);
    if (ended) {
        Require(reader.Next(line) == Found::End, "behind the end is the end", bytes);
        Require(reader.Passed() == static_cast<long long>(file.size()), "all bytes are passed",
                bytes);
    }
}

const FuzzTarget target("line_reader", Run);

} // namespace
