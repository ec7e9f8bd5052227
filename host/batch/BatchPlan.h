#pragma once

#include <optional>
#include <vector>

#include <QCoreApplication>
#include <QSet>
#include <QStringList>

#include "BatchRunner.h"
#include "SettingsFile.h"
#include "WantedStrength.h"

/// Decides what is to be done with each photograph before any work begins: its strength, the name of its result, and whether it
/// is refused (see BatchItem::refusal). Refused are files that can't be photographs, results that exist already, results that
/// are the same file as one of the photographs, and two photographs with the same result. A photograph named twice is done once.
class BatchPlan
{
    Q_DECLARE_TR_FUNCTIONS(BatchPlan)

public:
    struct Options
    {
        std::optional<WantedStrength> strength; ///< For all; without it, the one in the settings, then `defaultStrength`.
        WantedStrength defaultStrength;
        bool overwrite = false;
        QString processName;
        const SettingsFile *settings = nullptr; ///< May be null; only read.
    };

    /// `photographs` are texts as argumentText makes them.
    static std::vector<BatchItem> make(const QStringList &photographs, HostApplication &host, const Options &options);

    /// Those of `files` with the name and folder of a result of one of `photographs`, in any language, whether they exist or
    /// not. Folders are never among them.
    static QSet<QString> resultsAmong(const QStringList &files, const QStringList &photographs, HostApplication &host);

    /// The absolute path that the process will give to the result, in the language of the installed catalogue.
    static QString resultName(const QString &photograph, bool needsTiff);
    /// The message for a photograph whose result exists already.
    static QString existsText(const QString &result);
};
