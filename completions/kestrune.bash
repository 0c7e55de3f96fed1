# Completion of kestrune for bash.
_kestrune() {
    local word=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD-1]} command=${COMP_WORDS[1]}
    if ((COMP_CWORD == 1)); then
        COMPREPLY=($(compgen -W "run commands keys menu cell trace show diff prefs --help --version" -- "$word"))
        return
    fi
    case $previous in
        --answer) COMPREPLY=($(compgen -W "ok cancel yes no ask" -- "$word")); return ;;
        --color) COMPREPLY=($(compgen -W "auto always never" -- "$word")); return ;;
    esac
    if [[ $command == prefs ]] && ((COMP_CWORD == 2)); then
        COMPREPLY=($(compgen -W "show init import export restore --help" -- "$word"))
        return
    fi
    if [[ $word == -* ]]; then
        case $command in
            run) COMPREPLY=($(compgen -W "-o --output --in-place --force --prefs --set --answer --json --timing --trace --help" -- "$word")) ;;
            menu) COMPREPLY=($(compgen -W "--json --prefs --set --help" -- "$word")) ;;
            show) COMPREPLY=($(compgen -W "--html --color --classes --json --prefs --set --help" -- "$word")) ;;
            prefs)
                case ${COMP_WORDS[2]} in
                    show) COMPREPLY=($(compgen -W "--json --prefs --help" -- "$word")) ;;
                    import | restore) COMPREPLY=($(compgen -W "--prefs --answer --help" -- "$word")) ;;
                    *) COMPREPLY=($(compgen -W "--prefs --help" -- "$word")) ;;
                esac ;;
            commands) COMPREPLY=($(compgen -W "--json --html --help" -- "$word")) ;;
            trace) COMPREPLY=($(compgen -W "--precedents --dependents --depth --json --help" -- "$word")) ;;
            cell | diff | keys) COMPREPLY=($(compgen -W "--json --help" -- "$word")) ;;
        esac
        return
    fi
    if [[ $command == keys ]]; then
        ((COMP_CWORD == 2)) && COMPREPLY=($(compgen -W "set clear reset swallow release on off" -- "$word"))
        return
    fi
    compopt -o filenames
    if [[ $command == run ]] && ((COMP_CWORD > 2)); then
        COMPREPLY=($(compgen -W "undo redo history menu:" -- "$word"))
    fi
    COMPREPLY+=($(compgen -f -- "$word"))
}
complete -F _kestrune kestrune
