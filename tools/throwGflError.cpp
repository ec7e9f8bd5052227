#include "throwGflError.h"

#include <QCoreApplication>
#include <QFileInfo>

#include "VException.h"
#include "gfl.h"

namespace {

QString nameOf(int gflCode)
{
    switch (gflCode) {
    case GFL_ERROR_FILE_OPEN:
        return QStringLiteral("GFL_ERROR_FILE_OPEN");
    case GFL_ERROR_FILE_READ:
        return QStringLiteral("GFL_ERROR_FILE_READ");
    case GFL_ERROR_FILE_CREATE:
        return QStringLiteral("GFL_ERROR_FILE_CREATE");
    case GFL_ERROR_FILE_WRITE:
        return QStringLiteral("GFL_ERROR_FILE_WRITE");
    case GFL_ERROR_NO_MEMORY:
        return QStringLiteral("GFL_ERROR_NO_MEMORY");
    case GFL_ERROR_UNKNOWN_FORMAT:
        return QStringLiteral("GFL_ERROR_UNKNOWN_FORMAT");
    case GFL_ERROR_BAD_BITMAP:
        return QStringLiteral("GFL_ERROR_BAD_BITMAP");
    case GFL_ERROR_BAD_FORMAT_INDEX:
        return QStringLiteral("GFL_ERROR_BAD_FORMAT_INDEX");
    case GFL_ERROR_BAD_PARAMETERS:
        return QStringLiteral("GFL_ERROR_BAD_PARAMETERS");
    default:
        return QStringLiteral("GFL_UNKNOWN_ERROR");
    }
}

} // namespace

void throwGflError(int gflCode, QString fileName, QString location)
{
    if (gflCode == GFL_NO_ERROR)
        return;
    QString message = QCoreApplication::translate("VException", "Error GFL : \"%1\"").arg(nameOf(gflCode));
    if (!fileName.isEmpty()) {
        message += QLatin1Char('\n');
        message += QCoreApplication::translate("VException", "File : \"%1\"").arg(QFileInfo(fileName).absoluteFilePath());
    }
    throw VException(message, location);
}
