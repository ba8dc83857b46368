#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
#   tables.sh DATA VATRO-REPLAY VATRO-CTY
#
# Checks that the country file of a first start passes vatro-cty, that the two tables are byte for byte what the program's
# import makes from it, and that a damaged country file leaves existing tables unchanged.
set -euo pipefail
data=$1
replay=$2
cty=$3
made=$(mktemp -d)
trap 'rm -rf "$made"' EXIT

"$cty" "$data/cty.dat"

cp "$data/cty.dat" "$made/"
"$data/make-tables" "$made" "$replay"
cmp "$data/lande.txt" "$made/lande.txt"
cmp "$data/refpfx.txt" "$made/refpfx.txt"

# Cuts the file in the middle of an entry.
head -c 60000 "$data/cty.dat" >"$made/cty.dat"
if "$data/make-tables" "$made" "$replay" >/dev/null 2>&1; then
    echo "a damaged country file made tables"
    exit 1
fi
cmp "$data/lande.txt" "$made/lande.txt"
cmp "$data/refpfx.txt" "$made/refpfx.txt"
