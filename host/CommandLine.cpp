#include "CommandLine.h"

#include <QCommandLineParser>
#include <QFileInfo>

#include "HostApplication.h"
#include "OptionTable.h"
#include "argumentText.h"

namespace {

constexpr int kMostJobs = 256;

/// The long names of the options of these commands.
QStringList optionNames(unsigned commands)
{
    QStringList names;
    for (const CommandOption &option : OptionTable::options())
        if (option.commands & commands)
            names << option.longName();
    return names;
}

/// With a second dash where a long option has only one, as other programs take them.
QStringList withBothDashes(QStringList arguments)
{
    const QStringList names = optionNames(~0U);
    for (QString &argument : arguments) {
        if (argument == "--")
            break;
        if (argument.startsWith('-') && names.contains(argument.mid(1).section('=', 0, 0)))
            argument.prepend('-');
    }
    return arguments;
}

bool isUtf8(const QString &argument)
{
    return QString::fromUtf8(argumentBytes(argument)) == argument;
}

} // namespace

CommandLine CommandLine::parse(const QStringList &given)
{
    CommandLine line;
    const QStringList arguments = withBothDashes(given);
    QCommandLineParser parser;
    for (const CommandOption &option : OptionTable::options()) {
        QStringList names{option.longName()};
        if (option.letter)
            names << QString(QLatin1Char(option.letter));
        parser.addOption(QCommandLineOption(names, {}, QString::fromLatin1(option.value ? option.value : "")));
    }
    const auto fail = [&](const QString &reason) {
        line.error = reason;
        return line;
    };
    const bool understood = parser.parse(arguments);
    line.photographs = parser.positionalArguments();
    const int end = arguments.indexOf("--"); // what follows it is not a command
    line.literal = end < 0 ? line.photographs.size() : line.photographs.size() - (arguments.size() - end - 1);
    const QString word = line.literal > 0 ? line.photographs.value(0) : QString();
    const CommandWord *const command = OptionTable::command(word);
    if (!understood) {
        const QString unknown = parser.unknownOptionNames().value(0);
        const QString meant =
            unknown.size() > 1 ? OptionTable::nearest(unknown, optionNames(command ? command->bit : BitRun)) : "";
        QString advice = meant.isEmpty() ? QString() : ' ' + tr("Did you mean --%1?").arg(meant);
        for (const QString &argument : given.mid(1))
            if (argument.startsWith('-') && QFileInfo::exists(argument))
                advice = ' ' + tr("Write \"./%1\" for the photograph of this name.").arg(argument);
        return fail(parser.errorText() + advice);
    }
    line.pluginFile = parser.value("plugin");
    line.language = parser.value("language");
    if (parser.isSet("help") || parser.isSet("version")) {
        line.command = parser.isSet("help") ? Command::Help : Command::Version;
        line.topic = command ? word : QString();
        return line;
    }
    if (command) {
        line.photographs.removeFirst();
        --line.literal;
    }
    if (word == "help" || word == "completion") {
        line.command = word == "help" ? Command::Help : Command::Completion;
        line.topic = line.photographs.value(0);
        QStringList topics{"bash", "zsh", "fish"};
        if (word == "help") {
            topics = QStringList{""};
            for (const CommandWord &known : OptionTable::commands())
                topics << known.name;
        }
        if (line.photographs.size() > 1 || !topics.contains(line.topic))
            return fail(tr("\"%1\" must be followed by one of %2, not \"%3\".")
                            .arg(word, topics.join(' ').trimmed(), line.photographs.join(' ')));
        return line;
    }
    if (word == "wizard")
        line.command = Command::Wizard;
    if (word == "window")
        line.command = Command::Window;

    line.settingsFile = parser.value("settings");
    if (line.command == Command::Window && line.settingsFile.isEmpty() && line.photographs.size() == 1 &&
        line.photographs[0].endsWith(".xml", Qt::CaseInsensitive))
        line.settingsFile = line.photographs.takeFirst();
    line.quiet = parser.isSet("quiet");
    line.json = parser.isSet("json");
    line.shareServices = parser.isSet("share-services");
    line.keepTime = parser.isSet("keep-time");
    line.recursive = parser.isSet("recursive");
    line.nullSeparated = parser.isSet("null");
    line.notify = parser.isSet("notify");
    line.dryRun = parser.isSet("dry-run");

    bool whole = false;
    if (parser.isSet("strength")) {
        line.strength = WantedStrength::parse(parser.value("strength"));
        if (!line.strength)
            return fail(
                tr("--strength must be a whole number from 0 to 100, or auto, not \"%1\".").arg(parser.value("strength")));
    }
    if (parser.isSet("jobs")) {
        line.jobs = parser.value("jobs").toInt(&whole);
        if (!whole || line.jobs < 1 || line.jobs > kMostJobs)
            return fail(tr("--jobs must be a whole number from 1 to %1, not \"%2\".").arg(kMostJobs).arg(parser.value("jobs")));
    }
    if (parser.isSet("quality")) {
        const int quality = parser.value("quality").toInt(&whole);
        if (!whole || quality < 1 || quality > 100)
            return fail(tr("--quality must be a whole number from 1 to 100, not \"%1\".").arg(parser.value("quality")));
        line.packing.jpegQuality = quality;
    }
    if (parser.isSet("compression")) {
        const QString kind = parser.value("compression");
        constexpr std::pair<const char *, int> kKinds[] = {{"none", 0}, {"lzw", 2}, {"deflate", 4}};
        for (const auto &[name, number] : kKinds)
            if (kind == name)
                line.packing.tiffCompression = number;
        if (!line.packing.tiffCompression)
            return fail(tr("--compression must be none, deflate or lzw, not \"%1\".").arg(kind));
    }
    if (parser.isSet("language") && !HostApplication::localeFor(line.language))
        return fail(tr("--language must be one of %1, not \"%2\".").arg(HostApplication::languages().join(", "), line.language));
    if (parser.isSet("settings") && (line.settingsFile.isEmpty() || !isUtf8(line.settingsFile)))
        return fail(tr("--settings must be the name of a file, in UTF-8."));
    if (parser.isSet("output")) {
        line.output = parser.value("output");
        if (line.output.isEmpty() || !isUtf8(line.output))
            return fail(tr("--output must be the name of a folder or file, in UTF-8."));
    }
    if (parser.isSet("tag")) {
        line.tag = parser.value("tag");
        if (line.tag->contains('/') || !isUtf8(*line.tag))
            return fail(tr("--tag is a part of a name: it must not contain a slash, and must be in UTF-8."));
    }
    int policies = 0;
    for (const auto &[name, policy] : {std::pair("skip-existing", Existing::Skip), std::pair("newer", Existing::Update),
                                       std::pair("overwrite", Existing::Replace)})
        if (parser.isSet(name)) {
            line.existing = policy;
            ++policies;
        }
    if (policies > 1)
        return fail(tr("Of --skip-existing, --newer and --overwrite, only one can be used at a time."));
    if (parser.isSet("set-default")) {
        const QString value = parser.value("set-default");
        line.newDefault = WantedStrength::parse(value);
        if (!line.newDefault && value != "none")
            return fail(tr("--set-default must be a whole number from 0 to 100, auto or none, not \"%1\".").arg(value));
        QStringList others = optionNames(~0U);
        for (const char *allowed : {"set-default", "language", "plugin", "quiet", "share-services"})
            others.removeOne(allowed);
        const bool alone = std::none_of(others.begin(), others.end(), [&](const QString &name) { return parser.isSet(name); });
        if (!alone || line.command != Command::Run || !line.photographs.isEmpty())
            return fail(tr("--set-default only stores the default: leave out photographs and the options for them."));
        line.command = Command::SetDefault;
        return line;
    }
    if (command && line.needsDisplay()) {
        for (const CommandOption &option : OptionTable::options())
            if (parser.isSet(option.longName()) && !(option.commands & command->bit))
                return fail(tr("--%1 can't be used with %2, which asks for it on the screen.").arg(option.longName(), word));
    } else if (line.photographs.isEmpty() && line.settingsFile.isEmpty()) {
        return fail(tr("Name the photographs to remove haze from."));
    }
    return line;
}
