#include "Session.h"

Session::Session(Series &series, const QString &processName, const QString &folder, QObject *parent)
    : QObject(parent), photographs(series), tag(processName), place(folder)
{
}

Session::~Session() = default;
QString Session::usualFolder()
{
    return {};
}
bool Session::restore()
{
    return false;
}
QList<Session::Recent> Session::recent() const
{
    return {};
}
void Session::reopen(const QString &) {}
void Session::open(const QString &) {}
void Session::startOver() {}
void Session::save() {}
void Session::saveAs(const QString &) {}
void Session::setCurrentPhoto(const QString &) {}
QString Session::whatWouldBeLost()
{
    return {};
}
void Session::close() {}
