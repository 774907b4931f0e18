# Completes the words of orvane-cli for bash.
_orvane_cli()
{
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} options
    COMPREPLY=()
    if [ "$COMP_CWORD" = 1 ]; then
        COMPREPLY=($(compgen -W "effects make list remove change check --help --version" -- "$word"))
        return
    fi
    case $before in
        --effect | --fields | --recipe)
            options=$(orvane-cli effects 2>/dev/null | cut -f 1 | tr 'A-Z /' 'a-z--')
            COMPREPLY=($(compgen -W "$options" -- "$word"))
            return
            ;;
        --folder)
            COMPREPLY=($(compgen -d -- "$word"))
            return
            ;;
        --set | --pattern) return ;;
    esac
    case ${COMP_WORDS[1]} in
        effects) options="--fields --recipe --json" ;;
        make) options="--print --into --new --set --today --folder --pattern --replace --keep --dry-run" ;;
        list) options="--json --folder --pattern" ;;
        remove) options="--effect --folder --pattern --dry-run" ;;
        change) options="--effect --set --folder --pattern --replace --keep --dry-run" ;;
        check) options="--set" ;;
    esac
    if [[ $word == -* ]]; then
        COMPREPLY=($(compgen -W "$options" -- "$word"))
    else
        compopt -o filenames
        COMPREPLY=($(compgen -f -- "$word"))
    fi
}
complete -F _orvane_cli orvane-cli
