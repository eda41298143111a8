#!/bin/bash
# Installs a build and uses what was installed, from another folder: the program, its manual page and its completion.
#   check_installation.sh BUILD PREFIX
set -euo pipefail
build=$1 prefix=$2
rm -rf "$prefix" "$prefix.moved"
cmake --install "$build" --prefix "$prefix" >/dev/null
mv "$prefix" "$prefix.moved" # it may stand anywhere
prefix=$prefix.moved
cd "$prefix"
export Z7X_DATA_FOLDER=$PWD/data
failed=0
# expect WHAT WANTED COMMAND...: the command's output holds the text.
expect() {
    local what=$1 wanted=$2 output
    shift 2
    output=$("$@" 2>&1) || true
    [[ $output == *"$wanted"* ]] && return
    printf '%s: %s was expected, this came:\n%s\n' "$what" "$wanted" "$output" >&2
    failed=1
}
# What bash offers for the last of these words.
complete_bash() (
    . share/bash-completion/completions/z7xfer
    compopt() { :; }
    COMP_WORDS=("$@") COMP_CWORD=$(($# - 1))
    _z7xfer
    echo "(${COMPREPLY[*]})"
)

expect version "made from ICU" bin/z7xfer --version
for transport in ibm appc emulator as400; do
    expect "a transfer by $transport" "complete: 10 records" \
        bin/z7xfer receive QGPL/CUST cust.csv --set RouterKind=ibm --set TransportType=$transport
done
expect "a sample host" "complete: 47 records" \
    bin/z7xfer receive JAPAN/PREF pref.csv --set HostCodePage=939 --ansi-code-page 932 --language-id 0x411
expect "manual page" "fB\\-\\-order\\-by" cat share/man/man1/z7xfer.1
expect "completed command" "(receive)" complete_bash z7xfer rec
expect "completed option" "(--order-by)" complete_bash z7xfer receive A/B --or
expect "completed value" "(csv)" complete_bash z7xfer receive --type = c
expect "completed setting" "(DateFormat=)" complete_bash z7xfer send a b --set DateF
expect "completed setting's value" "(iso)" complete_bash z7xfer send a b --set DateFormat = i
expect "completion for zsh" "#compdef z7xfer" head -n 1 share/zsh/site-functions/_z7xfer
if command -v zsh >/dev/null; then zsh -n share/zsh/site-functions/_z7xfer || failed=1; fi
exit "$failed"
