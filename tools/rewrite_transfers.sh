#!/bin/bash
# Writes the records of whole transfers (tests/transfers) anew, from what the library does now. Read the difference
# before it is committed.
#   tools/rewrite_transfers.sh [build folder]
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
build=${1:-build/native}
cmake --build "$build" --target Z7XFRPCS z7x_tests
rm -f tests/transfers/*.txt
Z7X_REWRITE_TRANSFERS=1 "$build/bin/z7x_tests" --gtest_filter='Transfers.*'
git status --short tests/transfers
