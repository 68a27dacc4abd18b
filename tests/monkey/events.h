#pragma once

// The random events of a session. An event is nothing but its kind and some random numbers; what
// exactly they stand for, such as the node that is clicked, is settled when it happens. So any
// selection of the events of a session can be played again, which is how the shortest list that
// shows a failure is found.

#include <QString>

#include <array>

struct Event {
    enum class Kind {
        Move,          ///< the mouse, to any point in or beside the window
        MoveOnto,      ///< the mouse, onto a control or its edge
        Press,         ///< a button of the mouse, where the mouse is
        Release,       ///< the button that is held
        ClickAnywhere, ///< a click at any point of the window
        ClickOn,       ///< a click on a control
        DoubleClick,   ///< on a control or a node
        ClickNode,     ///< a click on a node of the tree
        ClickBranch,   ///< a click on the triangle of a branch
        Wheel,         ///< where the mouse is
        Type,          ///< some characters, wherever the focus is
        Key,           ///< a key that is no character
        Letter,        ///< Alt and a letter
        Edit,          ///< Ctrl and a letter
        EnterName,     ///< a name in a box, in place of what it holds
        PickDate,      ///< an entry of one of the lists
        Compose,       ///< text by way of an input method
        CopyInOther,   ///< another program puts something on the clipboard
        Font,          ///< the desktop has another font
        Theme,         ///< the desktop has other colours
        OtherWindow,   ///< another window becomes the active one, or this one again
        Clock,         ///< the clock goes on, or back
        Close,         ///< the window is closed by its frame
        Wait,          ///< whatever is waiting to be done is done
        ProceedAgain,  ///< the input page is opened and Proceed clicked
    };

    int index; ///< within its session
    Kind kind;
    std::array<quint32, 4> random;

    QString Describe() const;
};

/// The event at `index` of the session `seed`. With `clicksOnly`, one of those that click.
Event EventAt(quint32 seed, int index, bool clicksOnly);
