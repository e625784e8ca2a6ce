#!/usr/bin/env bash
# tools/setup against a made-up machine: dpkg-query, id and apt-get are
# stand-ins first on PATH that answer from the environment and log what they
# are asked.  Each case: the task, the packages missing, the user, the
# expected status, a line expected in the output, and the apt-get calls.
set -euo pipefail
setup=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

mkdir "$work/bin"
cat >"$work/bin/dpkg-query" <<'EOF'
#!/usr/bin/env bash
# Prints "name ii " for every package named that is installed; status 1 if any is not.
status=0
for p in "$@"; do
    case $p in -*) continue ;; esac
    if [[ " $FAKE_INSTALLED " == *" $p "* ]]; then echo "$p ii "; else status=1; fi
done
exit $status
EOF
printf '#!/bin/sh\necho "$FAKE_UID"\n' >"$work/bin/id"
printf '#!/bin/sh\necho "$*" >>"$FAKE_LOG"\nexit "${FAKE_APT_STATUS:-0}"\n' >"$work/bin/apt-get"
chmod +x "$work/bin/"*

failures=0
check() {  # name, arguments, missing, uid, apt status, expected status, expected line, expected apt calls
    local name=$1 args=$2 missing=$3 uid=$4 apt=$5 want_status=$6 want_line=$7 want_calls=$8
    local task=test installed p out status calls
    for p in $args; do case $p in main | test | ci) task=$p ;; esac; done
    installed=$(for p in $("$setup" --list "$task"); do [[ " $missing " == *" $p "* ]] || echo "$p"; done)
    : >"$work/log"
    status=0
    out=$(PATH="$work/bin:$PATH" FAKE_INSTALLED="$(echo $installed)" FAKE_UID=$uid FAKE_LOG="$work/log" \
        FAKE_APT_STATUS=$apt "$setup" $args 2>&1) || status=$?
    calls=$(paste -sd '|' "$work/log")
    if [ "$status" != "$want_status" ] || ! grep -qxF -- "$want_line" <<<"$out" || [ "$calls" != "$want_calls" ]; then
        printf 'FAIL %s: status %s (want %s), apt-get calls "%s" (want "%s"); it said:\n%s\n' \
            "$name" "$status" "$want_status" "$calls" "$want_calls" "$out"
        failures=$((failures + 1))
    fi
}

install='install -y --no-install-recommends libfftw3-dev python3-scipy'
check "all there, a user" "" "" 1000 0 0 "setup: the $("$setup" --list | wc -l) packages of 'test' are installed" ""
check "all there, root: no apt-get at all" "ci" "" 0 0 0 "setup: the $("$setup" --list ci | wc -l) packages of 'ci' are installed" ""
check "missing, a user: the line to run" "test" "libfftw3-dev python3-scipy" 1000 0 1 \
    "    sudo apt-get update && sudo apt-get $install" ""
check "missing, root: update, then install" "" "libfftw3-dev python3-scipy" 0 0 0 "setup: done" "update|$install"
check "missing, root, --check: nothing installed" "--check" "libfftw3-dev python3-scipy" 0 0 1 \
    "    sudo apt-get update && sudo apt-get $install" ""
check "missing, root, apt-get fails" "" "libfftw3-dev python3-scipy" 0 100 1 \
    "setup: apt-get could not install libfftw3-dev python3-scipy (see above)" "update"
check "main asks for less" "main" "python3-scipy" 1000 0 0 "setup: the $("$setup" --list main | wc -l) packages of 'main' are installed" ""
check "an unknown task" "tset" "" 1000 0 2 "usage: tools/setup [--check] [--list] [main|test|ci]" ""

# Each task's packages include the smaller task's.
for pair in "main test" "test ci"; do
    set -- $pair
    if [ -n "$(comm -23 <("$setup" --list "$1" | sort) <("$setup" --list "$2" | sort))" ]; then
        echo "FAIL: '$2' lacks packages of '$1'"
        failures=$((failures + 1))
    fi
done

echo "$((10 - failures)) passed, $failures failed"
[ "$failures" -eq 0 ]
