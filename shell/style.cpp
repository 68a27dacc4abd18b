#include "shell/style.h"

#include "shell/artwork.h"

#include <QIconEngine>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// An icon that is drawn anew for each size and each resolution.
class ArtworkIcon final : public QIconEngine {
public:
    explicit ArtworkIcon(QString name) : name_(std::move(name)) {}

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode, QIcon::State) override {
        DrawArtwork(*painter, name_, rect);
    }
    QPixmap pixmap(const QSize &size, QIcon::Mode, QIcon::State) override {
        return LoadArtwork(name_, size);
    }
    QIconEngine *clone() const override { return new ArtworkIcon(name_); }

private:
    QString name_;
};

/// `sheet` with the colours that it names with an at sign in front.
QString Coloured(QString sheet) {
    constexpr std::pair<QLatin1StringView, QColor> colors[] = {
        {"@violet"_L1, Colors::violet}, {"@gold"_L1, Colors::gold},  {"@night"_L1, Colors::night},
        {"@shade"_L1, Colors::shade},   {"@mist"_L1, Colors::mist},  {"@haze"_L1, Colors::haze},
        {"@glow"_L1, Colors::glow},     {"@paper"_L1, Colors::paper}};
    for (const auto &[name, color] : colors)
        sheet.replace(name, color.name());
    return sheet;
}

} // namespace

QFont WindowFont() {
    QFont font;
    font.setFamilies({u"Verdana"_s, u"DejaVu Sans"_s});
    font.setPixelSize(11);
    return font;
}

QString ControlStyle() {
    return Coloured(uR"(
        /* Frames and their grounds are drawn by the controls; here is the room for them. */
        QLineEdit, QComboBox { color: white; background: transparent;
                               border: 1px solid transparent; padding: 0 4px;
                               selection-background-color: @gold; selection-color: @night; }
        QComboBox { combobox-popup: 0; } /* a list of bounded height that scrolls */
        QComboBox::drop-down { border: none; width: 18px; }
        QComboBox::down-arrow { image: none; }
        QComboBox QAbstractItemView { color: white; background-color: @shade;
                                      border: 1px solid transparent; outline: none; }

        QScrollBar:vertical { background: @shade; width: 12px; margin: 0; border: none; }
        QScrollBar::handle:vertical { background: @mist; min-height: 28px; border-radius: 4px;
                                      margin: 2px; }
        QScrollBar::handle:vertical:hover { background: @gold; }
        QScrollBar::add-line, QScrollBar::sub-line { height: 0; width: 0; }
        QScrollBar::add-page, QScrollBar::sub-page { background: none; }
    )"_s);
}

QString PageStyle() {
    // A control that a style sheet touches no longer inherits its font, so the font is repeated
    // here.
    return Coloured(uR"(
        #picMain, #picMain * { font-family: "Verdana", "DejaVu Sans"; font-size: 11px; }
        #Picture1 QLabel, #Picture3 QLabel { color: white; background: transparent; }
        #Picture3 QLabel { font-weight: bold; }
        #Picture3 QLabel#lblHelp0, #Picture3 QLabel#lblHelp1, #Picture3 QLabel#lblAbout2 { color: @gold; }

        #TV { color: white; background-color: @violet; border: 1px solid transparent;
              outline: none; padding: 3px; }
        #TV::item { height: 20px; padding-left: 2px; border: none; color: white; }
        #TV::item:hover { background-color: @glow; }
        #TV::item:selected { background-color: @mist; color: @night; }
        #TV::item:selected:active { background-color: @gold; color: @night; }
        #TV::branch { background: transparent; }

        #picMain #RTB { font-size: 12px; color: @night; background-color: @paper;
                        border: 1px solid transparent; padding: 4px;
                        selection-background-color: @violet; selection-color: white; }

        #picMain #RTB QScrollBar:vertical { background: transparent; }
        #picMain #RTB QScrollBar::handle:vertical { background: @haze; }
        #picMain #RTB QScrollBar::handle:vertical:hover { background: @violet; }
    )"_s) + ControlStyle();
}

BoxLook InputBox(bool focused) {
    return {.frame = focused ? Colors::gold : Colors::mist,
            .width = focused ? 2.0 : 1.0,
            .ground = focused ? Colors::shade : Colors::violet};
}

int DesktopStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                            QStyleHintReturn *returnData) const {
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons)
        return 0;
    return QProxyStyle::styleHint(hint, option, widget, returnData);
}

int DesktopStyle::pixelMetric(PixelMetric metric, const QStyleOption *option,
                              const QWidget *widget) const {
    if (metric == PM_MessageBoxIconSize)
        return 48; // the size of the drawings, so that every display has a picture that fits
    return QProxyStyle::pixelMetric(metric, option, widget);
}

QIcon DesktopStyle::standardIcon(StandardPixmap standardIcon, const QStyleOption *option,
                                 const QWidget *widget) const {
    switch (standardIcon) {
    case SP_MessageBoxCritical:
        return QIcon(new ArtworkIcon(u"message-critical"_s));
    case SP_MessageBoxWarning:
        return QIcon(new ArtworkIcon(u"message-warning"_s));
    default:
        return QProxyStyle::standardIcon(standardIcon, option, widget);
    }
}
