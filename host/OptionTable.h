#pragma once

#include <string>
#include <vector>

#include <QCoreApplication>
#include <QString>
#include <QStringList>

/// An option of the command line.
struct CommandOption
{
    const char *name;
    char letter;         ///< Its short form, or 0.
    const char *value;   ///< Name of its value, or null if it has none.
    const char *choices; ///< What completes the value: words, or "<files>", "<xml>", "<so>"; null for nothing.
    unsigned commands;   ///< The CommandBits that take it.
    const char *text;    ///< What it does; to be translated in the context of OptionTable.

    /// As a user types it, with its short form and its value: "-s, --strength N".
    QString label() const;
    QString longName() const { return QString::fromLatin1(name); }
};

/// A command, which is the first word that is not an option.
struct CommandWord
{
    const char *name;
    unsigned bit;
    const char *usage; ///< What follows the program's name.
    const char *text;  ///< What it does; to be translated in the context of OptionTable.
};

enum CommandBits : unsigned { BitRun = 1, BitWizard = 2, BitHelp = 4, BitCompletion = 8, BitWindow = 16 };

/// All commands and options, in one place for the parser, the help and the completions of the shells.
class OptionTable
{
    Q_DECLARE_TR_FUNCTIONS(OptionTable)

public:
    static const std::vector<CommandOption> &options();
    static const std::vector<CommandWord> &commands();
    static const CommandWord *command(const QString &name);

    /// The names of commands or options (without dashes) among which `typed` was probably meant, or an empty text.
    static QString nearest(const QString &typed, const QStringList &names);

    /// The help about one command, or about all if `name` is empty, for a terminal of this width.
    static QString help(const QString &name, int columns);
    /// The completion script for "bash", "zsh" or "fish".
    static QString completion(const QString &shell);
};
