# Bash completion for veilaway. The bash-completion package only loads it; none of that package's functions are needed.
_veilaway_files() # SUFFIX...: folders, and files with these suffixes in upper or lower case
{
    local name suffix
    compopt -o filenames
    while IFS= read -r name; do
        if [[ -d ${name/#\~/$HOME} ]]; then
            COMPREPLY+=("$name")
            continue
        fi
        for suffix; do
            [[ ${name,,} == *.$suffix ]] && COMPREPLY+=("$name")
        done
    done < <(compgen -f -- "${COMP_WORDS[COMP_CWORD]}")
}

_veilaway()
{
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} i
    COMPREPLY=()
    local window=0 names=0
    for ((i = 1; i < COMP_CWORD; ++i)); do
        [[ ${COMP_WORDS[i]} == -- ]] && names=1
        [[ ${COMP_WORDS[i]} == wi@(ndow|zard) && $names == 0 ]] && window=1
    done

    if [[ $names == 0 ]]; then
        case $before in
            --strength)
                mapfile -t COMPREPLY < <(compgen -W 'auto 0 10 20 30 40 50 60 70 80 90 100' -- "$word")
                return
                ;;
            --set-default)
                mapfile -t COMPREPLY < <(compgen -W 'auto none 0 10 20 30 40 50 60 70 80 90 100' -- "$word")
                return
                ;;
            --language)
                mapfile -t COMPREPLY < <(compgen -W 'de en es fr it ja pl ru zh_CN zh_TW' -- "$word")
                return
                ;;
            --jobs)
                mapfile -t COMPREPLY < <(compgen -W '1 2 4 8' -- "$word")
                return
                ;;
            --settings)
                _veilaway_files xml
                return
                ;;
            --plugin)
                _veilaway_files so
                return
                ;;
        esac
        if [[ $word == -* ]]; then
            local options='--settings --language --jobs --share-services --plugin'
            [[ $window == 1 ]] || options+=' --strength --set-default --overwrite --quiet --json --help --version'
            mapfile -t COMPREPLY < <(compgen -W "$options" -- "$word")
            return
        fi
    fi
    if [[ $COMP_CWORD == 1 ]]; then
        mapfile -t COMPREPLY < <(compgen -W 'run window wizard' -- "$word")
    fi
    _veilaway_files jpg jpeg png tif tiff hdr hdri exr psd \
        3fr arw cr2 crw dcr dng erf fff iiq k25 kdc mef mos mrw nef nrw orf pef ptx raf raw rw2 rwl sr2 srf srw
}
complete -F _veilaway veilaway
