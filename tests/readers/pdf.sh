#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
#   pdf.sh LOG-DIRECTORY FILE.pdf
#
# Reads the text that was printed. It must have the lines of every sheet that the program wrote as a file, in order, and a
# numbered footer on each page. Blanks are ignored, because the totals are in other columns on paper.
set -euo pipefail
export LC_ALL=C.UTF-8
logs=$1 pdf=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

squeezed() { sed -E 's/[[:space:]]+/ /g; s/^ //; s/ $//' | grep -v '^$'; }

pdftotext -layout -enc UTF-8 "$pdf" "$work/text"
tr '\f' '\n' <"$work/text" | squeezed >"$work/printed"

# The sheets in the order of the print job. Their first line holds the version; on paper it is part of the footer.
for band in 80 40 20 15 10; do
    for mode in CW SSB; do
        sheet=$logs/SM${band}m$mode.txt
        [ ! -e "$sheet" ] || cat "$sheet"
    done
done >"$work/sheets"
cat "$logs/Mult.txt" >>"$work/sheets"
grep -a '^Total:' "$logs/Summary.txt" >>"$work/sheets"
iconv -f CP1252 -t UTF-8 "$work/sheets" | tr '\f' ' ' | squeezed | sed 's/, (Vatro version.*//' >"$work/wanted"

# On paper only the footers, and the summary without its totals, may come between these lines.
{ diff -d "$work/wanted" "$work/printed" || true; } | sed -n 's/^< //p' >"$work/missing"
if [ -s "$work/missing" ]; then
    echo "not on paper, or not in its place:"
    cat "$work/missing"
    exit 1
fi
rows=$(grep -cE '^[0-9]{2}-[0-9]{2}-[0-9]{2} ' "$work/printed")
contacts=$(cat "$logs"/FD*.txt | grep -cav '^NOTE: ')
[ "$rows" = "$contacts" ] || { echo "$contacts contacts in the logs, $rows on paper"; exit 1; }

pages=$(pdfinfo "$pdf" | sed -n 's/^Pages: *//p')
grep -E '^Side [0-9]+, \(Vatro version ' "$work/printed" | sed -E 's/^Side ([0-9]+),.*/\1/' >"$work/footers"
diff "$work/footers" <(seq "$pages") || { echo "the footers do not count the $pages pages"; exit 1; }
grep -qx "Kaldesignal: .* Antal logsider: $pages" "$work/printed" || { echo "the summary does not tell the $pages pages"; exit 1; }
echo "$rows contacts on $pages pages, $(wc -l <"$work/wanted") lines found"
