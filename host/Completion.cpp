// The completion scripts. Each is a fixed frame around what the tables say.

#include <functional>

#include "OptionTable.h"
#include "PhotoLoader.h"

namespace {

QString latin(const char *text)
{
    return QString::fromLatin1(text);
}

/// The first sentence, or what comes before a colon, in English: the scripts are the same for all users.
QString inShort(const char *text)
{
    const QString whole = latin(text);
    int end = whole.size() - 1;
    for (const char *mark : {". ", ": ", "; "})
        if (const int at = whole.indexOf(latin(mark)); at > 0)
            end = std::min(end, at);
    return whole.left(end);
}

QString quoted(QString text)
{
    return '\'' + text.replace('\'', "'\\''") + '\'';
}

bool isFile(const CommandOption &option)
{
    return option.choices && *option.choices == '<';
}

/// The suffixes of the files that an option takes; empty for any file.
QString fileSuffix(const CommandOption &option)
{
    const QString name = latin(option.choices).remove('<').remove('>');
    return name == "files" ? QString() : name;
}

QStringList readSuffixes()
{
    return PhotoLoader::readableSuffixes();
}

QStringList forms(const CommandOption &option)
{
    QStringList all{"--" + option.longName()};
    if (option.letter)
        all << QString('-') + QLatin1Char(option.letter);
    return all;
}

QString joined(const QString &separator, const std::function<QString(const CommandOption &)> &text, unsigned commands)
{
    QStringList parts;
    for (const CommandOption &option : OptionTable::options())
        if (const QString part = option.commands & commands ? text(option) : QString(); !part.isEmpty())
            parts << part;
    return parts.join(separator);
}

QString commandWords()
{
    QStringList words;
    for (const CommandWord &word : OptionTable::commands())
        words << latin(word.name);
    return words.join(' ');
}

QString bashScript()
{
    const QString values = joined(
        "\n",
        [](const CommandOption &option) {
            if (!option.value)
                return QString();
            const QString action = isFile(option) ? ("_veilaway_files " + fileSuffix(option)).trimmed()
                                   : option.choices
                                       ? "mapfile -t COMPREPLY < <(compgen -W " + quoted(latin(option.choices)) + " -- \"$word\")"
                                       : QStringLiteral(":");
            return QStringLiteral("            %1)\n                %2\n                return\n                ;;")
                .arg(forms(option).join('|'), action);
        },
        ~0U);
    QString options;
    for (const CommandWord &word : OptionTable::commands())
        options +=
            QStringLiteral("                %1) options='%2' ;;\n")
                .arg(latin(word.name), joined(
                                           " ", [](const CommandOption &option) { return "--" + option.longName(); }, word.bit));
    return QStringLiteral(R"script(# Bash completion for veilaway, as "veilaway completion bash" writes it.
_veilaway_files() # SUFFIX...: what $word begins; folders, and files with these suffixes in upper or lower case; without a suffix, all files
{
    local name suffix
    compopt -o filenames
    while IFS= read -r name; do
        if [[ $# == 0 || -d ${name/#\~/$HOME} ]]; then
            COMPREPLY+=("$name")
            continue
        fi
        for suffix; do
            [[ ${name,,} == *.$suffix ]] && COMPREPLY+=("$name")
        done
    done < <(compgen -f -- "$word")
}

_veilaway()
{
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} command=run names=0 i options
    COMPREPLY=()
    if [[ $word == = ]]; then # an option, this sign and its value are three words
        word=
    elif [[ $before == = ]]; then
        before=${COMP_WORDS[COMP_CWORD - 2]}
    fi
    for ((i = 1; i < COMP_CWORD; ++i)); do
        [[ ${COMP_WORDS[i]} == -- ]] && names=1
        [[ " %1 " == *" ${COMP_WORDS[i]} "* && $names == 0 ]] && command=${COMP_WORDS[i]} && break
    done

    if [[ $names == 0 ]]; then
        case $before in
%2
        esac
        if [[ $word == -* ]]; then
            case $command in
%3            esac
            mapfile -t COMPREPLY < <(compgen -W "$options" -- "$word")
            return
        fi
    fi
    case $command in
        help)
            mapfile -t COMPREPLY < <(compgen -W '%1' -- "$word")
            return
            ;;
        completion)
            mapfile -t COMPREPLY < <(compgen -W 'bash zsh fish' -- "$word")
            return
            ;;
    esac
    if [[ $COMP_CWORD == 1 ]]; then
        mapfile -t COMPREPLY < <(compgen -W '%1' -- "$word")
    fi
    _veilaway_files %4
}
complete -F _veilaway veilaway
)script")
        .arg(commandWords(), values, options, readSuffixes().join(' '));
}

/// One argument of zsh's _arguments: '(-s --strength)'{-s,--strength}'[How much]:N:(auto 0)'.
QString zshOption(const CommandOption &option)
{
    QString text = inShort(option.text);
    for (const QChar special : QStringLiteral("\\[]:"))
        text.replace(special, QString('\\') + special);
    const QStringList names = forms(option);
    const QString head = names.size() == 1
                             ? quoted(names[0] + '[' + text + ']')
                             : quoted('(' + names.join(' ') + ')') + '{' + names.join(',') + '}' + quoted('[' + text + ']');
    if (!option.value)
        return head;
    const QString suffix = isFile(option) ? fileSuffix(option) : QString();
    const QString action = !option.choices    ? QStringLiteral(" ")
                           : !isFile(option)  ? '(' + latin(option.choices) + ')'
                           : suffix.isEmpty() ? QStringLiteral("_files")
                                              : "_files -g \"*." + suffix + "(-.)\"";
    return head + quoted(':' + latin(option.value) + ':' + action);
}

QString zshScript()
{
    QString words, cases;
    for (const CommandWord &word : OptionTable::commands()) {
        words += "\n        " + quoted(latin(word.name) + ':' + inShort(word.text));
        cases += QStringLiteral("        %1)\n            options=(\n                %2)\n            ;;\n")
                     .arg(latin(word.name), joined("\n                ", zshOption, word.bit));
    }
    return QStringLiteral(R"script(#compdef veilaway
# Zsh completion for veilaway, as "veilaway completion zsh" writes it.
_veilaway()
{
    local command=run
    local -a options commands=(%1)
    (( CURRENT > 2 )) && [[ -n ${(M)commands:#$words[2]:*} ]] && command=$words[2]
    case $command in
%2    esac
    if (( CURRENT == 2 )) || [[ $command == help ]]; then
        _describe -t commands command commands
        [[ $command == help ]] && return
    fi
    if [[ $command == completion ]]; then
        compadd bash zsh fish
        return
    fi
    _arguments -s -S $options '*:photograph:_files -g "(#i)*.(%3)(-.)"'
}
_veilaway "$@"
)script")
        .arg(words, cases, readSuffixes().join('|'));
}

QString fishOption(const CommandOption &option)
{
    QStringList commands;
    for (const CommandWord &word : OptionTable::commands())
        if (option.commands & word.bit)
            commands << latin(word.name);
    QString text = "complete -c veilaway -n " + quoted("contains (__veilaway_command) " + commands.join(' '));
    if (option.letter)
        text += QStringLiteral(" -s ") + QLatin1Char(option.letter);
    text += " -l " + option.longName();
    if (isFile(option))
        text +=
            fileSuffix(option).isEmpty() ? " -r -F" : " -r -a " + quoted("(__fish_complete_suffix ." + fileSuffix(option) + ')');
    else if (option.value)
        text += option.choices ? " -x -a " + quoted(latin(option.choices)) : QStringLiteral(" -x");
    return text + " -d " + quoted(inShort(option.text));
}

QString fishScript()
{
    QString words;
    for (const CommandWord &word : OptionTable::commands())
        words += QStringLiteral("complete -c veilaway -n __fish_is_first_token -a %1 -d %2\n")
                     .arg(latin(word.name), quoted(inShort(word.text)));
    return QStringLiteral(R"script(# Fish completion for veilaway, as "veilaway completion fish" writes it.
function __veilaway_command
    for word in (commandline -opc)[2..-1]
        switch $word
            case --
                break
            case %1
                echo $word
                return
        end
    end
    echo run
end
%2complete -c veilaway -n 'contains (__veilaway_command) completion' -x -a 'bash zsh fish'
complete -c veilaway -n 'contains (__veilaway_command) help' -x -a '%1'
)script")
               .arg(commandWords(), words) +
           joined("\n", fishOption, ~0U) + '\n';
}

} // namespace

QString OptionTable::completion(const QString &shell)
{
    return shell == "bash" ? bashScript() : shell == "zsh" ? zshScript() : fishScript();
}
