#include "shell/image_list.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array<const char *, ImageList::count> keys{
    "exit",        "exit-hyper", "help",          "help-hyper", "print",
    "print-hyper", "proceed",    "proceed-hyper", "save",       "save-hyper"};

} // namespace

QString ImageList::Key(int position) {
    return QLatin1StringView(keys.at(static_cast<std::size_t>(position) - 1));
}
