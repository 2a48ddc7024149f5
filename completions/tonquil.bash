# SPDX-License-Identifier: MIT
# shellcheck shell=bash
# Completion for tonquil, which takes its words from the program's own help.

_tonquil() {
    local word
    while IFS= read -r word; do
        COMPREPLY+=("$word")
    done < <(compgen -W "$("${COMP_WORDS[0]}" --help 2> /dev/null |
        grep -Eo '^ +--[a-z-]+')" -- "${COMP_WORDS[COMP_CWORD]}")
}

complete -F _tonquil tonquil
