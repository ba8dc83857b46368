#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
#   core_without_qt.sh VATRO VATRO-REPLAY LIBRARY...
#
# Checks that the logic uses no toolkit: vatro-replay links no Qt library, directly or indirectly, and no storey library refers
# to a Qt symbol. The same searches must find Qt in the window program, which proves that they work; its name is empty if it is
# not built.
set -euo pipefail
export LC_ALL=C
window=$1 replay=$2
shift 2

libraries() { ldd "$1" | grep -oE '^[[:space:]]*lib[^ ]+' || true; }
# Qt names among the undefined symbols. The program's own names begin with vatro::, so they do not match.
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
