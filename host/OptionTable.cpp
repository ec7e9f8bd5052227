#include "OptionTable.h"

#include <algorithm>

#include "PhotoLoader.h"
#include "terminalText.h"

namespace {

constexpr unsigned kWindows = BitWindow | BitWizard, kAll = ~0U;

#define TEXT(text) QT_TRANSLATE_NOOP("OptionTable", text)

const std::vector<CommandOption> kOptions{
    {"strength", 's', "N", "auto 0 10 20 30 40 50 60 70 80 90 100", BitRun,
     TEXT("How much haze to remove, in per cent: 0 leaves the picture as it is, 100 removes all of it, and auto chooses a "
          "strength "
          "for each photograph, from 50 for a dark one to 80 for a bright one. Without this option, the strength in the settings "
          "file is used, otherwise your stored default, otherwise 70.")},
    {"output", 'o', "FOLDER|FILE", "<files>", BitRun,
     TEXT(
         "Where results go, instead of beside the photographs. In a folder, which is created if necessary, they keep their names "
         "and their places below a folder that was named as PHOTO. For a single photograph, it may be a file; its suffix chooses "
         "the format.")},
    {"tag", 0, "TEXT", nullptr, BitRun,
     TEXT("What is added to the names of results, in any language; with an empty text, results have the names of their "
          "photographs.")},
    {"quality", 0, "N", "80 85 90 92 95 98 100", BitRun,
     TEXT("Quality of JPEG results, from 1 to 100. Without this option, that of the photograph, but at least 92; other formats "
          "give 92.")},
    {"compression", 0, "KIND", "none deflate lzw", BitRun,
     TEXT("Compression of TIFF results: none, deflate or lzw, all without loss. Without this option, that of the photograph.")},
    {"skip-existing", 0, nullptr, nullptr, BitRun, TEXT("Skip photographs whose result already exists.")},
    {"newer", 0, nullptr, nullptr, BitRun,
     TEXT("Skip photographs whose result is newer than they are and, as far as the settings file knows, was made at the same "
          "strength. Replace other results.")},
    {"overwrite", 0, nullptr, nullptr, BitRun, TEXT("Replace results that already exist.")},
    {"keep-time", 0, nullptr, nullptr, BitRun, TEXT("Give each result its photograph's time of modification.")},
    {"recursive", 'r', nullptr, nullptr, BitRun, TEXT("Also do the photographs in folders inside the folders named.")},
    {"null", '0', nullptr, nullptr, BitRun, TEXT("The names in lists end with a null byte, as find -print0 writes them.")},
    {"dry-run", 'n', nullptr, nullptr, BitRun,
     TEXT("Only show what would be done: sizes, memory needed and names of the results.")},
    {"settings", 0, "FILE", "<xml>", BitRun | kWindows,
     TEXT("Keep the strength of each photograph in this XML file. If the file exists, its strengths are used, unless --strength "
          "is "
          "given too; afterwards it holds the strengths that were used. Without a PHOTO, all photographs in the file are done.")},
    {"set-default", 0, "N", "auto none 0 10 20 30 40 50 60 70 80 90 100", BitRun,
     TEXT("Store this default strength, a number or auto, or remove the stored one with none. Nothing else is done.")},
    {"jobs", 'j', "N", "1 2 4 8", BitRun | kWindows,
     TEXT("Number of photographs to work on at the same time. Without this option, as many as keep all cores busy and fit into "
          "memory.")},
    {"quiet", 'q', nullptr, nullptr, BitRun, TEXT("Report failures only.")},
    {"notify", 0, nullptr, nullptr, BitRun, TEXT("Show a notification of the desktop at the end.")},
    {"json", 0, nullptr, nullptr, BitRun, TEXT("Write one line with a JSON object for each photograph.")},
    {"language", 0, "LANG", "de en es fr it ja pl ru zh_CN zh_TW", kAll,
     TEXT(
         "Language of messages and of the tag: de, en, es, fr, it, ja, pl, ru, zh_CN or zh_TW. Without this option, the language "
         "of the system.")},
    {"share-services", 0, nullptr, nullptr, BitRun | kWindows,
     TEXT(
         "Lend the plug-in the program's own services (log, memory pool, processor count) instead of letting it start its own.")},
    {"plugin", 0, "FILE", "<so>", BitRun | kWindows,
     TEXT("Load this plug-in file instead of Nimbra.so beside the program or in ../lib/nimbra.")},
    {"help", 'h', nullptr, nullptr, kAll, TEXT("Show this text, or the one about the command.")},
    {"version", 'V', nullptr, nullptr, kAll, TEXT("Show the versions of the program and the plug-in.")},
};

const std::vector<CommandWord> kCommands{
    {"run", BitRun, "[run] PHOTO... [options]",
     TEXT("Take the haze out of photographs and write the results. The word may be left out.")},
    {"window", BitWindow, "window [PHOTO... | SETTINGS.xml] [options]",
     TEXT("Open a workspace for a series: judge each photograph at 100 %, compare before and after, set strengths and save the "
          "results. It keeps your work as you go.")},
    {"wizard", BitWizard, "wizard [PHOTO...] [options]",
     TEXT("Open a window: choose photographs, set the strength of each with a live preview, remove the haze, and compare.")},
    {"help", BitHelp, "help [COMMAND]", TEXT("Show the help, or the help about one command.")},
    {"completion", BitCompletion, "completion bash|zsh|fish", TEXT("Write the completion script for a shell.")},
};

#undef TEXT

/// The number of letters to insert, delete, replace or exchange with their neighbour to make one word of the other.
int distance(const QString &one, const QString &other)
{
    std::vector<std::vector<int>> cost(std::size_t(one.size()) + 1, std::vector<int>(std::size_t(other.size()) + 1));
    for (std::size_t i = 0; i < cost.size(); ++i)
        for (std::size_t j = 0; j < cost[i].size(); ++j) {
            if (i == 0 || j == 0) {
                cost[i][j] = int(i + j);
                continue;
            }
            const QChar a = one[int(i) - 1], b = other[int(j) - 1];
            cost[i][j] = std::min({cost[i - 1][j] + 1, cost[i][j - 1] + 1, cost[i - 1][j - 1] + (a != b)});
            if (i > 1 && j > 1 && a == other[int(j) - 2] && b == one[int(i) - 2])
                cost[i][j] = std::min(cost[i][j], cost[i - 2][j - 2] + 1);
        }
    return cost.back().back();
}

/// Label and description of one row of the help.
QString row(const QString &label, const QString &text, int columns)
{
    constexpr int kLabelWidth = 22, kNarrow = 60, kIndent = 6;
    if (columns < kNarrow || label.size() > kLabelWidth)
        return "  " + label + '\n' + QString(columns < kNarrow ? kIndent : kLabelWidth + 4, ' ') + text + '\n';
    return "  " + label.leftJustified(kLabelWidth) + "  " + text + '\n';
}

} // namespace

QString CommandOption::label() const
{
    const QString shortForm = letter ? QStringLiteral("-%1, ").arg(QLatin1Char(letter)) : QString();
    return shortForm + "--" + longName() + (value ? ' ' + QString::fromLatin1(value) : QString());
}

const std::vector<CommandOption> &OptionTable::options()
{
    return kOptions;
}

const std::vector<CommandWord> &OptionTable::commands()
{
    return kCommands;
}

const CommandWord *OptionTable::command(const QString &name)
{
    const auto found =
        std::find_if(kCommands.begin(), kCommands.end(), [&](const CommandWord &word) { return name == word.name; });
    return found == kCommands.end() ? nullptr : &*found;
}

QString OptionTable::nearest(const QString &typed, const QStringList &names)
{
    QString best;
    int least = typed.size() / 3 + 1; // farther away, it is another word
    for (const QString &name : names) {
        const bool begins = typed.size() > 2 && name.startsWith(typed);
        if (const int away = begins ? 0 : distance(typed, name); away < least || (away == least && best.isEmpty())) {
            best = name;
            least = away;
        }
    }
    return best;
}

QString OptionTable::help(const QString &name, int columns)
{
    const CommandWord *const chosen = command(name);
    const unsigned bits = chosen ? chosen->bit : BitRun;
    QString text = tr("veilaway takes the haze out of photographs.") + "\n\n" + tr("Usage:") + '\n';
    if (chosen) {
        text = QStringLiteral("veilaway %1\n\n%2\n").arg(QString::fromLatin1(chosen->usage), tr(chosen->text));
    } else {
        for (const char *usage :
             {"[run] PHOTO... [options]", "[run] --settings FILE [options]", "window [PHOTO... | SETTINGS.xml] [options]",
              "wizard [PHOTO...] [options]", "--set-default N|auto|none", "help [COMMAND]"})
            text += QStringLiteral("  veilaway %1\n").arg(QString::fromLatin1(usage));
    }
    if (bits & BitRun) {
        text += '\n' +
                tr("PHOTO is a photograph, a folder with photographs, @FILE for a file that lists them, one per line, or - for "
                   "such a "
                   "list on standard input.") +
                "\n\n" +
                tr("Each result is written beside its photograph, under the photograph's name with a tag: hills.jpg becomes "
                   "hills_dehazed.jpg. The photograph itself is never changed. The tag follows the language: _entnebelt with "
                   "--language de, for instance.") +
                '\n';
    }
    if (!chosen) {
        text += '\n' + tr("Commands:") + '\n';
        for (const CommandWord &word : kCommands)
            text += row(QString::fromLatin1(word.name), tr(word.text), columns);
    }
    text += '\n' + tr("Options:") + '\n';
    for (const CommandOption &option : kOptions)
        if (option.commands & bits)
            text += row(option.label(), tr(option.text), columns);
    if (bits & BitRun)
        text += row("--", tr("Everything that follows is a photograph, even if it begins with a dash."), columns);
    if (!chosen)
        text += '\n' + tr("Formats:") + '\n' + "  " +
                tr("Read and written: JPEG (jpg, jpeg), PNG, TIFF (tif, tiff), Radiance (hdr, hdri), OpenEXR (exr) and PSD. A "
                   "result has the format of its photograph, its depth (8 or 16 bits, or float), colour profile, EXIF, IPTC and "
                   "XMP. EXIF orientation is kept, so that the result is shown the same way up.") +
                "\n  " +
                tr("Read only: camera raw (dng, cr2, nef, arw, raf, orf, rw2 and others). The result is a 16-bit TIFF. "
                   "Photographs with any other suffix, or none, become a TIFF too.") +
                "\n  " + tr("XMP sidecar files are not read and stay where they are.") + '\n';
    if (bits & BitRun) {
        text += '\n' + tr("Exit status:") + '\n';
        text +=
            "  0  " + tr("All photographs are done, skipped as requested, or came back unchanged (a message says why).") + '\n';
        text += "  1  " +
                tr("Some are not: standard error says which, why, and what helps. Or standard output could not be written.") +
                '\n';
        text += "  2  " + tr("The command line or the settings file is wrong; nothing was begun.") + '\n';
        text += tr("Ctrl-C ends the program by that signal (130 in a shell), without leaving half a result.") + '\n';
        text += '\n' + tr("Examples:") + '\n';
        for (const char *example :
             {"hills.jpg --strength 80", "-r holiday -o dehazed -s auto", "-r holiday -o dehazed --newer -n",
              "holiday/*.jpg --settings holiday/haze.xml", "--settings holiday/haze.xml --newer"})
            text += QStringLiteral("  veilaway %1\n").arg(QString::fromLatin1(example));
    }
    return wrapped(text, columns);
}
