#pragma once

// A home of its own for a test program, so that it neither sees nor leaves anything on
// the machine: settings, locks and documents lie below one temporary folder, there is no
// printer, no dialog of the desktop, and the display is an offscreen one.

#include <QTemporaryDir>

class TemporaryHome {
public:
    /// To be made before the application object.
    TemporaryHome();

    /// The folder of everything that the test writes: that of the home that was made last.
    static QString Path();

    /// A path below it.
    static QString PathOf(const QString &name) { return Path() + u'/' + name; }

private:
    QTemporaryDir folder_;
};

/// Runs the Qt Test class `Tests` as a program.
#define ORRAVANE_TEST_PROGRAM(Tests)                                                               \
    int main(int argc, char *argv[]) {                                                             \
        const TemporaryHome home;                                                                  \
        QApplication application(argc, argv);                                                      \
        QApplication::setQuitOnLastWindowClosed(false); /* tests go on when a window is gone */    \
        App::Identify();                                                                           \
        Tests tests;                                                                               \
        return QTest::qExec(&tests, argc, argv);                                                   \
    }
