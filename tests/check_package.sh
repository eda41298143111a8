#!/bin/bash
# check_package.sh BUILD NATIVE_Z7XFER VERSION FOLDER COMPILER EMULATOR ...: the package of the Windows build BUILD,
# unzipped in FOLDER with nothing beside it, receives, sends and browses as the native build does; the examples are built
# of nothing but what is in it; every program and library tells its version; links of the pages lead somewhere.
# EMULATOR runs Windows programs.
set -euo pipefail
export LC_ALL=C
build=$1 native=$2 version=$3 folder=$4 compiler=$5
shift 5
rm -rf "$folder"
mkdir -p "$folder"
cd "$folder"
(cd "$build" && cpack --config CPackConfig.cmake -B "$folder/packed") >cpack.log || { cat cpack.log; exit 1; }
cmake -E tar xf packed/*.zip
cd Z7XFRPCS-*/

# Without what could lead to the build: a path, a folder, a code-page file.
run() {
    env -i HOME="$folder" PATH=/usr/bin:/bin "${emulator[@]}" "$@"
}
emulator=("$@")

"$native" -q receive WORLD/COUNTRY "$folder/native.csv"
run bin/z7xfer.exe -q receive WORLD/COUNTRY countries.csv --describe '*.fdf'
cmp countries.csv "$folder/native.csv"
cp bin/sample.db host.db
sed 's/^AD,Andorra/AD,Principality of Andorra/' countries.csv >changed.csv
! cmp -s countries.csv changed.csv
member='WORLD/COUNTRY(CHANGED)'
run bin/z7xfer.exe -q send changed.csv "$member" --description countries.fdf --create member --host-data host.db
run bin/z7xfer.exe -q receive "$member" again.csv --host-data host.db
cmp changed.csv again.csv
run bin/z7xfer.exe -q browse WORLD/COUNTRY --host-data host.db >members
grep -F "$member" members

# The commands of the guide.
compile() {
    "$compiler" -std=c11 -Wall -Wextra -Wpedantic -Werror -I ../include "$@"
}
cd examples
compile -shared -o ZEHNTFW.DLL smallest_provider.c ZEHNTFW.def -Wl,--enable-stdcall-fixup
compile -shared -o ZHSTSERV.dll smallest_emulator.c ../lib/ZHSTSERV.def -Wl,--enable-stdcall-fixup
compile -DEXAMPLE_PROGRAM -o smallest_emulator.exe smallest_emulator.c -L ../lib -lZHSTSERV -lZ7XFRPCS
compile -o read_version.exe windows/read_version.c -lversion
cp ../bin/Z7XFRPCS.dll .
run smallest_emulator.exe QGPL/CUSTOMER received.csv
cmp received.csv customers.csv
cd ..

find bin -name '*.exe' -o -iname '*.dll' | sort >files
[ -s files ]
run examples/read_version.exe $(cat files) | tr -d '\r' >versions
sed "s/^/$version /" files | diff - versions

find doc -name '*.html' | while read -r page; do
    for target in $(grep -o 'href="[^"#:]*["#]' "$page" | cut -d'"' -f2 | tr -d '#' | sort -u); do
        [ -e "${page%/*}/$target" ] || { echo "$page: $target is not in the package"; exit 1; }
    done
done
