#pragma once

#include <optional>
#include <vector>

#include <QCoreApplication>
#include <QHash>
#include <QSet>
#include <QStringList>

#include "BatchRunner.h"
#include "SettingsFile.h"
#include "WantedStrength.h"

/// Decides what is to be done with each photograph before any work begins: its strength, the path of its result, and whether it
/// is refused or skipped (see BatchItem). Refused are files that can't be photographs, results that exist already unless the
/// options say otherwise, results that are the same file as one of the photographs, and two photographs with the same result. A
/// photograph named twice is done once.
class BatchPlan
{
    Q_DECLARE_TR_FUNCTIONS(BatchPlan)

public:
    struct Options
    {
        std::optional<WantedStrength> strength; ///< For all; without it, the one in the settings, then `defaultStrength`.
        WantedStrength defaultStrength;
        Existing existing = Existing::Refuse;
        QString processName;
        const SettingsFile *settings = nullptr; ///< May be null; only read.
        QString output;                         ///< The folder of all results, or the only result; empty: beside the photographs.
        bool outputIsFile = false;
        std::optional<QString> tag;    ///< Instead of the process's own; may be empty.
        QHash<QString, QString> below; ///< By photograph: where below the folder `output` its result goes, as a relative path.
        bool keepTime = false;         ///< See BatchItem.
        bool recursive = false;        ///< Folders have been searched with all that is in them.
        ResultPacking packing;         ///< For the results that it applies to.
    };

    /// `photographs` are texts as argumentText makes them.
    static std::vector<BatchItem> make(const QStringList &photographs, HostApplication &host, const Options &options);

    /// Those of `files` that are results of one of `photographs`, whether they exist or not: by name and folder, beside the
    /// photograph in any language or where these options put it, with or without a number, or because the settings say so.
    /// Folders are never among them.
    static QSet<QString> resultsAmong(const QStringList &files, const QStringList &photographs, HostApplication &host,
                                      const Options &options);
    static QSet<QString> resultsAmong(const QStringList &files, const QStringList &photographs, HostApplication &host)
    {
        return resultsAmong(files, photographs, host, Options());
    }

    /// The absolute path that the process will give to the result, in the language of the installed catalogue.
    static QString resultName(const QString &photograph, bool needsTiff);
    /// The absolute path of the result of the photograph at `path` (absolute), which was `given` as in Options::below, unless it
    /// gets a number.
    static QString resultOf(const QString &path, const QString &given, const Options &options, bool needsTiff);
    /// The messages for a photograph whose result exists already.
    static QString existsText(const QString &result);
    static QString skippedText(const QString &result);

private:
    static QString folderText(const QString &folder, const Options &options);
    static void checkResult(BatchItem &item, const Options &options);
};
