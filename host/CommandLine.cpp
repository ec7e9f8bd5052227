#include "CommandLine.h"

#include <QCommandLineParser>

#include "HostApplication.h"
#include "argumentText.h"

namespace {

constexpr int kMostJobs = 256;

} // namespace

CommandLine CommandLine::parse(const QStringList &arguments)
{
    CommandLine line;
    QCommandLineParser parser;
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    const QCommandLineOption strength("strength", {}, "N"), setDefault("set-default", {}, "N"), settings("settings", {}, "FILE"),
        language("language", {}, "LANG"), jobs("jobs", {}, "N"), plugin("plugin", {}, "FILE"), overwrite("overwrite"),
        quiet("quiet"), json("json"), share("share-services"), help(QStringList{"h", "help"}), version("version");
    for (const QCommandLineOption &option :
         {strength, setDefault, settings, language, jobs, plugin, overwrite, quiet, json, share, help, version})
        parser.addOption(option);

    const auto fail = [&](const QString &reason) {
        line.error = reason;
        return line;
    };
    if (!parser.parse(arguments))
        return fail(parser.errorText());
    if (parser.isSet(help) || parser.isSet(version)) {
        line.command = parser.isSet(help) ? Command::Help : Command::Version;
        line.pluginFile = parser.value(plugin);
        line.language = parser.value(language);
        return line;
    }

    line.photographs = parser.positionalArguments();
    const int end = arguments.indexOf("--"); // what follows it is not a command
    const bool named = end < 0 || line.photographs.size() >= arguments.size() - end;
    const QString command = named ? line.photographs.value(0) : QString();
    if (command == "wizard")
        line.command = Command::Wizard;
    if (command == "window")
        line.command = Command::Window;
    if (command == "wizard" || command == "window" || command == "run")
        line.photographs.removeFirst();
    line.settingsFile = parser.value(settings);
    if (line.command == Command::Window && line.settingsFile.isEmpty() && line.photographs.size() == 1 &&
        line.photographs[0].endsWith(".xml", Qt::CaseInsensitive))
        line.settingsFile = line.photographs.takeFirst();
    line.language = parser.value(language);
    line.pluginFile = parser.value(plugin);
    line.overwrite = parser.isSet(overwrite);
    line.quiet = parser.isSet(quiet);
    line.json = parser.isSet(json);
    line.shareServices = parser.isSet(share);

    bool whole = false;
    if (parser.isSet(strength)) {
        line.strength = WantedStrength::parse(parser.value(strength));
        if (!line.strength)
            return fail(tr("--strength must be a whole number from 0 to 100, or auto, not \"%1\".").arg(parser.value(strength)));
    }
    if (parser.isSet(jobs)) {
        line.jobs = parser.value(jobs).toInt(&whole);
        if (!whole || line.jobs < 1 || line.jobs > kMostJobs)
            return fail(tr("--jobs must be a whole number from 1 to %1, not \"%2\".").arg(kMostJobs).arg(parser.value(jobs)));
    }
    if (parser.isSet(language) && !HostApplication::localeFor(line.language))
        return fail(tr("--language must be one of %1, not \"%2\".").arg(HostApplication::languages().join(", "), line.language));
    if (parser.isSet(settings) &&
        (line.settingsFile.isEmpty() || QString::fromUtf8(argumentBytes(line.settingsFile)) != line.settingsFile))
        return fail(tr("--settings must be the name of a file, in UTF-8."));
    if (parser.isSet(setDefault)) {
        const QString value = parser.value(setDefault);
        line.newDefault = WantedStrength::parse(value);
        if (!line.newDefault && value != "none")
            return fail(tr("--set-default must be a whole number from 0 to 100, auto or none, not \"%1\".").arg(value));
        bool alone = line.command == Command::Run && line.photographs.isEmpty();
        for (const QCommandLineOption &option : {strength, settings, jobs, overwrite, json})
            alone = alone && !parser.isSet(option);
        if (!alone)
            return fail(tr("--set-default only stores the default: leave out photographs and the options for them."));
        line.command = Command::SetDefault;
        return line;
    }
    if (line.command == Command::Wizard || line.command == Command::Window) {
        for (const QCommandLineOption &option : {strength, overwrite, quiet, json})
            if (parser.isSet(option))
                return fail(
                    tr("--%1 can't be used with %2, which asks for it on the screen.").arg(option.names().constFirst(), command));
    } else if (line.photographs.isEmpty() && line.settingsFile.isEmpty())
        return fail(tr("Name the photographs to remove haze from."));
    return line;
}

QString CommandLine::help()
{
    return tr(
        "veilaway takes the haze out of photographs.\n\n"
        "Usage:\n"
        "  veilaway [run] PHOTO... [options]\n"
        "  veilaway [run] --settings FILE [options]\n"
        "  veilaway window [PHOTO... | SETTINGS.xml] [options]\n"
        "  veilaway wizard [PHOTO...] [options]\n"
        "  veilaway --set-default N|auto|none\n"
        "  veilaway --help | --version\n\n"
        "Each result is written beside its photograph, under the photograph's name with a tag: hills.jpg becomes "
        "hills_dehazed.jpg. The photograph itself is never changed. The tag follows the language: _entnebelt with "
        "--language de, for instance.\n\n"
        "The window is a workspace for a series: judge each photograph at 100 %, compare before and after, set strengths, "
        "and save the results. It keeps your work as you go, and takes --language, --jobs, --share-services and "
        "--plugin.\n\n"
        "The wizard leads through four pages: choose photographs, set the strength of each with a live preview, remove the haze, "
        "and compare. It takes --settings (which then holds the strengths), --language, --jobs, --share-services and "
        "--plugin.\n\n"
        "Options:\n"
        "  --strength N      How much haze to remove, in per cent: 0 leaves the picture as it is, 100 removes all of "
        "it, and auto chooses a strength for each photograph, from 50 for a dark one to 80 for a bright one. Without "
        "this option, the strength in the settings file is used, otherwise your stored default, otherwise 70.\n"
        "  --set-default N   Store this default, a number or auto, or remove the stored one with none. Nothing else is "
        "done.\n"
        "  --settings FILE   Keep the strength of each photograph in this XML file. If the file exists, its strengths "
        "are used, unless --strength is given too; afterwards it holds the strengths that were used. Without a PHOTO, "
        "all photographs in the file are done.\n"
        "  --language LANG   Language of messages and of the tag: de, en, es, fr, it, ja, pl, ru, zh_CN or zh_TW. "
        "Without this option, the language of the system.\n"
        "  --jobs N          Number of photographs to work on at the same time. Without this option, as many as keep "
        "all cores busy and fit into memory.\n"
        "  --overwrite       Replace results that already exist.\n"
        "  --quiet           Report failures only.\n"
        "  --json            Write one line with a JSON object for each photograph: photo, result, status (done, "
        "unchanged, failed, stopped), strength, automatic, seconds, message, unchanged (the reason, or null).\n"
        "  --share-services  Lend the plug-in the program's own services (log, memory pool, processor count) instead "
        "of letting it start its own.\n"
        "  --plugin FILE     Load this plug-in file instead of Nimbra.so beside the program or in ../lib/nimbra.\n"
        "  -h, --help        Show this text.\n"
        "  --version         Show the versions of the program and the plug-in.\n"
        "  --                Everything that follows is a photograph, even if it begins with a dash.\n\n"
        "Formats:\n"
        "  Read and written: JPEG (jpg, jpeg), PNG, TIFF (tif, tiff), Radiance (hdr, hdri), OpenEXR (exr) and PSD. A "
        "result has the format of its photograph, its depth (8 or 16 bits, or float), colour profile, EXIF, IPTC and "
        "XMP. EXIF orientation is kept, so that the result is shown the same way up.\n"
        "  Read only: camera raw (dng, cr2, nef, arw, raf, orf, rw2 and others). The result is a 16-bit TIFF. "
        "Photographs with any other suffix, or none, become a TIFF too.\n"
        "  XMP sidecar files are not read and stay where they are.\n\n"
        "Exit status:\n"
        "  0  All photographs are done, or came back unchanged (a message says why).\n"
        "  1  Some are not: standard error says which, why, and what helps. Or standard output could not be written.\n"
        "  2  The command line or the settings file is wrong; nothing was begun.\n"
        "Ctrl-C ends the program by that signal (130 in a shell), without leaving half a result.\n\n"
        "Examples:\n"
        "  veilaway hills.jpg --strength 80\n"
        "  veilaway hills.jpg valley.jpg --strength auto\n"
        "  veilaway holiday/*.jpg holiday/*.cr2 --settings holiday/haze.xml\n"
        "  veilaway --settings holiday/haze.xml --overwrite\n");
}
