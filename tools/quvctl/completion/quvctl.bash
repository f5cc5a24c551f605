# SPDX-License-Identifier: LGPL-3.0-or-later
# Bash completion of quvctl: subcommands, their options, and the names of commands and of their arguments.

_quvctl()
{
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
    local subcommands="list show encode decode call ticket tint config watch batch machine explain help"
    local driver="--host --port --timeout"
    local machines="dispenser turntable dual mixer"
    local words="" command=""
    COMPREPLY=()

    if ((COMP_CWORD == 1)); then
        COMPREPLY=($(compgen -W "$subcommands --help --version" -- "$current"))
        return
    fi

    case "${COMP_WORDS[1]} $previous" in
    "list --machine") words="dispenser mixer none" ;;
    "list --kind") words="serial configuration special scale" ;;
    "list --family" | "encode --family") words="1 2" ;;
    "encode --form") words="value list" ;;
    "tint --by") words="position circuit canister colorant" ;;
    "tint --unit") words="steps strokes weight" ;;
    "tint --levels-check") words="on off" ;;
    "encode --machine" | "decode --machine" | "call --machine")
        COMPREPLY=($(compgen -W "none $machines" -- "$current") $(compgen -f -- "$current"))
        return
        ;;
    *" --host" | *" --port" | *" --timeout" | *" --interval" | *" --count" | *" --args") return ;;
    *)
        case "${COMP_WORDS[1]}" in
        list) words="--machine --kind --family --names --json --help" ;;
        show) words="--json --names --markdown --help" ;;
        encode) words="--family --machine --form --json --help" ;;
        decode) words="--args --machine --json --help" ;;
        call) words="--machine --async --json $driver --help" ;;
        ticket) words="--wait --interval --json $driver --help" ;;
        tint) words="--by --unit --levels-check --no-wait --interval $driver --help" ;;
        config)
            words="--yes $driver --help"
            if [[ $current != -* ]]; then
                words=""
                if ! _quvctl_has_name; then
                    words="pull push diff"
                else
                    COMPREPLY=($(compgen -f -- "$current"))
                    return
                fi
            fi
            ;;
        watch) words="--interval --count $driver --help" ;;
        batch) words="--help" ;;
        explain) words="--json --help" ;;
        machine)
            words="--help"
            if [[ $current != -* ]]; then
                COMPREPLY=($(compgen -W "$machines" -- "$current") $(compgen -f -- "$current"))
                return
            fi
            ;;
        help) words="${subcommands% help}" ;;
        esac
        # a command's name comes first, and options only when asked for
        case "${COMP_WORDS[1]}" in
        show | encode | decode | call)
            if [[ $current != -* ]]; then
                words=""
                if ! _quvctl_has_name; then
                    words=$("${COMP_WORDS[0]}" list --names 2>/dev/null)
                elif [[ ${COMP_WORDS[1]} == encode || ${COMP_WORDS[1]} == call ]]; then
                    _quvctl_arguments
                    return
                fi
            fi
            ;;
        esac
        ;;
    esac
    COMPREPLY=($(compgen -W "$words" -- "$current"))
}

# Whether a word between the subcommand and the cursor is no option, nor the value of one. The first one is the command.
_quvctl_has_name()
{
    local i
    for ((i = 2; i < COMP_CWORD; ++i)); do
        case "${COMP_WORDS[i]}" in
        --json | --async | --yes | --names | --markdown | --help) ;;
        --*) ((++i)) ;;
        *)
            command=${COMP_WORDS[i]}
            return 0
            ;;
        esac
    done
    return 1
}

# The names of the command's arguments that are not given yet.
_quvctl_arguments()
{
    local i name given=" "
    # usually the shell makes three words of name=value
    [[ $current == = || $previous == = ]] && return
    for ((i = 3; i < COMP_CWORD; ++i)); do
        case "${COMP_WORDS[i]}" in
        =) given+="${COMP_WORDS[i - 1]} " ;;
        ?*=*) given+="${COMP_WORDS[i]%%=*} " ;;
        esac
    done
    for name in $("${COMP_WORDS[0]}" show "$command" --names 2>/dev/null); do
        [[ $given == *" $name "* ]] || COMPREPLY+=($(compgen -W "$name=" -- "$current"))
    done
    compopt -o nospace 2>/dev/null # the value follows at once
}

complete -F _quvctl quvctl
