#pragma once

#include <optional>
#include <vector>

#include <QCoreApplication>
#include <QSet>
#include <QStringList>

#include "BatchRunner.h"
#include "SettingsFile.h"
#include "WantedStrength.h"

/// Decides before any work what becomes of each photograph: its strength, the name of its result, and whether it must be refused
/// (see BatchItem::refusal): what is no photograph, a result that is there already, a result that is itself one of the
/// photographs, two photographs with one result. A photograph named twice is done once.
class BatchPlan
{
    Q_DECLARE_TR_FUNCTIONS(BatchPlan)

public:
    struct Wishes
    {
        std::optional<WantedStrength> strength; ///< For all; otherwise that of the settings, then `defaultStrength`.
        WantedStrength defaultStrength;
        bool overwrite = false;
        QString processName;
        const SettingsFile *settings = nullptr; ///< May be null.
    };

    /// `photographs` as the command line gives them, see argumentText.
    static std::vector<BatchItem> make(const QStringList &photographs, HostApplication &host, const Wishes &wishes);

    /// Those of `files` that have the name and the place of a result of one of `photographs`, in whatever language, whether they
    /// are there or not. Folders are none.
    static QSet<QString> resultsAmong(const QStringList &files, const QStringList &photographs, HostApplication &host);

    /// The name that the process will give to the result, in the language that is installed.
    static QString resultName(const QString &photograph, bool needsTiff);
    /// The refusal of a photograph whose result stands already.
    static QString isThere(const QString &result);
};
