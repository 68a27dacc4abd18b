#include "shell/style.h"

QFont WindowFont() {
    QFont font;
    font.setFamilies({QStringLiteral("Verdana"), QStringLiteral("DejaVu Sans")});
    font.setPixelSize(11);
    return font;
}

QString PageStyle() {
    // A control that a style sheet touches no longer inherits its font, so it is said here too.
    return QStringLiteral(R"(
        #picMain, #picMain * { font-family: "Verdana", "DejaVu Sans"; font-size: 11px; }
        #Picture1 QLabel, #Picture3 QLabel { color: white; background: transparent; }
        #Picture3 QLabel { font-weight: bold; }
        #Picture3 QLabel#lblHelp0, #Picture3 QLabel#lblHelp1, #Picture3 QLabel#lblAbout2 { color: rgb(255, 199, 6); }

        QGroupBox { color: white; border: 1px solid rgb(146, 131, 166); border-radius: 3px; margin-top: 7px; }
        QGroupBox::title { subcontrol-origin: margin; left: 8px; padding: 0 3px; color: white;
                           background-color: rgb(89, 73, 110); }

        QLineEdit, QComboBox { color: white; background-color: rgb(89, 73, 110);
                               border: 1px solid rgb(176, 163, 193); border-radius: 2px; padding: 0 4px;
                               selection-background-color: rgb(255, 199, 6); selection-color: rgb(42, 28, 62); }
        QLineEdit:focus, QComboBox:focus { border: 1px solid rgb(255, 199, 6); background-color: rgb(72, 57, 92); }
        QComboBox { combobox-popup: 0; } /* a list of bounded height that scrolls */
        QComboBox::drop-down { border: none; width: 18px; }
        QComboBox::down-arrow { image: url(:/artwork/arrow.svg); width: 9px; height: 6px; }
        QComboBox QAbstractItemView { color: white; background-color: rgb(72, 57, 92);
                                      border: 1px solid rgb(176, 163, 193); outline: none;
                                      selection-background-color: rgb(255, 199, 6); selection-color: rgb(42, 28, 62); }
        QComboBox QAbstractItemView::item { min-height: 18px; padding: 0 2px; color: white; }
        QComboBox QAbstractItemView::item:selected { color: rgb(42, 28, 62); background-color: rgb(255, 199, 6); }

        #TV { color: white; background-color: rgb(89, 73, 110); border: 1px solid rgb(89, 73, 110); outline: none;
              padding: 3px; }
        #TV:focus { border: 1px solid rgb(255, 199, 6); }
        #TV::item { height: 20px; padding-left: 2px; border: none; color: white; }
        #TV::item:hover { background-color: rgb(108, 91, 131); }
        #TV::item:selected { background-color: rgb(58, 43, 78); color: rgb(255, 217, 92); }
        #TV::item:selected:active { background-color: rgb(255, 199, 6); color: rgb(42, 28, 62); }
        #TV::branch { background: transparent; }
        #TV::branch:has-children:closed { image: url(:/artwork/branch-closed.svg); }
        #TV::branch:has-children:open { image: url(:/artwork/branch-open.svg); }

        #picMain #RTB { font-size: 12px; color: rgb(42, 28, 62); background-color: rgb(253, 251, 255); background-clip: padding; border: 1px solid rgb(58, 43, 78);
               padding: 4px; selection-background-color: rgb(255, 199, 6); selection-color: rgb(42, 28, 62); }
        #picMain #RTB:focus { border: 2px solid rgb(255, 199, 6); padding: 3px; }

        #picMain QScrollBar:vertical { background: rgb(72, 57, 92); width: 12px; margin: 0; border: none; }
        #picMain #RTB QScrollBar:vertical { background: transparent; }
        #picMain QScrollBar::handle:vertical { background: rgb(176, 163, 193); min-height: 28px; border-radius: 4px;
                                               margin: 2px; }
        #picMain QScrollBar::handle:vertical:hover { background: rgb(255, 199, 6); }
        #picMain QScrollBar::add-line, #picMain QScrollBar::sub-line { height: 0; width: 0; }
        #picMain QScrollBar::add-page, #picMain QScrollBar::sub-page { background: none; }
    )");
}
