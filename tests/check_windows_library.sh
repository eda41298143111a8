#!/bin/sh
# check_windows_library.sh OBJDUMP LIBRARY EXPORTS SERVICES: the library exports exactly the names of EXPORTS, each under
# the ordinal of its line, and imports from nothing but Windows and the service library; of that, only what SERVICES, its
# definition file, lists.
set -eu
export LC_ALL=C
objdump=$1 library=$2 exports=$3 services=$4
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
"$objdump" -p "$library" >"$work/headers"

awk '/^\[Ordinal\/Name Pointer\] Table/ { on = 1; next } on && NF == 0 { exit } on { sub(/\]/, "", $2); print $2 + 1, $3 }' \
    "$work/headers" | sort -n >"$work/exported"
awk '{ print NR, $1 }' "$exports" | diff -u - "$work/exported"
# Functions without a name would stand in the address table only.
addresses=$(awk '/Export Address Table[ \t]+[0-9a-f]+$/ { print $NF; exit }' "$work/headers")
[ "$((0x$addresses))" -eq "$(wc -l <"$exports")" ] || { echo "exported addresses: 0x$addresses"; exit 1; }

printf '%s\n' KERNEL32.dll SHELL32.dll USER32.dll ZHSTSERV.dll msvcrt.dll | sort >"$work/allowed"
awk '/DLL Name:/ { print $3 }' "$work/headers" | sort | comm -23 - "$work/allowed" >"$work/foreign"
[ ! -s "$work/foreign" ] || { echo "imports from:"; cat "$work/foreign"; exit 1; }

awk '/DLL Name:/ { on = $3 == "ZHSTSERV.dll"; next } NF == 0 { on = 0 } on && NF == 3 && $3 ~ /^[A-Za-z_]/ && $3 != "Hint/Ord" { print $3 }' \
    "$work/headers" | sort >"$work/asked"
grep -q . "$work/asked"
sed -n 's/^ *\(zhst[A-Za-z_0-9]*\)@.*/\1/p' "$services" | sort >"$work/listed"
diff "$work/asked" "$work/listed" || { echo "the services asked for (<) are not those listed (>)"; exit 1; }
