#!/bin/bash
# Formatting and lint of every source file, against the compile commands of the native preset.
#   tools/lint.sh [file...]
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
if [ $# -gt 0 ]; then
    sources=("$@")
else
    mapfile -t sources < <(git ls-files '*.cpp' '*.h')
fi
clang-format --dry-run -Werror "${sources[@]}"
units=()
for source in "${sources[@]}"; do
    if [[ $source == *.cpp && $source != */windows/* ]] && grep -q "\"[^\"]*/$source\"" build/native/compile_commands.json; then
        units+=("$source")
    fi
done
printf '%s\n' "${units[@]}" | xargs -P "$(nproc)" -n 4 clang-tidy -p build/native --quiet
