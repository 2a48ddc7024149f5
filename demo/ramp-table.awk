# SPDX-License-Identifier: MIT
# Prints a few entries of two ramps side by side: awk -f ramp-table.awk WAS NOW
BEGIN {
    FS = "\t"
}
FNR == NR {
    was[$1] = sprintf("%6d  %6d  %6d", $2, $3, $4)
    next
}
{
    now[$1] = sprintf("%6d  %6d  %6d", $2, $3, $4)
    last = $1
}
END {
    printf "         %-22s    %-22s\n", "was", "is now"
    printf "  entry  %6s  %6s  %6s    %6s  %6s  %6s\n", "red", "green", "blue", "red", "green", "blue"
    for (step = 0; step <= 4; ++step) {
        entry = int(step * (last + 1) / 4)
        if (entry > last)
            entry = last
        printf "  %5d  %s    %s\n", entry, was[entry], now[entry]
    }
}
