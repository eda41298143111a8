# Sourced by ./run and ./test. Installs what a Debian machine lacks of the packages named; says nothing and asks nobody
# when all are there, so that a machine without root or network can build once it is set up.

missing_packages() {
    local package
    for package in "$@"; do
        [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || echo "$package"
    done
}

install_packages() {
    local missing root=()
    mapfile -t missing < <(missing_packages "$@")
    [ "${#missing[@]}" -gt 0 ] || return 0
    if ! command -v apt-get >/dev/null; then
        echo "These packages are needed and there is no apt-get to install them: ${missing[*]}" >&2
        return 1
    fi
    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null; then
            echo "These packages are needed; install them as root: apt-get install ${missing[*]}" >&2
            return 1
        fi
        root=(sudo)
    fi
    echo "Installing ${missing[*]}" >&2
    # Package lists that are there may do when the update cannot reach its servers.
    "${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update -qq >&2 ||
        echo "apt-get update failed; trying with the lists there are" >&2
    "${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -qq -y --no-install-recommends \
        "${APT_OPTIONS[@]}" "${missing[@]}" >&2
}

APT_OPTIONS=()
BUILD_PACKAGES=(g++ cmake ninja-build libcli11-dev libsqlite3-dev libicu-dev tzdata)
TEST_PACKAGES=(libgtest-dev python3 clang)
# Of one version: another formats and judges otherwise.
LINT_PACKAGES=(clang-format-14 clang-tidy-14)
# By which Python talks to LibreOffice; and that without a desktop, unless there is one, whose place it would take.
SPREADSHEET_PACKAGES=(python3-uno)
command -v soffice >/dev/null || SPREADSHEET_PACKAGES+=(libreoffice-calc-nogui)
# dpkg-dev and tcl: SQLite is made from its source package. The last two: guide and reference become HTML.
WINDOWS_PACKAGES=(g++-mingw-w64-i686 googletest wine wine32:i386 locales dpkg-dev tcl python3-markdown-it
    python3-mdit-py-plugins)

# From the release itself, without its updates: packages of two architectures that come from different archives do not fit
# together.
install_released_packages() {
    local APT_OPTIONS=(-t "$(. /etc/os-release && echo "$VERSION_CODENAME")")
    install_packages "$@"
}

# Leaves room for Wine, whose libraries it shares, as long as the machine has them from the release, too.
install_spreadsheet_packages() {
    install_released_packages "${SPREADSHEET_PACKAGES[@]}" || install_packages "${SPREADSHEET_PACKAGES[@]}"
}

# The Windows tool chain, and Wine for 32-bit programs. Fails, having said why, on a machine that has no way to get them.
install_windows_packages() {
    local root=()
    [ "$(id -u)" -eq 0 ] || root=(sudo)
    if ! dpkg --print-foreign-architectures | grep -qx i386; then
        "${root[@]}" dpkg --add-architecture i386 || return 1
    fi
    install_released_packages "${WINDOWS_PACKAGES[@]}"
}
