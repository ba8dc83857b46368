#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
#   tables.sh DATA
#
# The script that makes the tables gives the lines that the program's import gives for an entry with every mark, and
# refuses an entry out of order.
set -euo pipefail
command -v python3 >/dev/null || { echo "python3 is not installed"; exit 77; }
made=$(mktemp -d)
trap 'rm -rf "$made"' EXIT

cat >"$made/cty.dat" <<'END'
Fantasia:                 14:  27:  EU:   56.00:   -10.00:    -1.0:  QQ:
    QQ,QQ1,=QQ8ABC,QQ2(15),
    QR[28],QQ3[7](123),QQ1/ABCDEFGHI;
Left Out:                 14:  27:  EU:   56.00:   -10.00:    -1.0:  *QQ/b:
    QQ9;
Left Out Too:             14:  27:  EU:   56.00:   -10.00:    -1.0:  *QQ/c:
    QQ7;
A Country With A Longname:05:  06:  OC:   56.00:   -10.00:     5.5:  QS:
    QS;
END
"$1/make_tables.py" "$made/cty.dat" "$made" >/dev/null

diff - <(tr -d '\r' <"$made/lande.txt") <<'END'
QQ        Fantasia                 EU -1 
QS        A Country With A LongnameOC  5.5 
END
diff - <(tr -d '\r' <"$made/refpfx.txt") <<'END'
QQ1/ABCDEFQQ        14 27
QQ1       QQ        14 27
QQ2       QQ        15 27
QQ3       QQ        23 07
QQ        QQ        14 27
QR        QQ        14 28
QS        QS        05 06
END
[ "$(grep -c $'\r$' "$made/refpfx.txt")" = 7 ]

sed -i 's/:  QS:/:  QA:/' "$made/cty.dat"
if "$1/make_tables.py" "$made/cty.dat" "$made" >/dev/null 2>&1; then
    echo "countries out of order were taken"
    exit 1
fi
