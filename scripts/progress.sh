# SPDX-License-Identifier: MIT
# shellcheck shell=bash
# Shows how far long commands have got; their output is shown only if they fail. To be sourced.

is_on_terminal() {
    [[ -t 1 && ${TERM-dumb} != dumb ]]
}

# tell_progress WHAT LOG: shows the last line of a log again and again: as a status line on a
# terminal, else as a line every half minute. Ends with the script at the latest.
tell_progress() {
    local what=$1 log=$2 start=$SECONDS pause=30 never line
    if is_on_terminal; then
        pause=0.5
    fi
    # A pipe that nobody writes to: waiting by `sleep` would leave that behind when this is killed.
    exec {never}<> <(:)
    while ! read -r -t "$pause" -u "$never" line && kill -0 "$$" 2>/dev/null; do
        line=$(tr '\r' '\n' <"$log" | grep -v '^[[:space:]]*$' | tail -n 1)
        if is_on_terminal; then
            line="$what: $line"
            printf '\r%s\e[K' "${line:0:$(($(tput cols) - 1))}"
        else
            printf '%s, %d s: %s\n' "$what" $((SECONDS - start)) "$line"
        fi
    done
}

# with_progress WHAT COMMAND...: shows what the command prints only if it fails.
with_progress() {
    local what=$1 log status=0 teller
    shift
    log=$(mktemp)
    # Commands in the background are deaf to Ctrl-C, so it is the teller that goes there.
    tell_progress "$what" "$log" &
    teller=$!
    "$@" >"$log" 2>&1 || status=$?
    kill "$teller" 2>/dev/null || true
    wait "$teller" 2>/dev/null || true
    if is_on_terminal; then
        printf '\r\e[K'
    fi
    if ((status != 0)); then
        cat "$log" >&2
        echo "$what failed." >&2
    fi
    rm -f "$log"
    return "$status"
}

# build PRESET [ARGUMENT...]: configures and builds; the arguments are for `cmake --build`. On a
# terminal the build system has a status line of its own.
build() {
    local preset=$1 command
    shift
    with_progress "Configuring $preset" cmake --preset "$preset" || return
    command=(cmake --build --preset "$preset" --parallel "$(nproc)" "$@")
    if is_on_terminal; then
        "${command[@]}"
    else
        with_progress "Building $preset" "${command[@]}"
    fi
}
