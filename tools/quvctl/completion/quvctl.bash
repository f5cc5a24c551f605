# SPDX-License-Identifier: LGPL-3.0-or-later
# Bash completion of quvctl: subcommands, their options as the help tells them, and the names of commands and of their arguments.

_quvctl()
{
    local current previous subcommand command prefix
    local -a line=()
    _quvctl_line
    local subcommands="list show encode decode call ticket tint config watch batch machine explain status errors sensors
        circuits stir recirculate clean mix move refill stop help"
    local machines="dispenser turntable dual station mixer"
    local words=""
    COMPREPLY=()

    if ((COMP_CWORD == 1)); then
        COMPREPLY=($(compgen -W "$subcommands --help --version" -- "$current"))
        return
    fi

    case "$subcommand $previous" in
    "list --machine") words="dispenser mixer none" ;;
    "list --kind") words="serial configuration special scale" ;;
    "list --family" | "encode --family") words="1 2" ;;
    "encode --form") words="value list" ;;
    "tint --by") words="position circuit canister colorant" ;;
    "tint --unit") words="steps strokes weight" ;;
    "tint --levels-check") words="on off" ;;
    *" --on") words="dispenser mixer" ;;
    "encode --machine" | "decode --machine" | "call --machine" | *" --token-file")
        [[ $previous == --machine ]] && words="none $machines"
        _quvctl_offer $(compgen -W "$words" -- "$current") $(compgen -f -- "$current")
        return
        ;;
    *" --"*)
        _quvctl_takes_value "$previous" && return
        ;;
    esac
    if [[ $words ]]; then
        _quvctl_offer $(compgen -W "$words" -- "$current")
        return
    fi

    if [[ $current == -* ]]; then
        for words in $(_quvctl_options | cut -d ' ' -f 1); do
            [[ " ${line[*]} " == *" $words "* ]] || COMPREPLY+=($(compgen -W "$words" -- "$current"))
        done
        return
    fi
    case "$subcommand" in
    config)
        _quvctl_has_name && COMPREPLY=($(compgen -f -- "$current")) || words="pull push diff"
        ;;
    machine) COMPREPLY=($(compgen -W "$machines" -- "$current") $(compgen -f -- "$current")) ;;
    help) words="${subcommands% help}" ;;
    stir | recirculate) _quvctl_has_name || words="endless off" ;;
    clean) _quvctl_has_name || words="circuits brush nozzles ultrasound ultrasound-only fill empty" ;;
    move)
        if ! _quvctl_has_name; then
            words="shelf table cap"
        else
            case "$command" in
            shelf) words="up down" ;;
            table) words="reference" ;;
            cap) words="open close" ;;
            esac
        fi
        ;;
    show | encode | decode | call)
        if ! _quvctl_has_name; then
            words=$("${COMP_WORDS[0]}" list --names 2>/dev/null)
        elif [[ $subcommand == encode || $subcommand == call ]]; then
            _quvctl_arguments
        fi
        ;;
    esac
    [[ $words ]] && COMPREPLY=($(compgen -W "$words" -- "$current"))
}

# The words before the cursor, without the signs that the shell makes words of: --port=9333 is an option and its value.
_quvctl_line()
{
    local i word
    current=${COMP_WORDS[COMP_CWORD]}
    for ((i = 2; i < COMP_CWORD; ++i)); do
        word=${COMP_WORDS[i]}
        if [[ $word == = && ${line[-1]:-} == --* ]]; then
            continue
        elif [[ $word == --*=* ]]; then
            line+=("${word%%=*}" "${word#*=}")
        else
            line+=("$word")
        fi
    done
    subcommand=${COMP_WORDS[1]}
    previous=${COMP_WORDS[COMP_CWORD - 1]}
    prefix=""
    if [[ $previous == = && ${line[-1]:-} == --* ]]; then
        previous=${line[-1]}
    elif [[ $current == = && $previous == --* ]]; then
        current=""
    elif [[ $current == --*=* ]]; then
        previous=${current%%=*}
        prefix=$previous=
        current=${current#*=}
    fi
}

# What may stand at the cursor, behind the option that the word begins with, if any.
_quvctl_offer()
{
    local word
    for word in "$@"; do
        COMPREPLY+=("$prefix$word")
    done
}

# A line for each option of the subcommand: its name and, when it takes one, the name of its value.
_quvctl_options()
{
    "${COMP_WORDS[0]}" help "$subcommand" 2>/dev/null |
        sed -n 's/^ *\(-., *\)\{0,1\}\(--[a-z-]*\)\( [A-Za-z|]\{1,\}\)\{0,1\}\(  .*\)\{0,1\}$/\2\3/p'
}

_quvctl_takes_value()
{
    _quvctl_options | grep -q -- "^$1 "
}

# Whether a word between the subcommand and the cursor is no option, nor the value of one. The first one is the command.
_quvctl_has_name()
{
    local word option="" options
    options=$(_quvctl_options)
    for word in "${line[@]}"; do
        if [[ $option && $'\n'$options == *$'\n'"$option "* ]]; then
            option=""
        elif [[ $word == -* ]]; then
            option=$word
        else
            command=$word
            return 0
        fi
    done
    return 1
}

# The names of the command's arguments that are not given yet, neither by their names nor by their places.
_quvctl_arguments()
{
    local i word name given=" " option="" options names place=-1
    # usually the shell makes three words of name=value
    [[ $current == = || $previous == = ]] && return
    options=$(_quvctl_options)
    names=($("${COMP_WORDS[0]}" show "$command" --names 2>/dev/null))
    for ((i = 0; i < ${#line[@]}; ++i)); do
        word=${line[i]}
        if [[ $option && $'\n'$options == *$'\n'"$option "* ]]; then
            option=""
        elif [[ $word == --* ]]; then
            option=$word
        elif [[ $word == ?*=* ]]; then
            given+="${word%%=*} "
        elif [[ ${line[i + 1]:-} == = ]]; then
            given+="$word "
            ((i += 2))
        else
            ((place >= 0)) && given+="${names[place]:-} "
            ((++place)) # the command itself is the first
        fi
    done
    for name in "${names[@]}"; do
        [[ $given == *" $name "* ]] || COMPREPLY+=($(compgen -W "$name=" -- "$current"))
    done
    compopt -o nospace 2>/dev/null # the value follows at once
}

complete -F _quvctl quvctl
