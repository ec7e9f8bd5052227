#include "VTempFileHandle.h"

#include <QFile>

#include "VTempManager.h"

VTempFileHandle::~VTempFileHandle()
{
    if (path.isEmpty())
        return;
    initTempManager(nullptr);
    QFile::remove(path);
}
