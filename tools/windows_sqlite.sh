#!/bin/bash
# Makes SQLite for the Windows build, which no package brings: Debian's own source, at the version of its release, compiled
# into a static library in build/windows-sqlite, where the tool chain file looks. Done once, and again when this script has
# changed; says why when it cannot be had. Needs no root: apt keeps a list of sources of its own here, made from the
# archives that this machine is set up with.
set -euo pipefail
script=$(readlink -f "${BASH_SOURCE[0]}")
cd "$(dirname "$script")/.."

result=$PWD/build/windows-sqlite
[ ! "$result/lib/libsqlite3.a" -nt "$script" ] || exit 0

for tool in apt-get dpkg-source tclsh make cc i686-w64-mingw32-gcc-posix; do
    command -v "$tool" >/dev/null || { echo "SQLite for Windows cannot be made: $tool is missing" >&2; exit 1; }
done

mkdir -p "$result"
work=$(mktemp -d "$result/work.XXXXXX")
trap 'rm -rf "$work"' EXIT

# The archives of this release, without those of others that serve it.
list_sources() {
    local release keyring=/usr/share/keyrings/debian-archive-keyring.gpg options=""
    release=$(. /etc/os-release && echo "$VERSION_CODENAME")
    [ ! -e "$keyring" ] || options="[signed-by=$keyring] "
    apt-get indextargets --format "\$(RELEASE) \$(COMPONENT) \$(REPO_URI)" "Created-By: Packages" |
        awk -v release="$release" -v options="$options" '
            $2 == "main" && ($1 == release || index($1, release "-") == 1) { print "deb-src " options $3, $1, $2 }' |
        sort -u
}

fetch() {
    local state=$work/apt options
    mkdir -p "$state/lists/partial" "$state/cache/archives/partial"
    list_sources >"$state/sources.list"
    options=(-qq -o "Dir::Etc::SourceList=$state/sources.list" -o Dir::Etc::SourceParts=- -o "Dir::State::Lists=$state/lists"
        -o "Dir::Cache=$state/cache" -o APT::Sandbox::User=root)
    # One of several archives may be out of reach.
    apt-get "${options[@]}" update || echo "apt-get update failed; trying with what came" >&2
    (cd "$work" && apt-get "${options[@]}" source --only-source sqlite3 >"$work/log" 2>&1) || { cat "$work/log" >&2; return 1; }
}

# What is stored and how it is compared is the same on both systems: the options that matter are those of Debian's library.
compile() {
    local source
    source=$(echo "$work"/sqlite3-*/)
    mkdir -p "$work/made" "$result/include" "$result/lib"
    (cd "$work/made" && "$source/configure" --disable-tcl && make sqlite3.c) >"$work/log" 2>&1 || { cat "$work/log" >&2; return 1; }
    i686-w64-mingw32-gcc-posix -O2 -msse2 -mfpmath=sse -DSQLITE_SECURE_DELETE -DSQLITE_ENABLE_COLUMN_METADATA \
        -DSQLITE_ENABLE_MATH_FUNCTIONS -DSQLITE_LIKE_DOESNT_MATCH_BLOBS -DSQLITE_SOUNDEX \
        -DSQLITE_MAX_VARIABLE_NUMBER=250000 -DSQLITE_OMIT_LOAD_EXTENSION \
        -c "$work/made/sqlite3.c" -o "$work/made/sqlite3.o"
    cp "$work/made/sqlite3.h" "$result/include/"
    # Whole or not at all: its being there says that it is done.
    i686-w64-mingw32-ar rcs "$work/libsqlite3.a" "$work/made/sqlite3.o"
    mv "$work/libsqlite3.a" "$result/lib/"
}

echo "Making SQLite for Windows from its source package" >&2
fetch || { echo "SQLite for Windows cannot be made: its source package cannot be had" >&2; exit 1; }
compile || { echo "SQLite for Windows cannot be made: it does not compile" >&2; exit 1; }
