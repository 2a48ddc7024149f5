#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Two hosts on a private network: servers, a companion, and a hostile neighbour.
#
#   tests/remote/network.sh REMOTE_HOST TONQUILCTL [DATAGRAMS]
#
# Needs network namespaces, and says so if there are none. DATAGRAMS is the size of the flood.
set -euo pipefail
remote_host=$1
tonquilctl=$2
datagrams=${3:-100000}
# What the address sanitizer keeps back of freed memory would count as growth.
export ASAN_OPTIONS=quarantine_size_mb=1:thread_local_quarantine_size_kb=64
here=$(cd "$(dirname "$0")" && pwd)
left=tonquil-left-$$
right=tonquil-right-$$
folder=$(mktemp -d)
processes=()

end() {
    ((${#processes[@]} == 0)) || kill "${processes[@]}" 2> /dev/null || true
    wait || true
    ip netns delete "$left" 2> /dev/null || true
    ip netns delete "$right" 2> /dev/null || true
    rm -rf "$folder"
}
trap end EXIT

if ! { ip netns add "$left" && ip netns add "$right" &&
    ip link add tq0 netns "$left" type veth peer name tq0 netns "$right"; } 2> /dev/null; then
    echo "Skipped: network namespaces and links cannot be made here."
    exit 77
fi
ip -n "$left" address add 10.99.0.1/24 brd + dev tq0
ip -n "$right" address add 10.99.0.2/24 brd + dev tq0
for name in "$left" "$right"; do
    ip -n "$name" link set tq0 up
    ip -n "$name" link set lo up
done

failures=0
# expect WHAT COMMAND...: the command must succeed.
expect() {
    local what=$1
    shift
    if ! "$@"; then
        echo "FAILED: $what"
        failures=$((failures + 1))
    fi
}
# refuse WHAT COMMAND...: the command must fail with status 1 and one line.
refuse() {
    local what=$1 status=0
    shift
    "$@" > "$folder/refused" 2>&1 || status=$?
    if ((status != 1)) || (($(wc -l < "$folder/refused") != 1)); then
        echo "FAILED: $what (status $status): $(< "$folder/refused")"
        failures=$((failures + 1))
    fi
}
in_left() { ip netns exec "$left" "$@"; }
in_right() { ip netns exec "$right" "$@"; }
# await FILE TEXT: waits up to 5 s for TEXT to appear in FILE.
await() {
    for _ in {1..50}; do
        if grep -qsF -- "$2" "$folder/$1"; then
            return 0
        fi
        sleep 0.1
    done
    return 1
}
scan_finds() {
    in_right "$tonquilctl" remote scan > "$folder/scan" && [[ $(grep -c $'^10\\.' "$folder/scan") == "$1" ]]
}

ip netns exec "$left" "$remote_host" > "$folder/left.log" &
server=$!
ip netns exec "$right" "$remote_host" 44188 7-7-7 > "$folder/right.log" &
processes=("$server" $!)
expect "the left one passes its self-test" await left.log "The self-test is over."
expect "the right one passes its self-test" await right.log "The self-test is over."
expect "a scan finds both" scan_finds 2
cat "$folder/scan"

refuse "a second server on one computer" in_left "$remote_host"
expect "it says why" grep -qx "CFSocketSetAddress() failed 98" "$folder/refused"

# A shell makes its background processes ignore SIGINT.
ip netns exec "$right" env --default-signal=INT "$tonquilctl" remote watch 10.99.0.1 \
    > "$folder/watch" &
watch=$!
processes+=("$watch")
expect "a watch shows what there is" await watch transparent
expect "a target is shown" in_right "$tonquilctl" remote set 10.99.0.1 1-10-21036 \
    --content colorTargets
expect "a watch shows each change" await watch colorTargets
kill -INT "$watch"
expect "a watch ends well" wait "$watch"
expect "two lines were shown" test "$(wc -l < "$folder/watch")" == 2
refuse "an unknown display" in_right "$tonquilctl" remote get 10.99.0.1 none
refuse "a computer without a server" in_right "$tonquilctl" remote get 10.99.0.3

# A second network, while the first one has the default route.
ip link add tq1 netns "$left" type veth peer name tq1 netns "$right"
ip -n "$left" address add 10.97.0.1/24 brd + dev tq1
ip -n "$right" address add 10.97.0.2/23 brd + dev tq1
ip -n "$left" link set tq1 up
ip -n "$right" link set tq1 up
ip -n "$left" route add default dev tq0
in_left "$tonquilctl" remote scan > "$folder/scan"
expect "a scan goes to every network" grep -q '^10\.99\.0\.2' "$folder/scan"
expect "also past the default route" grep -q '^10\.97\.0\.2' "$folder/scan"
ip -n "$right" link delete tq1

expect "a flood leaves it well" in_right python3 "$here/flood.py" 10.99.0.1 44188 "$datagrams" \
    "$server"
expect "the server runs on" scan_finds 2
((failures == 0))
