#!/bin/bash
# Shows that the package for Windows hangs on nothing but the sources: clones the last commit into two folders, builds the
# package in both, and compares the two files byte for byte. Takes as long as two builds without tests; not part of ./test.
#   tools/same_package.sh [FOLDER]    FOLDER, or a temporary one, is where the clones stand
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. tools/setup.sh

work=${1:-}
if [ -z "$work" ]; then
    work=$(mktemp -d)
    trap 'rm -rf "$work"' EXIT
fi
install_packages "${BUILD_PACKAGES[@]}"
install_windows_packages

commit=$(git rev-parse HEAD)
# What was already made of SQLite's source package will do: it is the same file wherever it is made.
clone_sources() {
    git clone --quiet . "$1"
    git -C "$1" checkout --quiet --detach "$commit"
    [ ! -d build/windows-sqlite ] || { mkdir -p "$1/build" && cp -r build/windows-sqlite "$1/build/"; }
}

# Of the native build only what the other one takes from it. No cache of compilers: it would hand the first build's
# objects to the second.
build_package() (
    export CCACHE_DISABLE=1
    cd "$1"
    tools/windows_sqlite.sh
    cmake --preset native -DBUILD_TESTING=OFF
    cmake --build --preset native --target codepage_data sample_host
    cmake --preset windows -DBUILD_TESTING=OFF
    cmake --build --preset windows
    cd build/windows
    cpack --config CPackConfig.cmake
)

for clone in "$work/one" "$work/another/further/down"; do
    echo "Building in $clone" >&2
    clone_sources "$clone"
    build_package "$clone" >"$work/log" 2>&1 || { tail -n 50 "$work/log" >&2; exit 1; }
done
sha256sum "$work"/one/build/windows/*.zip "$work"/another/further/down/build/windows/*.zip
cmp "$work"/one/build/windows/*.zip "$work"/another/further/down/build/windows/*.zip
echo "The two packages are the same."
