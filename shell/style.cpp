#include "shell/style.h"

#include <utility>

using namespace Qt::StringLiterals;

QFont WindowFont() {
    QFont font;
    font.setFamilies({u"Verdana"_s, u"DejaVu Sans"_s});
    font.setPixelSize(11);
    return font;
}

QString PageStyle() {
    // A control that a style sheet touches no longer inherits its font, so the font is repeated
    // here.
    QString style = uR"(
        #picMain, #picMain * { font-family: "Verdana", "DejaVu Sans"; font-size: 11px; }
        #Picture1 QLabel, #Picture3 QLabel { color: white; background: transparent; }
        #Picture3 QLabel { font-weight: bold; }
        #Picture3 QLabel#lblHelp0, #Picture3 QLabel#lblHelp1, #Picture3 QLabel#lblAbout2 { color: @gold; }

        QGroupBox { color: white; border: 1px solid @haze; border-radius: 3px; margin-top: 7px; }
        QGroupBox::title { subcontrol-origin: margin; left: 8px; padding: 0 3px; color: white;
                           background-color: @violet; }

        QLineEdit, QComboBox { color: white; background-color: @violet;
                               border: 1px solid @mist; border-radius: 2px; padding: 0 4px;
                               selection-background-color: @gold; selection-color: @night; }
        QLineEdit:focus, QComboBox:focus { border: 1px solid @gold; background-color: @shade; }
        QComboBox { combobox-popup: 0; } /* a list of bounded height that scrolls */
        QComboBox::drop-down { border: none; width: 18px; }
        QComboBox::down-arrow { image: url(:/artwork/arrow.svg); width: 9px; height: 6px; }
        QComboBox QAbstractItemView { color: white; background-color: @shade;
                                      border: 1px solid @mist; outline: none;
                                      selection-background-color: @gold; selection-color: @night; }
        QComboBox QAbstractItemView::item { min-height: 18px; padding: 0 2px; color: white; }
        QComboBox QAbstractItemView::item:selected { color: @night; background-color: @gold; }

        #TV { color: white; background-color: @violet; border: 1px solid @violet; outline: none;
              padding: 3px; }
        #TV:focus { border: 1px solid @gold; }
        #TV::item { height: 20px; padding-left: 2px; border: none; color: white; }
        #TV::item:hover { background-color: @glow; }
        #TV::item:selected { background-color: @dusk; color: @paleGold; }
        #TV::item:selected:active { background-color: @gold; color: @night; }
        #TV::branch { background: transparent; }
        #TV::branch:has-children:closed { image: url(:/artwork/branch-closed.svg); }
        #TV::branch:has-children:open { image: url(:/artwork/branch-open.svg); }

        #picMain #RTB { font-size: 12px; color: @night; background-color: @paper; background-clip: padding; border: 1px solid @dusk;
               padding: 4px; selection-background-color: @gold; selection-color: @night; }
        #picMain #RTB:focus { border: 2px solid @gold; padding: 3px; }

        #picMain QScrollBar:vertical { background: @shade; width: 12px; margin: 0; border: none; }
        #picMain #RTB QScrollBar:vertical { background: transparent; }
        #picMain QScrollBar::handle:vertical { background: @mist; min-height: 28px; border-radius: 4px;
                                               margin: 2px; }
        #picMain QScrollBar::handle:vertical:hover { background: @gold; }
        #picMain QScrollBar::add-line, #picMain QScrollBar::sub-line { height: 0; width: 0; }
        #picMain QScrollBar::add-page, #picMain QScrollBar::sub-page { background: none; }
    )"_s;
    // The sheet above names a colour with an at sign in front.
    constexpr std::pair<QLatin1StringView, QColor> colors[] = {
        {"@violet"_L1, Colors::violet},     {"@gold"_L1, Colors::gold},
        {"@paleGold"_L1, Colors::paleGold}, {"@night"_L1, Colors::night},
        {"@dusk"_L1, Colors::dusk},         {"@shade"_L1, Colors::shade},
        {"@mist"_L1, Colors::mist},         {"@haze"_L1, Colors::haze},
        {"@glow"_L1, Colors::glow},         {"@paper"_L1, Colors::paper}};
    for (const auto &[name, color] : colors)
        style.replace(name, color.name());
    return style;
}
