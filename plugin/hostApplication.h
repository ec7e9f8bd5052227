#pragma once

#include <QCoreApplication>

#include "VIApplication.h"

/// The host as the application object answers for it, asked anew at each use; null without an application object or when that one
/// is no host of ours.
inline VIApplication *hostApplication()
{
    return qobject_cast<VIApplication *>(QCoreApplication::instance());
}
