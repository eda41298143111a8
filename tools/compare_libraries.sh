#!/bin/bash
# Whether two builds of the library behave the same, over random transfers on every PC (tools/compare). Needs the program
# z7x_random_transfers in build/native, or in the folder of $Z7X_BIN; both libraries run with the emulator's stand-in and
# the providers beside it.
#   tools/compare_libraries.sh OLD_LIBRARY NEW_LIBRARY [COUNT [SEED [OPTION...]]]
# COUNT is the number of transfers on each of the six PCs; options go to the program (see its usage). Ends with 1, and with
# the first transfer that differs, when one does.
set -euo pipefail
if [ $# -lt 2 ]; then
    sed -n '/^#   /s/^#   /usage: /p' "${BASH_SOURCE[0]}" >&2
    exit 2
fi
old=$(realpath -e "$1")
new=$(realpath -e "$2")
count=${3:-4000}
seed=${4:-1}
options=("${@:5}")

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
program=${Z7X_BIN:-$root/build/native/bin}/z7x_random_transfers
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
# Thousands of small files come and go.
if [ -w /dev/shm ]; then export TMPDIR=/dev/shm; fi

run() { # library, file for the output, options of this run
    local library=$1 output=$2
    shift 2
    Z7X_LIBRARY=$library "$program" --pc "$pc" --seed "$seed" "${options[@]}" "$@" >"$output" ||
        echo "ended with status $?" >>"$output"
}

for pc in 0 1 2 3 4 5; do
    run "$old" "$work/old" --count "$count" &
    run "$new" "$work/new" --count "$count"
    wait $!
    if cmp -s "$work/old" "$work/new"; then
        # Alike, but not if both could not run.
        [ "$(wc -l <"$work/old")" -eq "$count" ] && continue
        tail -n 3 "$work/old" >&2
        exit 2
    fi
    differing=$(diff "$work/old" "$work/new" | grep -c '^<' || true)
    number=$(cmp "$work/old" "$work/new" | sed 's/.* line //')
    echo "PC $pc: $differing of $count transfers differ. The first is $number:"
    run "$old" "$work/old" --show "$number" &
    run "$new" "$work/new" --show "$number"
    wait $!
    diff -u --label "$old" --label "$new" "$work/old" "$work/new" || true
    exit 1
done
echo "$((6 * count)) transfers: no difference."
