#!/bin/sh
# check_headers.sh INCLUDE_FOLDER C_COMPILER CXX_COMPILER [FLAG...]: every public header compiles without a warning, as
# C11, C++17 and C++20, by itself, twice, and with all others, and its lists can be used from C. No library of the
# compiler's is needed: a target that has none here can be asked for, too.
set -eu
include=$1 c=$2 cxx=$3
shift 3
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

strict="-Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wundef -Wcast-qual -Werror -pedantic-errors"
case $("$cxx" --version) in *clang*) strict="$strict -Weverything -Wno-padded -Wno-c++98-compat-pedantic" ;; esac

compile() {
    set -- "$@" $strict -ffreestanding -fsyntax-only -I"$include" "$folder/use.c"
    "$c" -std=c11 -x c -Wc++-compat -Wstrict-prototypes "$@"
    for standard in 17 20; do "$cxx" -std=c++$standard -x c++ "$@"; done
}

cd "$include"
for header in Z7XFRPCS/*.h; do
    printf '#include "%s"\n#include "%s"\ntypedef int used;\n' "$header" "$header" >"$folder/use.c"
    compile "$@"
done
# All together, backwards, so that none leans on the one in front of it; and each list made into an enumeration.
{
    printf '#include "%s"\n' $(ls -r Z7XFRPCS/*.h)
    for list in $(sed -n 's/^#define \(ZHST_[A-Z_]*\)(X).*/\1/p' Z7XFRPCS/*.h); do
        printf '#define ROW(...) +1\nenum Rows%s { RowsOf%s = 0 %s(ROW) };\n#undef ROW\n' "$list" "$list" "$list"
    done
} >"$folder/use.c"
compile "$@"
