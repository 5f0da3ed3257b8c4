# SPDX-License-Identifier: Apache-2.0
# Completion of lodestar-cli for bash.
_lodestar_cli_files() {
    compopt -o filenames
    mapfile -t COMPREPLY < <(compgen "$1" -- "$2")
}
_lodestar_cli() {
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} command= second= each
    # The shell takes "--option=value" apart at the sign.
    if [ "$word" = = ]; then
        word=
    elif [ "$before" = = ]; then
        before=${COMP_WORDS[COMP_CWORD - 2]}
    fi
    local index=1
    while [ "$index" -lt "$COMP_CWORD" ]; do
        each=${COMP_WORDS[index]}
        case $each in
        --console | --data | --every | --listen | --name | --openmetrics | --order | --password-fd | --system | --times | --user)
            index=$((index + 1))
            [ "${COMP_WORDS[index]}" = = ] && index=$((index + 1))
            ;;
        -*) ;;
        *) if [ -z "$command" ]; then command=$each; elif [ -z "$second" ]; then second=$each; fi ;;
        esac
        index=$((index + 1))
    done
    COMPREPLY=()
    case $before in
    --order)
        COMPREPLY=($(compgen -W "sent newest status code" -- "$word"))
        return
        ;;
    --data)
        _lodestar_cli_files -d "$word"
        return
        ;;
    --openmetrics)
        _lodestar_cli_files -f "$word"
        return
        ;;
    --console | --every | --listen | --name | --password-fd | --system | --times | --user) return ;;
    esac
    if [[ $word == -* ]]; then
        local options="--console --json --csv --data --help --version"
        case "$command $second" in
        "list "*) options+=" --all" ;;
        "events "*) options+=" --open --call-home --order" ;;
        "metrics "*) options+=" --memory" ;;
        "watch "*) options+=" --every --times" ;;
        "export "*) options+=" --openmetrics --listen --every --system" ;;
        "consoles add") options+=" --user --name --password-fd" ;;
        "consoles import") options+=" --password-fd --all-or-none" ;;
        esac
        COMPREPLY=($(compgen -W "$options" -- "$word"))
        return
    fi
    case "$command $second" in
    " ") COMPREPLY=($(compgen -W "status attention list show events metrics watch export consoles" -- "$word")) ;;
    "list " | "show ")
        COMPREPLY=($(compgen -W "consoles systems io-servers partitions events groups" -- "$word"))
        ;;
    "consoles ") COMPREPLY=($(compgen -W "list add remove import export" -- "$word")) ;;
    "consoles import" | "consoles export") _lodestar_cli_files -f "$word" ;;
    esac
}
complete -F _lodestar_cli lodestar-cli
