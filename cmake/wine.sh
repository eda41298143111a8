#!/bin/sh
# wine.sh FOLDER PROGRAM [ARGUMENT ...]: runs a Windows program under Wine. FOLDER holds the Windows it runs on, made on
# first use, and the locales: Wine takes the PC's language and code pages from LC_MESSAGES and LC_CTYPE. Z7X_LOCALE picks
# another language than English (ja_JP, ko_KR, zh_CN, zh_TW).
set -eu
folder=$1
shift
export WINEPREFIX="$folder/prefix" WINEARCH=win32 WINEDEBUG="${WINEDEBUG:--all}"
# No registering of menus, and no offers to download a browser or a run-time.
export WINEDLLOVERRIDES="mscoree=;mshtml=;winemenubuilder.exe="

prepare() {
    [ -e "$folder/ready" ] && return
    mkdir -p "$folder/locales"
    for locale in en_US en_GB ja_JP ko_KR zh_CN zh_TW; do
        [ -d "$folder/locales/$locale.UTF-8" ] ||
            localedef -i "$locale" -f UTF-8 "$folder/locales/$locale.UTF-8" || return
    done
    wine wineboot -i >"$folder/wineboot.log" 2>&1 || { cat "$folder/wineboot.log" >&2; return 1; }
    : >"$folder/ready"
}

mkdir -p "$folder"
# Several tests may come first at the same time.
(flock 9 && prepare) 9>"$folder/lock"

unset LANG LANGUAGE LC_ALL
export LOCPATH="$folder/locales"
if [ -n "${Z7X_LOCALE:-}" ]; then
    export LC_ALL="$Z7X_LOCALE.UTF-8"
else
    # American English with the code pages 1252 and 850; a wholly American PC has 437 for its OEM page.
    export LC_MESSAGES=en_US.UTF-8 LC_CTYPE=en_GB.UTF-8
fi

# Wine's server ends soon after its last program, and a program that starts in just that moment loses it: it is asked to
# stay for a while. Nothing happens when it runs already.
wineserver -p60 >/dev/null 2>&1 || true

# What the first program starts in the background keeps its output open and lives on for a while: by way of files, nobody
# waits for the end of that.
output=$(mktemp -d "$folder/output.XXXXXX")
status=0
wine "$@" >"$output/1" 2>"$output/2" || status=$?
# Should it be lost all the same, the program has not run.
if [ "$status" -ne 0 ] && grep -q '^wine client error' "$output/2"; then
    status=0
    wine "$@" >"$output/1" 2>"$output/2" || status=$?
fi
cat "$output/1"
cat "$output/2" >&2
rm -rf "$output"
exit $status
