#include "inWindow.h"

#include <QApplication>

bool inWindow()
{
    return qobject_cast<QApplication *>(QCoreApplication::instance()) != nullptr;
}
