#!/bin/bash
# program.sh FOLDER PROGRAM [ARGUMENT...]
# Runs one test program of build/FOLDER under Wine, as ctest does: nothing is built, the library of that folder is
# registered, and the tests over HTTP get a simulator. The exit code is the program's.
set -euo pipefail
# shellcheck source=tools/shell-support.sh
source "$(dirname "${BASH_SOURCE[0]}")/../../tools/shell-support.sh"
(($# > 1)) || wrong_usage "usage: program.sh FOLDER PROGRAM [ARGUMENT...]"
export WINE_LANE=$1
# shellcheck source=tools/wine-environment.sh
source "$project/tools/wine-environment.sh"

program=$project/build/$1/tests/$2.exe
[[ -f $program ]] || fail "$2 has not been built: run ./build.sh $1"
wrapper=()
[[ $2 != end_to_end_tests ]] || wrapper=("$project/tests/support/with_simulator.sh" --in-schemas)

clean_up_with stop_wine
lock_checkout
start_wine
register_dll "$1"
run "${wrapper[@]}" "$project/tools/wine-program.sh" "$(windows_path "$program")" "${@:3}"
