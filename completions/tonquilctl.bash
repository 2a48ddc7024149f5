# SPDX-License-Identifier: MIT
# shellcheck shell=bash
# Completion for tonquilctl. It needs nothing but bash, and is loaded by bash-completion or by
# sourcing it.

# Adds the reference IDs and connectors of the attached displays that begin as the word does.
_tonquilctl_displays() {
    local id connector name
    while IFS=$'\t' read -r _ id connector _; do
        for name in "$id" "$connector"; do
            # An ID may come twice, when displays of one model have no serial numbers.
            if [[ $name == "$1"* && " ${COMPREPLY[*]} " != *" $name "* ]]; then
                COMPREPLY+=("$name")
            fi
        done
    done < <("${COMP_WORDS[0]}" displays 2> /dev/null)
}

_tonquilctl_files() {
    local file
    while IFS= read -r file; do
        COMPREPLY+=("$file")
    done < <(compgen -f -- "$1")
    # Makes a folder end in a slash and quotes what needs it; only there while completing.
    compopt -o filenames 2> /dev/null
}

# The names of the presets that begin as the word does, which may have blanks.
_tonquilctl_presets() {
    local file name
    for file in "${XDG_CONFIG_HOME:-$HOME/.config}"/tonquil/presets/"$1"*; do
        name=${file##*/}
        if [[ -f $file ]]; then
            COMPREPLY+=("${name%.*}")
        fi
    done
    compopt -o filenames 2> /dev/null
}

_tonquilctl_words() {
    local word
    while IFS= read -r word; do
        COMPREPLY+=("$word")
    done < <(compgen -W "$2" -- "$1")
}

# The contents that a remote display can be told to show, and the remote commands' options; hosts and
# remote displays are not asked for, since that takes the network.
_tonquilctl_remote() {
    local word=$1 before=$2 options
    if ((COMP_CWORD == 2)); then
        _tonquilctl_words "$word" "scan get set watch"
        return
    fi
    case ${COMP_WORDS[2]} in
        scan) options="--timeout --json --address" ;;
        set) options="--curve --content" ;;
        get | watch) options="" ;;
        *) return ;;
    esac
    case $before in
        --content) _tonquilctl_words "$word" "colorTargets grayscaleTargets transparent" ;;
        --timeout | --address | --curve) ;;
        *)
            if [[ $word == -* ]]; then
                _tonquilctl_words "$word" "$options --help"
            elif [[ ${COMP_WORDS[2]} == set ]] && ((COMP_CWORD > 4)); then
                _tonquilctl_files "$word"
            fi
            ;;
    esac
}

# Whether the words before the one being completed hold a file or a --curve already.
_tonquilctl_has_curve() {
    local i
    for ((i = 2; i < COMP_CWORD; ++i)); do
        case ${COMP_WORDS[i]} in
            --curve | --curve=*) return 0 ;;
            --preset | --preset=*) return 0 ;;
            --display | --samples | --base | --format)
                # A value may follow its option as a word of its own or, as bash splits words,
                # behind a word "=".
                if [[ ${COMP_WORDS[i + 1]} == = ]]; then
                    i=$((i + 1))
                fi
                i=$((i + 1))
                ;;
            -*) ;;
            *) return 0 ;;
        esac
    done
    return 1
}

_tonquilctl() {
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} options
    COMPREPLY=()
    if ((COMP_CWORD == 1)); then
        _tonquilctl_words "$word" "displays apply restore read table export fit remote --help --version"
        return
    fi
    # Bash makes a word of its own of the "=" in --display=ID.
    if [[ $word == = ]]; then
        word=""
    elif [[ $before == = ]]; then
        before=${COMP_WORDS[COMP_CWORD - 2]}
    fi
    if [[ ${COMP_WORDS[1]} == remote ]]; then
        _tonquilctl_remote "$word" "$before"
        return
    fi
    case ${COMP_WORDS[1]} in
        displays) options="--json" ;;
        apply) options="--display --curve --preset --hold" ;;
        restore) options="--display" ;;
        read) options="--display --hardware" ;;
        table) options="--display --curve --samples --base" ;;
        export) options="--display --format" ;;
        fit) options="--display" ;;
        *) return ;;
    esac
    case $before in
        --display)
            _tonquilctl_displays "$word"
            return
            ;;
        --base)
            _tonquilctl_files "$word"
            return
            ;;
        --preset)
            _tonquilctl_presets "$word"
            return
            ;;
        --format)
            _tonquilctl_words "$word" "icc cal table"
            return
            ;;
        --curve | --samples) return ;;
    esac
    if [[ $word == -* ]]; then
        _tonquilctl_words "$word" "$options --help"
    elif [[ ${COMP_WORDS[1]} == @(apply|table|export|fit) ]] && ! _tonquilctl_has_curve; then
        _tonquilctl_files "$word"
    fi
}

complete -F _tonquilctl tonquilctl
