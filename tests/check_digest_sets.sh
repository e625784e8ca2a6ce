#!/bin/sh
# The digest of every kernel's bits is the same whichever instruction set
# the process runs: the widest the processor has, and each set forced
# through VTX_ISA (a set the processor lacks falls back to a narrower one).
#
# usage: check_digest_sets.sh <vtxdigest>
set -eu
digest=$1
dir=$(mktemp -d)
trap 'rm -rf "$dir"' EXIT
"$digest" >"$dir/widest"
for set in sse2 avx2 avx512; do
    VTX_ISA=$set "$digest" >"$dir/$set"
    if ! cmp -s "$dir/widest" "$dir/$set"; then
        diff "$dir/widest" "$dir/$set" | head -20
        echo "vtxdigest under VTX_ISA=$set differs from the widest set's (diff above)" >&2
        exit 1
    fi
done
echo "vtxdigest: $(wc -l <"$dir/widest") lines, the same under every instruction set"
