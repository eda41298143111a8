#!/bin/bash
# compare_with_native.sh NATIVE_BIN WINDOWS_BIN SCRIPT FOLDER EMULATOR ...: makes the same transfers with both builds, in
# every type of PC file, and compares all that they leave, byte for byte. Records and field descriptions are received
# from the provider that plays SCRIPT, which says more than a host would; from the sample host they are received, sent
# into a new member and received again. EMULATOR runs Windows programs.
set -eu
native=$1 windows=$2 script=$3 folder=$4
shift 4
emulator=("$@")
rm -rf "$folder"
mkdir -p "$folder/native" "$folder/windows"
cd "$folder"
[ -d "$native/scripted" ] || { echo "$native/scripted is missing: build the tests of the native build first"; exit 1; }
# A DIF file begins with the number of its records, which is asked for first.
awk '/^GET_DATA/ && !asked { print "GET_DATA 00000003"; asked = 1 } { print }' "$script" >counted.script

# transfer ARGUMENT ...: by the program that is compared.
transfer() {
    if [ "$system" = native ]; then
        "$native/z7xfer" "$@" -q
    else
        "${emulator[@]}" "$windows/z7xfer.exe" "$@" -q
    fi
}

# received FILE ARGUMENT ...: what a transfer is to leave is there and not empty.
received() {
    file=$1
    shift
    transfer receive "$@"
    [ -s "$file" ] || { echo "$file was not written"; exit 1; }
}

from_script() {
    Z7X_SCRIPT=$script
    [ "$type" != dif ] || Z7X_SCRIPT=$folder/counted.script
    export Z7X_SCRIPT
    received "$system/script.$type" QGPL/CUST "$system/script.$type" --type "$type" \
        --describe "$system/script-$type.fdf" --providers "$bin/scripted" --set TransportType=2 --set RouterKind=1
}

# Every kind of number at its limits goes one way: hexadecimal bytes do not come back from text.
from_host() {
    received "$system/numbers.$type" TESTLIB/NUMBERS "$system/numbers.$type" --type "$type" \
        --describe "$system/numbers-$type.fdf"
}

# To the PC, into a new member of a host of this system's own, and to the PC again.
circle() {
    zones=$system/zones.$type
    member="WORLD/ZONE($(echo "$type" | tr '[:lower:]' '[:upper:]'))"
    received "$zones" WORLD/ZONE "$zones" --type "$type" --describe "$system/zones-$type.fdf"
    transfer send "$zones" "$member" --type "$type" --description "$system/zones-$type.fdf" --create member \
        --host-data "$system.db"
    received "$zones.again" "$member" "$zones.again" --type "$type" --host-data "$system.db"
    cmp "$zones" "$zones.again"
}

for system in native windows; do
    if [ $system = native ]; then bin=$native; else bin=$windows; fi
    cp "$native/sample.db" $system.db
    for type in text basic csv random none tab dif; do
        from_script
        # Where the sample host was left out there is nothing to compare.
        if [ -e "$windows/sample.db" ]; then
            from_host
            circle
        fi
    done
done
diff -r native windows
ls -l native
