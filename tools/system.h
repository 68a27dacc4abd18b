#pragma once

// What differs from system to system where bytes come in and go out: the three standard streams,
// terminals, the command line, and files that are read. One implementation for each kind of
// system. (How a file is written is in tools/output.h, which has two implementations as well.)

#include <QString>

#include <cstddef>
#include <optional>
#include <string_view>

/// Makes the three standard streams ready, for as long as it lives.
///
/// Unix: if the program was started with one of them closed, the next file that it opens would
/// take the number of that stream, and what is meant for the stream would go into the file. So
/// each closed stream is occupied in such a way that using it fails, as it should. Writing beyond
/// the limit on the size of files fails too, and does not end the program.
///
/// Windows: the streams carry bytes as they are, without carriage returns put in or taken out,
/// and a console shows UTF-8. What the console was set to before comes back in the end.
class StandardStreams {
public:
    StandardStreams();
    // On Windows it has something to do.
    ~StandardStreams(); // NOLINT(performance-trivially-destructible)
    StandardStreams(const StandardStreams &) = delete;
    StandardStreams &operator=(const StandardStreams &) = delete;
};

/// Whether the arguments of main are the bytes that the user gave. On Windows they are not: there
/// the toolkit asks the system for a text, and that one is always well formed.
bool ArgumentsAreBytes();

/// Whether people look at the stream `descriptor` (1 or 2) in a terminal that obeys escape
/// sequences. On Unix that is one whose kind is known by TERM and is not "dumb".
bool IsTerminal(int descriptor);

/// How wide the terminal behind standard error is at this moment; 80 where nobody can tell.
int TerminalColumns();

/// Writes to standard error in one go, since a console that gets half a letter shows none. What
/// cannot be written is lost.
void WriteToStandardError(std::string_view bytes);

/// A file that is being read. All of it tells a failure by errno.
namespace InputFile {

struct Opened {
    int descriptor;
    bool isFolder;
    long long size; ///< 0 for anything but a file on a disk
};

/// Opens `name` for reading, or returns nothing.
std::optional<Opened> Open(const QString &name);

/// Reads up to `most` bytes; 0 at the end, and below 0 when it failed.
long long Read(int descriptor, char *bytes, std::size_t most);

void Close(int descriptor);

} // namespace InputFile
