#pragma once

#include <QCoreApplication>

#include "VIApplication.h"

/// The host behind the application object, looked up at each use; null if there is no application object or if it does not
/// implement VIApplication.
inline VIApplication *hostApplication()
{
    return qobject_cast<VIApplication *>(QCoreApplication::instance());
}
