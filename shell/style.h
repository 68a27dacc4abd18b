#pragma once

// The look of the pages. Dialogs and menus keep the desktop's own.

#include <QFont>
#include <QString>
#include <QStringList>

/// Verdana, or DejaVu Sans, which has its widths. In pixels, because the layout is: the
/// text then fits at every scale of the display.
QFont WindowFont();

/// The style sheet of picMain and all that stands on it.
QString PageStyle();
