#pragma once

#include <QString>

/// True if names in this folder, which must exist, denote the same file when they differ in case only, as on memory cards and
/// network drives. Only looks: where neither the folder nor anything in it has a name that tells, the answer is true. Any thread.
[[nodiscard]] bool ignoresCase(const QString &folder);
