#pragma once

#include <QCoreApplication>
#include <QLocale>

/// The program's end where no window can be shown. Qt aborts the program when no platform plug-in finds a display, and tells why
/// in its own terms; while this object lives, the program says instead what helps, in the user's language, and ends with
/// ExitSomeFailed. Lives while the QApplication is made, before any other thread runs; one at a time.
class DisplayWatch
{
    Q_DECLARE_TR_FUNCTIONS(DisplayWatch)

public:
    explicit DisplayWatch(const QLocale &locale);
    ~DisplayWatch();
    DisplayWatch(const DisplayWatch &) = delete;
    DisplayWatch &operator=(const DisplayWatch &) = delete;

    /// Ends the program so too if the application object, which is there, has got no screen.
    void checkScreens() const;
};
