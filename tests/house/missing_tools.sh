#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
#   missing_tools.sh TESTS
#
# Checks that a test whose tool is missing is skipped on a developer's machine and fails if CI is "true". Each such test is
# started with a path that holds only a shell, Python and a few small programs.
set -euo pipefail
tests=$1
bare=$(mktemp -d)
trap 'rm -rf "$bare"' EXIT
for tool in bash env dirname basename mktemp rm cat mkdir; do ln -s "$(command -v $tool)" "$bare/$tool"; done
ln -s "$(python3 -c 'import sys; print(sys.executable)')" "$bare/python3"

fault=0
count=0
while read -r -a call; do
    count=$((count + 1))
    for ci in true false; do
        wanted=$([ $ci = true ] && echo 1 || echo 77)
        outcome=0
        told=$(PATH=$bare CI=$ci "$tests/${call[0]}" "${call[@]:1}" 2>&1 </dev/null) || outcome=$?
        [ $outcome = "$wanted" ] && grep -q 'not installed' <<<"$told" || { echo "${call[0]} with CI=$ci ends with $outcome, not $wanted: $told"; fault=1; }
    done
done <<CALLS
house/format.sh $tests/..
house/package.sh $tests/..
house/out_parameters.py $tests/../src build
house/spelling.py $tests/..
morse/decode_morse.py vatro-replay
sound/with_sound_card.sh true
sound/cw_on_air.sh vatro data 20 TEST
readers/read.sh adif vatro-replay modules
readers/read.sh html vatro-replay
readers/read.sh pdf vatro-replay vatro-print-pdf
desktop/with_window_manager.sh openbox true
desktop/ends.py vatro data
desktop/print_server.py vatro data
desktop/clock.py vatro data
desktop/copy.py vatro data
desktop/first_page.py vatro data
desktop/sizes.py vatro data openbox
desktop/keyboard.py vatro data openbox
desktop/docking.py vatro data openbox
desktop/places.py vatro data openbox
desktop/menus.py vatro data openbox
desktop/keys.py vatro data
desktop/modules.py vatro data
desktop/idle.py vatro data
typing/typing.sh vatro data
typing/typing_while_sending.sh vatro data
power/kill_corrections.py vatro data
CALLS

# Finds tests that are missing from the list above.
listed=$(grep -cE '^[a-z]+/[a-z_]+\.(sh|py)' "$0")
having=$(cd "$tests" && grep -rlE 'skip\.sh"|return 1 if .*CI|exit\(1 if .*CI|skip_without_tools\(|program_on_screen\.sh"' --include='*.sh' --include='*.py' . |
    grep -cvE '/(missing_tools\.sh|program_on_screen\.sh|desktop\.py)$')
distinct=$(grep -oE '^[a-z]+/[a-z_]+\.(sh|py)' "$0" | sort -u | wc -l)
[ "$having" = "$distinct" ] || { echo "$having tests can be skipped, $distinct of them are tried here"; fault=1; }
[ "$count" = "$listed" ] || { echo "of $listed calls $count were made"; fault=1; }
exit $fault
