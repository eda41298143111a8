#!/bin/sh
# check_exports.sh LIBRARY LIST: the library's visible names are exactly those of the list, one a line.
set -eu
export LC_ALL=C
visible=$(mktemp)
trap 'rm -f "$visible"' EXIT
nm -D --defined-only "$1" | awk '{ print $NF }' | sort >"$visible"
sort "$2" | diff -u - "$visible"
