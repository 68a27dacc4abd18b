#include "tools/line_reader.h"

#include "tools/refusal.h"
#include "tools/system.h"
#include "tools/text.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

#include <zlib.h>

using namespace Qt::StringLiterals;

namespace {

constexpr std::size_t bufferSize = 65'536;
constexpr std::string_view gzipMagic = "\x1F\x8B";
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

QString Reason(int error) { return QString::fromLocal8Bit(std::strerror(error)); }

} // namespace

/// What is read from a file that is gzip: one member behind another.
struct LineReader::Gzip {
    Gzip() { inflateInit2(&stream, 16 + MAX_WBITS); } // 16: gzip, and nothing else
    ~Gzip() { inflateEnd(&stream); }
    Gzip(const Gzip &) = delete;
    Gzip &operator=(const Gzip &) = delete;

    z_stream stream{};
    std::vector<char> packed = std::vector<char>(bufferSize);
    bool betweenMembers = false;
    long long read = 0; ///< bytes of the file
};

LineReader::LineReader(const QString &file) : buffer_(bufferSize) {
    if (file == "-"_L1) {
        name_ = u"standard input"_s;
        descriptor_ = 0;
        return;
    }
    name_ = u"the file \"%1\""_s.arg(Excerpt(file));
    const auto opened = InputFile::Open(file);
    if (!opened)
        Fail(u"%1 cannot be read (%2)"_s.arg(name_, Reason(errno)));
    if (opened->isFolder) {
        InputFile::Close(opened->descriptor);
        Fail(u"%1 cannot be read (%2)"_s.arg(name_, Reason(EISDIR)));
    }
    descriptor_ = opened->descriptor;
    owned_ = true;
    size_ = opened->size;
}

LineReader::~LineReader() {
    if (owned_)
        InputFile::Close(descriptor_);
}

LineReader::Found LineReader::Next(std::string &line) {
    line.clear();
    bool any = false;
    bool whole = true;
    for (bool ended = false; !ended && (!unread_.empty() || Fill());) {
        any = true;
        const std::size_t feed = unread_.find('\n');
        ended = feed != std::string_view::npos;
        const std::string_view piece = unread_.substr(0, feed);
        const std::size_t room = longestLine - line.size();
        whole = whole && piece.size() <= room;
        line.append(piece.substr(0, room));
        const std::size_t taken = piece.size() + (ended ? 1 : 0);
        unread_.remove_prefix(taken);
        passed_ += static_cast<long long>(taken);
    }
    if (!any)
        return Found::End;
    if (line.starts_with(byteOrderMark))
        line.erase(0, byteOrderMark.size());
    if (line.ends_with('\r'))
        line.pop_back();
    return whole ? Found::Line : Found::TooLong;
}

long long LineReader::Passed() const {
    return gzip_ ? gzip_->read - static_cast<long long>(gzip_->stream.avail_in) : passed_;
}

bool LineReader::Fill() {
    if (gzip_)
        return FillFromGzip();
    std::size_t count = Read(buffer_.data(), buffer_.size());
    if (!begun_) {
        begun_ = true;
        if (count == 1 && buffer_.front() == gzipMagic.front())
            count += Read(buffer_.data() + 1, buffer_.size() - 1);
        if (std::string_view(buffer_.data(), count).starts_with(gzipMagic)) {
            gzip_ = std::make_unique<Gzip>();
            gzip_->packed.swap(buffer_);
            gzip_->stream.next_in = reinterpret_cast<Bytef *>(gzip_->packed.data());
            gzip_->stream.avail_in = static_cast<uInt>(count);
            gzip_->read = static_cast<long long>(count);
            return FillFromGzip();
        }
    }
    unread_ = {buffer_.data(), count};
    return count != 0;
}

bool LineReader::FillFromGzip() {
    z_stream &stream = gzip_->stream;
    std::size_t count = 0;
    while (count == 0) {
        if (stream.avail_in == 0) {
            const std::size_t packed = Read(gzip_->packed.data(), gzip_->packed.size());
            gzip_->read += static_cast<long long>(packed);
            stream.next_in = reinterpret_cast<Bytef *>(gzip_->packed.data());
            stream.avail_in = static_cast<uInt>(packed);
            if (packed == 0 && gzip_->betweenMembers)
                return false;
            if (packed == 0)
                Fail(u"%1 is gzip and ends before its end"_s.arg(name_));
        }
        if (gzip_->betweenMembers) {
            if (*stream.next_in == 0) { // zeros that fill up a block, as on a tape
                ++stream.next_in;
                --stream.avail_in;
                continue;
            }
            inflateReset(&stream);
            gzip_->betweenMembers = false;
        }
        stream.next_out = reinterpret_cast<Bytef *>(buffer_.data());
        stream.avail_out = static_cast<uInt>(buffer_.size());
        const int result = inflate(&stream, Z_NO_FLUSH);
        if (result == Z_STREAM_END)
            gzip_->betweenMembers = true;
        else if (result != Z_OK && result != Z_BUF_ERROR)
            Fail(u"%1 is gzip and damaged (%2)"_s.arg(
                name_, stream.msg != nullptr ? QString::fromUtf8(stream.msg) : u"zlib"_s));
        count = buffer_.size() - stream.avail_out;
    }
    unread_ = {buffer_.data(), count};
    return true;
}

std::size_t LineReader::Read(char *bytes, std::size_t most) {
    const long long count = InputFile::Read(descriptor_, bytes, most);
    if (count < 0) // broken off, which is not the same as having come to its end
        Fail(u"reading %1 stopped before its end (%2)"_s.arg(name_, Reason(errno)));
    return static_cast<std::size_t>(count);
}

void LineReader::Fail(const QString &what) const {
    throw Refusal(u"--batch: "_s + what, ExitCode::CannotReadOrWrite);
}
