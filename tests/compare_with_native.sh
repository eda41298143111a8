#!/bin/sh
# compare_with_native.sh NATIVE_Z7XFER WINDOWS_BIN SCRIPT FOLDER EMULATOR ...: receives the same records with both builds,
# once in every type of PC file and with a description, from the provider that plays SCRIPT; the files are the same, byte
# for byte. EMULATOR runs Windows programs.
set -eu
native=$1 bin=$2 folder=$4
script=$3
shift 4
rm -rf "$folder"
mkdir -p "$folder"
cd "$folder"
# A DIF file begins with the number of its records, which is asked for first.
awk '/^GET_DATA/ && !asked { print "GET_DATA 00000003"; asked = 1 } { print }' "$script" >counted.script
providers=$(dirname "$native")/scripted
[ -d "$providers" ] || { echo "$providers is missing: build the tests of the native build first"; exit 1; }

receive() {
    "$@" -q --set TransportType=2 --set RouterKind=1
}
for type in text basic csv random none tab dif; do
    Z7X_SCRIPT=$script
    [ $type != dif ] || Z7X_SCRIPT=$folder/counted.script
    export Z7X_SCRIPT
    for system in native windows; do
        mkdir -p "$system"
        if [ $system = native ]; then
            receive "$native" receive QGPL/CUST native/$type.dat --type $type --describe $type.fdf --providers "$providers"
        else
            receive "$@" "$bin/z7xfer.exe" receive QGPL/CUST windows/$type.dat --type $type --describe $type.fdf \
                --providers "$bin/scripted"
        fi
        [ -s "$system/$type.dat" ] || { echo "$system: no file of type $type"; exit 1; }
    done
done
diff -r native windows
ls -l native
