#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
#   core_without_qt.sh VATRO VATRO-REPLAY LIBRARY...
#
# The logic knows no toolkit: vatro-replay links no Qt, directly or through another library, and none of the storeys' libraries asks
# for a symbol of Qt. The window program, unless its name is empty because it is not built, shows that each search would find Qt.
set -euo pipefail
export LC_ALL=C
window=$1 replay=$2
shift 2

libraries() { ldd "$1" | grep -oE '^[[:space:]]*lib[^ ]+' || true; }
# Names of Qt among the undefined symbols; names of the program have vatro:: before them.
qt_symbols() { nm -uC "$1" 2>/dev/null | grep -E '(^|[^A-Za-z0-9_:])(Q[A-Z][A-Za-z0-9]*(::|\()|Qt::|qt_|QtPrivate::|typeinfo for Q[A-Z])' || true; }

fault=0
complain() {
    echo "$1"
    [ -z "${2:-}" ] || printf '%s\n' "$2" | head -20
    fault=1
}

found=$(libraries "$replay")
grep -q 'libc\.so' <<<"$found" || complain "the libraries of $replay could not be read" "$found"
qt=$(grep -i 'qt' <<<"$found" || true)
[ -z "$qt" ] || complain "$replay links Qt:" "$qt"

[ $# -gt 0 ] || complain "no library to look at"
for file in "$@"; do
    [ -n "$(nm -C "$file" 2>/dev/null | grep ' T vatro::')" ] || complain "the symbols of $file could not be read"
done
for file in "$@" "$replay"; do
    qt=$(qt_symbols "$file")
    [ -z "$qt" ] || complain "$file asks for symbols of Qt:" "$qt"
done

if [ -n "$window" ]; then
    grep -qi 'qt6widgets' <<<"$(libraries "$window")" || complain "the search for libraries does not find Qt in $window"
    [ -n "$(qt_symbols "$window")" ] || complain "the search for symbols does not find Qt in $window"
fi
exit $fault
