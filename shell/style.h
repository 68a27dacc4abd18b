#pragma once

// The look of the pages. Dialogs and menus keep the desktop's own colours.

#include "shell/drawing.h"

#include <QColor>
#include <QFont>
#include <QProxyStyle>
#include <QString>

/// The colours of the pages and of what is drawn on them.
namespace Colors {
inline constexpr QColor violet{89, 73, 110};    ///< the ground of every page
inline constexpr QColor gold{255, 199, 6};      ///< headings, selection, focus
inline constexpr QColor paleGold{255, 217, 92}; ///< quieter gold, on dark grounds
inline constexpr QColor night{42, 28, 62};      ///< text on gold and on paper
inline constexpr QColor dusk{58, 43, 78};       ///< frame of the report
inline constexpr QColor shade{72, 57, 92};      ///< ground of lists and of a focused box
inline constexpr QColor mist{176, 163,
                             193}; ///< frames of boxes, scroll bars, selection in a window behind
inline constexpr QColor haze{146, 131, 166};  ///< frames around groups
inline constexpr QColor glow{108, 91, 131};   ///< ground under the mouse
inline constexpr QColor paper{253, 251, 255}; ///< ground of the report
} // namespace Colors

/// The font of everything: Verdana, or DejaVu Sans, which has its widths. In pixels, because
/// the layout is: the text then fits at every scale of the display.
QFont WindowFont();

/// The style sheet of name boxes, lists and scroll bars, on whatever page they stand.
QString ControlStyle();

/// The style sheet of picMain and all that stands on it.
QString PageStyle();

/// The box of a name box or a date list.
BoxLook InputBox(bool focused);

/// The desktop's own style, but with the signs of the messages drawn by us, and without
/// icons on the buttons of a dialog.
class DesktopStyle : public QProxyStyle {
public:
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returnData) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override;
    QIcon standardIcon(StandardPixmap standardIcon, const QStyleOption *option,
                       const QWidget *widget) const override;
};
