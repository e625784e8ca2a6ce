#!/usr/bin/env bash
# check_exports.sh <library.so> <header>
#
# The functions a shared library exports must be exactly the vtxg... and
# vtxgen... functions its public header declares.  Compares the defined text
# symbols of the dynamic symbol table with every such name followed by "("
# in the header (comments removed) and lists the differences both ways.
set -euo pipefail

if [ $# -ne 2 ]; then
    echo "usage: $0 <library.so> <header>" >&2
    exit 2
fi
lib=$1
header=$2
for f in "$lib" "$header"; do
    [ -r "$f" ] || { echo "check_exports: cannot read $f" >&2; exit 2; }
done

tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT

# T: text, W: weak (not an object), i: indirect function.  Version suffixes
# (name@@VER) are dropped.
nm -D --defined-only "$lib" |
    awk 'NF >= 3 && $2 ~ /^[TWi]$/ { sub(/@.*/, "", $3); print $3 }' |
    LC_ALL=C sort -u >"$tmp/exported"

# Strip /* */ and // comments, then collect vtxg... names followed by "(".
awk '
{
    line = $0; out = ""
    while (line != "") {
        if (incomment) {
            end = index(line, "*/")
            if (end == 0) { line = ""; break }
            line = substr(line, end + 2); incomment = 0
        } else {
            b = index(line, "/*"); s = index(line, "//")
            if (s && (!b || s < b)) { out = out substr(line, 1, s - 1); line = "" }
            else if (b) { out = out substr(line, 1, b - 1) " "; line = substr(line, b + 2); incomment = 1 }
            else { out = out line; line = "" }
        }
    }
    print out
}' "$header" |
    grep -oE '\<vtxg[A-Za-z0-9_]*[[:space:]]*\(' |
    sed -E 's/[[:space:]]*\($//' |
    LC_ALL=C sort -u >"$tmp/declared" || true

if [ ! -s "$tmp/declared" ]; then
    echo "check_exports: no vtxg... functions declared in $header" >&2
    exit 1
fi

LC_ALL=C comm -23 "$tmp/exported" "$tmp/declared" >"$tmp/extra"
LC_ALL=C comm -13 "$tmp/exported" "$tmp/declared" >"$tmp/missing"

status=0
if [ -s "$tmp/extra" ]; then
    echo "Exported by $lib but not declared in $header:"
    sed 's/^/  /' "$tmp/extra"
    status=1
fi
if [ -s "$tmp/missing" ]; then
    echo "Declared in $header but not exported by $lib:"
    sed 's/^/  /' "$tmp/missing"
    status=1
fi
if [ $status -eq 0 ]; then
    echo "$(wc -l <"$tmp/declared") functions, exported and declared alike"
fi
exit $status
