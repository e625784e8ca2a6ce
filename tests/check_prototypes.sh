#!/usr/bin/env bash
# check_prototypes.sh <vtxgen-gen> <header>
#
# The kernel declarations of the public header, from the end of the comment
# that introduces them up to `#ifdef __cplusplus`, are exactly what
# `vtxgen-gen prototypes` prints.
set -euo pipefail
[ $# -eq 2 ] || { echo "usage: $0 <vtxgen-gen> <header>" >&2; exit 2; }
section() {
    awk 'part == 2 && /^#ifdef __cplusplus$/ { exit }
         part == 2 { print }
         part == 1 && /\*\/$/ { part = 2 }
         /The kernel declarations below are written by `vtxgen-gen prototypes`/ { part = /\*\/$/ ? 2 : 1 }' "$1"
}
count=$(section "$2" | grep -c '^VTXAPI' || true)
[ "$count" -gt 0 ] || { echo "check_prototypes: no generated section in $2" >&2; exit 1; }
if ! diff -u --label "$2" --label "vtxgen-gen prototypes" <(section "$2") <("$1" prototypes); then
    echo "check_prototypes: the declarations in $2 are not what \`$1 prototypes\` prints" >&2
    exit 1
fi
echo "$count declarations as generated"
