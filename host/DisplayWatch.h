#pragma once

#include <QCoreApplication>
#include <QLocale>

/// Ends the program in good order where no window can be shown. Qt aborts when no platform plug-in finds a display, with a
/// message in its own terms; while this object exists, the program instead prints the remedy in the user's language and exits
/// with ExitSomeFailed. Exists while the QApplication is created, before any other thread runs; one at a time.
class DisplayWatch
{
    Q_DECLARE_TR_FUNCTIONS(DisplayWatch)

public:
    explicit DisplayWatch(const QLocale &locale);
    ~DisplayWatch();
    DisplayWatch(const DisplayWatch &) = delete;
    DisplayWatch &operator=(const DisplayWatch &) = delete;

    /// Ends the program in the same way if the application object, now created, has no screen.
    void checkScreens() const;
};
