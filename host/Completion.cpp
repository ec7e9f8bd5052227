#include "OptionTable.h"

QString OptionTable::completion(const QString &shell)
{
    return shell;
}
