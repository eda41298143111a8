#!/bin/bash
# Whether two builds of the library behave the same over random transfers, COUNT of them on each of six PCs. Both run in
# z7x_random_transfers (tools/compare) of build/native, or of the folder $Z7X_BIN, with the emulator's stand-in and the
# providers there. Ends with 1, and with the first transfer that differs, when one does.
#   tools/compare_libraries.sh OLD_LIBRARY NEW_LIBRARY [COUNT [SEED [OPTION...]]]
# For the options, of that program, see its usage.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
program=${Z7X_BIN:-$root/build/native/bin}/z7x_random_transfers
if [ $# -lt 2 ] || [ ! -x "$program" ]; then
    echo "usage: $0 OLD_LIBRARY NEW_LIBRARY [COUNT [SEED [OPTION...]]]" >&2
    [ -x "$program" ] || echo "There is no $program." >&2
    exit 2
fi
old=$(realpath -e "$1")
new=$(realpath -e "$2")
count=${3:-4000}
seed=${4:-1}
options=("${@:5}")

# Thousands of small files come and go, in memory where that can be had.
if [ -w /dev/shm ]; then export TMPDIR=/dev/shm; fi
work=$(mktemp -d)
export TMPDIR=$work
trap 'rm -rf "$work"' EXIT

run() { # library, file for the output, options of this run
    local library=$1 output=$2
    shift 2
    Z7X_LIBRARY=$library "$program" --pc "$pc" --seed "$seed" "${options[@]}" "$@" >"$output" ||
        echo "ended with status $?" >>"$output"
}

run_both() {
    run "$old" "$work/old" "$@" &
    run "$new" "$work/new" "$@"
    wait $!
}

for pc in 0 1 2 3 4 5; do
    run_both --count "$count"
    if cmp -s "$work/old" "$work/new"; then
        if grep -q '^ended with status' "$work/old"; then
            echo "PC $pc: neither library runs to the end." >&2
            exit 2
        fi
        continue
    fi
    differing=$(diff "$work/old" "$work/new" | grep -c '^<' || true)
    number=$({ cmp "$work/old" "$work/new" || true; } | sed 's/.* line //')
    echo "PC $pc: $differing of $count transfers differ. The first is $number:"
    run_both --show "$number"
    diff -u --label "$old" --label "$new" "$work/old" "$work/new" || true
    exit 1
done
echo "No difference in $((6 * count)) transfers."
