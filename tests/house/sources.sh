#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
#   sources.sh ROOT
#
# Checks that each source begins with its licence line, is valid UTF-8 and has an ASCII name. Files of more than 400 lines are
# reported but are not a failure.
set -euo pipefail
export LC_ALL=C
cd "$1"

fault=0
count=0
while IFS= read -r -d '' file; do
    count=$((count + 1))
    case $file in
        *[!\ -~]*) echo "$file: the name is not ASCII"; fault=1 ;;
    esac
    head -c 35 "$file" | grep -q '^// SPDX-License-Identifier: MIT' || { echo "$file: no licence line at the top"; fault=1; }
    iconv -f UTF-8 -t UTF-8 "$file" >/dev/null 2>&1 || { echo "$file: not UTF-8"; fault=1; }
    lines=$(wc -l <"$file")
    [ "$lines" -le 400 ] || echo "note: $file has $lines lines; does it still hold one subject?"
done < <(find src tests bench fuzz \( -name '*.cpp' -o -name '*.h' \) -print0)
[ "$count" -gt 0 ] || { echo "no sources found"; fault=1; }
exit $fault
