#!/usr/bin/env bash
# check_binding.sh <library.so>
#
# No dynamic relocation of the library names a symbol that the library
# defines itself: its dispatch tables and every other internal reference are
# bound when it is linked, so no other library can stand in for them.
set -euo pipefail

if [ $# -ne 1 ] || [ ! -r "$1" ]; then
    echo "usage: $0 <library.so>" >&2
    exit 2
fi
lib=$1
defined=$(nm -D --defined-only "$lib" | awk 'NF >= 3 { sub(/@.*/, "", $3); print $3 }' | LC_ALL=C sort -u)
named=$(readelf -rW "$lib" | awk 'NF >= 5 && $5 ~ /^[A-Za-z_]/ { sub(/@.*/, "", $5); print $5 }' | LC_ALL=C sort -u)
bound=$(LC_ALL=C comm -12 <(echo "$defined") <(echo "$named"))
if [ -n "$bound" ]; then
    echo "$(echo "$bound" | wc -l) symbols resolved by name at load although $lib defines them, such as:"
    echo "$bound" | head -n 10 | sed 's/^/  /'
    exit 1
fi
echo "$(echo "$defined" | wc -l) defined symbols, none looked up by name at load"
