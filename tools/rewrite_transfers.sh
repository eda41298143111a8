#!/bin/bash
# Writes the records of transfers (tests/transfers) anew, from what the library does now: whole ones as text, random ones
# as hashes. Read the difference before it is committed; tools/compare_libraries.sh shows it for the random ones.
#   tools/rewrite_transfers.sh [build folder]
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
build=${1:-build/native}
cmake --build "$build" --target Z7XFRPCS z7x_tests z7x_random_transfers
rm -f tests/transfers/*.txt tests/transfers/random/*.txt
mkdir -p tests/transfers/random
export Z7X_REWRITE_TRANSFERS=1
"$build/bin/z7x_tests" --gtest_filter='Transfers.*'
ctest --test-dir "$build" -R '^random_transfers_'
git status --short tests/transfers
