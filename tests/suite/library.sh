#!/bin/bash
# library.sh ARCH: the lane of the library of one architecture. It runs the unit tests, the clients' tests (C++ and
# scripts), the tests over HTTP against the simulator, and a short run of fuzz.sh.
set -euo pipefail
# shellcheck source=tools/shell-support.sh
source "$(dirname "${BASH_SOURCE[0]}")/../../tools/shell-support.sh"
export WINE_LANE=$1
# shellcheck source=tools/wine-environment.sh
source "$project/tools/wine-environment.sh"
# shellcheck source=tests/suite/record.sh
source "$project/tests/suite/record.sh"

architecture=$1
simulator=$project/tests/support/with_simulator.sh

run_scripts() {
  local script name
  for script in "$project"/tests/client/scripts/*.vbs; do
    name=$(basename "$script")
    wants "$name" || continue
    run_tests "$architecture" client script "$name" "$project/tools/wine-program.sh" \
      "$(windows_programs "$architecture")\\cscript.exe" //nologo "$(windows_path "$script")"
  done
}

# All that the coverage run wants of this lane.
run_rings_of_library() {
  run_googletest "$architecture" unit unit_tests
  run_googletest "$architecture" client client_tests
  run_scripts
  run_googletest "$architecture" end-to-end end_to_end_tests "$simulator" --in-schemas
}

# The command-line client, from inside.
run_unit_tests_of_lejis() { run_googletest "$architecture" unit lejis_tests; }

# What needs the files that are shipped, or the options that they are compiled with, without counters.
run_rings_of_files() {
  run_unittest unit compiling "${on_all_processors[@]}" "$project/tests/compiling/run.sh"
  run_unittest binaries headers "$project/tests/binaries/run.sh"
  run_unittest fuzzing fuzzing "${on_all_processors[@]}" "$project/tests/fuzzing/run.sh"
}

started=$SECONDS
clean_up_with stop_wine
stay_on_own_processor
start_wine
register_dll "$architecture"
run_rings_of_library
if [[ $architecture != coverage ]]; then
  run_unit_tests_of_lejis
  # The pattern of --filter does not speak of the others.
  [[ -n $filter ]] || run_rings_of_files
fi
say "$architecture library tested in $((SECONDS - started)) s"
