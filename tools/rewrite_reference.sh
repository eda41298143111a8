#!/bin/bash
# Writes docs/reference anew, from the lists and headers that the code is built of.
#   tools/rewrite_reference.sh [build folder]
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
build=${1:-build/native}
cmake --build "$build" --target z7x_reference
"$build/bin/z7x_reference" . docs/reference
git status --short docs/reference
