# SPDX-License-Identifier: LGPL-3.0-or-later
# Bash completion of quvdriver: its options as the help tells them, and their values.

_quvdriver()
{
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} prefix="" words="" files="" word
    COMPREPLY=()

    # usually the shell makes three words of --port=9333
    if [[ $previous == = ]]; then
        previous=${COMP_WORDS[COMP_CWORD - 2]}
    elif [[ $current == = ]]; then
        current=""
    elif [[ $current == --*=* ]]; then
        previous=${current%%=*}
        prefix=$previous=
        current=${current#*=}
    fi

    case "$previous" in
    --machine) words="dispenser turntable dual station mixer none" files=yes ;;
    --firmware) words="older equal newer" ;;
    --scenario | --state | --token-file) files=yes ;;
    --trace) [[ $prefix || ${COMP_WORDS[COMP_CWORD]} == = || ${COMP_WORDS[COMP_CWORD - 1]} == = ]] && words="json" ;;
    --host | --port | --speed) return ;;
    esac
    if [[ ! $words && ! $files ]]; then
        words=$("${COMP_WORDS[0]}" --help 2>/dev/null | sed -n 's/^ *\(-., *\)*\(--[a-z-]*\).*/\2/p')
    fi
    for word in $(compgen -W "$words" -- "$current") ${files:+$(compgen -f -- "$current")}; do
        COMPREPLY+=("$prefix$word")
    done
}

complete -F _quvdriver quvdriver
