#!/bin/bash
# endurance.sh [x86|x64] [--count N] [--seed S]
# endurance.sh [x86|x64] backlog [--count N] [--kills K] [--jobs J] [--seed S]
# Builds the library and has a careful client submit and withdraw incidents N times (10,000) at a server that fails one
# time in ten: at the end the index equals what the client was told, and its memory has grown by no more than the
# platform loses without the library. "backlog" has lejis.exe submit N incidents there with a ledger, and kills it K
# times (10): at the end the index holds them all.
set -euo pipefail
# shellcheck source=tools/shell-support.sh
source "$(dirname "${BASH_SOURCE[0]}")/tools/shell-support.sh"
# shellcheck source=tools/wine-environment.sh
source "$project/tools/wine-environment.sh"

take_architecture x86 "$@"
clean_up_with stop_wine
lock_checkout
run "$project/tools/setup.sh"
run "$project/build.sh" "$architecture" TVLejisCore endurance_client lejis
wine_runs "$architecture" || fail "x86 programs do not run here: 32-bit Wine is not there"
start_wine
register_dll "$architecture"
if [[ ${arguments[0]:-} == backlog ]]; then
  run /usr/bin/python3 "$project/tests/backlog/backlog.py" \
    "$(windows_path "$project/build/$architecture/bin/lejis.exe")" "${arguments[@]:1}"
  exit
fi
run /usr/bin/python3 "$project/tests/endurance/endurance.py" \
  "$(windows_path "$project/build/$architecture/tests/endurance_client.exe")" "${arguments[@]}"
