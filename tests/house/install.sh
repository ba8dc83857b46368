#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
#   install.sh ROOT BUILD CMAKE
#
# Checks that BUILD installs exactly the files that belong on a system, that names and versions agree with each other, and that
# the start script copies the tables to the user's data directory.
set -euo pipefail
export LC_ALL=C
root=$1 build=$2 cmake=$3
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fault=0
complain() { echo "$1"; fault=1; }

# A prefix that differs from the configured one and contains a blank.
prefix="$work/a prefix"
(umask 022 && "$cmake" --install "$build" --prefix "$prefix" >/dev/null)

{
    cat <<'FILES'
bin/vatro
bin/vatro-cty
libexec/vatro/vatro
libexec/vatro/vatro-print.so
libexec/vatro/vatro-printers
libexec/vatro/vatro-sound.so
share/applications/dk.vatro.Vatro.desktop
share/doc/vatro/LicenseRef-country-file.txt
share/doc/vatro/changelog.gz
share/doc/vatro/copyright
share/icons/hicolor/scalable/apps/dk.vatro.Vatro.svg
share/man/man1/vatro-cty.1.gz
share/man/man1/vatro.1.gz
share/metainfo/dk.vatro.Vatro.metainfo.xml
share/vatro/cty.dat
share/vatro/edr.txt
share/vatro/lande.txt
share/vatro/operator.txt
share/vatro/refpfx.txt
FILES
    (cd "$root/help" && printf 'share/doc/vatro/handbook/%s\n' *.html *.png)
} | sort >"$work/expected"
# VATRO_DEBIAN adds three more files.
(cd "$prefix" && find . ! -type d -printf '%P\n') | grep -vE '^share/(doc-base/|doc/vatro/(changelog\.Debian|vatro\.spdx))' | sort >"$work/installed"
diff -u "$work/expected" "$work/installed" || complain "other files are installed than belong there"

entry=$prefix/share/applications/dk.vatro.Vatro.desktop
of_entry() { sed -n "s/^$1=//p" "$entry"; }
[ -x "$prefix/bin/$(of_entry Exec)" ] || complain "the desktop entry starts no program"
[ -f "$prefix/share/icons/hicolor/scalable/apps/$(of_entry Icon).svg" ] || complain "the desktop entry has no icon"
grep -q "setDesktopFileName(QStringLiteral(\"$(basename "$entry" .desktop)\"))" "$root/src/qt/application.cpp" ||
    complain "the program names another desktop entry"
metainfo=$prefix/share/metainfo/dk.vatro.Vatro.metainfo.xml
grep -q '<id>dk\.vatro\.Vatro</id>' "$metainfo" || complain "the metainfo is of another program"
grep -q "<launchable type=\"desktop-id\">$(basename "$entry")</launchable>" "$metainfo" || complain "the metainfo launches something else"

version=$(sed -nE 's/^project\(vatro VERSION ([0-9.]+).*/\1/p' "$root/CMakeLists.txt")
[ -n "$version" ] || complain "CMakeLists.txt has no version"
agree() { [ "$2" = "$version" ] || complain "$1 is of version $2, the program of $version"; }
agree CHANGELOG.md "$(sed -nE 's/^## ([0-9.]+),.*/\1/p' "$root/CHANGELOG.md" | head -n 1)"
agree "the metainfo" "$(sed -nE 's/.*<release version="([0-9.]+)".*/\1/p' "$metainfo" | head -n 1)"
agree "the package" "$(sed -nE 's/^vatro \(([0-9.]+)-.*/\1/p' "$root/packaging/debian/changelog" | head -n 1)"
for page in vatro vatro-cty; do
    agree "$page(1)" "$(zcat "$prefix/share/man/man1/$page.1.gz" | sed -nE 's/^\.TH .* "Vatro ([0-9.]+)"$/\1/p')"
done

# Runs the start script with a fake program that prints how it was called.
cat >"$prefix/libexec/vatro/vatro" <<'PROGRAM'
#!/bin/sh
printf '%s\n' "$PWD" "$@"
PROGRAM
mkdir "$work/home" "$work/elsewhere"
ln -s "$prefix/bin/vatro" "$work/elsewhere/vatro"
start() { env -u XDG_DATA_HOME HOME="$work/home" "$@"; }
tables=$work/home/.local/share/vatro
told=$(start "$prefix/bin/vatro" "-style" "two words")
[ "$told" = "$(printf '%s\n' "$tables" -style "two words")" ] || complain "the program was started otherwise: $told"
diff -r "$prefix/share/vatro" "$tables" || complain "the tables of a first start are others"

echo "OZ7FD" >"$tables/operator.txt"
rm "$tables/edr.txt"
start "$work/elsewhere/vatro" >/dev/null
[ "$(cat "$tables/operator.txt")" = OZ7FD ] || complain "a list of the user's was overwritten"
cmp "$root/data/edr.txt" "$tables/edr.txt" || complain "a missing list was not put there"

for name in lande.txt refpfx.txt edr.txt cty.dat operator.txt; do : >"$tables/$name"; done
start "$prefix/bin/vatro" >/dev/null
for name in lande.txt refpfx.txt edr.txt cty.dat; do
    cmp "$root/data/$name" "$tables/$name" || complain "an empty table was not replaced"
done
[ ! -s "$tables/operator.txt" ] || complain "an empty list of operators was replaced"

# A table must be synced before it is renamed, and the directory after that.
if command -v strace >/dev/null && strace true 2>/dev/null; then
    rm "$tables/lande.txt"
    start strace -f -qq -e trace=/sync,/rename -o "$work/calls" "$prefix/bin/vatro" >/dev/null
    calls=$(grep -oE '\b(f(data)?sync|rename)[a-z0-9]*\(' "$work/calls" | tr -d '(' | sed -E 's/fdatasync/fsync/; s/rename.*/rename/' | tr '\n' ' ')
    [ "$calls" = "fsync rename fsync " ] || complain "a table was put there by other calls: $calls"
    start strace -f -qq -e trace=/sync,/rename -o "$work/calls" "$prefix/bin/vatro" >/dev/null
    ! grep -qE 'sync|rename' "$work/calls" || complain "a start that puts nothing there waits for the disk"
fi

# The program starts even if a table cannot be copied.
rm "$tables/lande.txt"
mkdir "$work/full"
printf '#!/bin/sh\nexit 1\n' >"$work/full/sync"
chmod +x "$work/full/sync"
told=$(PATH="$work/full:$PATH" start "$prefix/bin/vatro" 2>"$work/said")
[ "$told" = "$tables" ] || complain "the program was not started: $told"
grep -q lande.txt "$work/said" || complain "nothing was said about the table"
[ -z "$(find "$tables" -name 'lande.txt' -o -name '.*.new')" ] || complain "half a table was left"

told=$(XDG_DATA_HOME=$work/home/data HOME=$work/home "$prefix/bin/vatro")
[ "$told" = "$work/home/data/vatro" ] || complain "XDG_DATA_HOME is not heeded: $told"
exit $fault
