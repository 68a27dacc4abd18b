#pragma once

// Where everything in the window stands: one table in twips, the unit that the layout was
// drawn in, and the one function that turns twips into pixels. Places are relative to the
// control's container.

#include <QRect>
#include <QWidget>

#include <array>
#include <string_view>

struct ControlPlace {
    const char *name;
    int left, top, width, height;
};

inline constexpr std::array controlPlaces{
    ControlPlace{"picMain", 0, 0, 9390, 6600},
    ControlPlace{"Picture1", 4730, 840, 4450, 5200},
    ControlPlace{"Picture2", 4730, 840, 4450, 5200},
    ControlPlace{"Picture3", 4730, 840, 4450, 5200},

    // Below the bottom edge of the client area, where the mouse never reaches them.
    ControlPlace{"cmdSave", 1290, 7440, 1035, 375},
    ControlPlace{"cmdPrint", 120, 7440, 1035, 375},
    ControlPlace{"cmdNext", 120, 6840, 1005, 435},

    ControlPlace{"picExit", 8490, 100, 660, 585},
    ControlPlace{"picHelp", 7680, 100, 660, 585},
    ControlPlace{"TV", 200, 840, 4450, 5200},
    ControlPlace{"lblHyperlink", 6600, 6195, 2535, 255},

    ControlPlace{"picProceed", 3075, 4680, 1260, 390},
    ControlPlace{"Frame1", 120, 120, 4215, 885},
    ControlPlace{"Label2", 120, 240, 3945, 645},
    ControlPlace{"fraName", 120, 1020, 4215, 1725},
    ControlPlace{"Label1", 90, 405, 1080, 195},
    ControlPlace{"txtFirstName", 1440, 360, 2500, 285},
    ControlPlace{"Label4", 150, 885, 1095, 195},
    ControlPlace{"txtMiddleName", 1440, 840, 2500, 285},
    ControlPlace{"Label5", 120, 1365, 1065, 195},
    ControlPlace{"txtLastName", 1440, 1320, 2500, 285},
    ControlPlace{"fraBirthDay", 120, 2760, 4215, 1725},
    ControlPlace{"Label6", 210, 300, 510, 195},
    ControlPlace{"cboMonth", 1440, 240, 1455, 315},
    ControlPlace{"Label3", 210, 780, 405, 195},
    ControlPlace{"cboDate", 1440, 720, 855, 315},
    ControlPlace{"Label7", 210, 1260, 390, 195},
    ControlPlace{"cboYear", 1440, 1200, 975, 315},

    ControlPlace{"RTB", 120, 120, 4215, 4455},
    ControlPlace{"picPrint", 1800, 4680, 1260, 390},
    ControlPlace{"picSave", 3075, 4680, 1260, 390},

    ControlPlace{"lblHelp0", 240, 120, 1110, 195},
    ControlPlace{"Label15", 240, 360, 3975, 615},
    ControlPlace{"lblHelp1", 240, 1320, 1395, 195},
    ControlPlace{"Label16", 240, 1560, 3975, 975},
    ControlPlace{"lblAbout2", 240, 3000, 1500, 195},
    ControlPlace{"Label17", 240, 3240, 3975, 1815},
};

/// Twips to logical pixels, rounded: 15 to the pixel at 96 dpi.
constexpr int PixelsFromTwips(int twips) { return (twips + 7) / 15; }

/// Name and place of one control, in logical pixels of its container.
struct PlacedName {
    const char *name;
    QRect place;
};

/// The control of this name in the table. A name that is not there does not compile.
consteval PlacedName At(std::string_view name) {
    for (const ControlPlace &place : controlPlaces)
        if (name == place.name)
            return {place.name,
                    {PixelsFromTwips(place.left), PixelsFromTwips(place.top),
                     PixelsFromTwips(place.width), PixelsFromTwips(place.height)}};
    throw "no such control";
}

/// Gives `control` its name and its place.
template <typename Control> Control *Placed(Control *control, const PlacedName &at) {
    control->setObjectName(QLatin1StringView(at.name));
    control->setGeometry(at.place);
    return control;
}
