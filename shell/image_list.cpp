#include "shell/image_list.h"

#include <QPainter>
#include <QSvgRenderer>

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

QPixmap RenderArtwork(const QString &name, QSize size, const QRegion &inSight) {
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    if (!inSight.isEmpty())
        painter.setClipRegion(inSight);
    QSvgRenderer(u":/artwork/%1.svg"_s.arg(name)).render(&painter, QRectF(QPointF(), size));
    return picture;
}
