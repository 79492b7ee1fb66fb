#!/bin/bash
# bench.sh [x86|x64] [ARGUMENT...]
# Builds and runs the benchmarks; the arguments go to benchmarks.exe.
set -euo pipefail
# shellcheck source=tools/shell-support.sh
source "$(dirname "${BASH_SOURCE[0]}")/tools/shell-support.sh"
# shellcheck source=tools/wine-environment.sh
source "$project/tools/wine-environment.sh"

take_architecture x64 "$@"
clean_up_with stop_wine
lock_checkout
run "$project/build.sh" "$architecture" TVLejisCore benchmarks
wine_runs "$architecture" || fail "x86 programs do not run here: 32-bit Wine is not there"
start_wine
register_dll "$architecture"
run wine "$(windows_path "$project/build/$architecture/benchmarks/benchmarks.exe")" "${arguments[@]}"
