#!/bin/bash
# architecture.sh ARCH: the lane of one architecture. It runs the unit tests, the clients' tests (C++ and scripts), the
# tests over HTTP against the simulator and against servers that fail, clients in many apartments, short runs of
# endurance.sh and of fuzz.sh. Its Wine prefix is its own.
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

# run_apartments_of RING DLL ROUNDS
run_apartments_of() {
  run_googletest "$architecture" "$1" apartment_tests env "LEJIS_LIBRARY=$(windows_path "$2")" "LEJIS_ROUNDS=$3" \
    "$simulator"
}

# Clients in many apartments whose threads end, of the DLL that is shipped and, for a shorter time, of one with checks
# inside. What the controls do with bare requests tells what is Wine's own, when something fails here: --filter
# '*Control*' runs them.
run_apartments() {
  local filter=${filter:-*-*Control*}
  check_heap_of apartment_tests.exe
  run_apartments_of apartments "$(library_of "$architecture")" 50
  run_apartments_of apartments-checked "$project/build/$architecture/tests/checked/TVLejisCore.dll" 10
}

# run_unittest RING PROGRAM COMMAND...: tests written in Python.
run_unittest() { run_tests "$architecture" "$1" unittest "$2" "${@:3}" "$architecture"; }

# Tests that only the coverage run is interested in: those of the library's own code.
run_rings_of_library() {
  run_googletest "$architecture" unit unit_tests
  run_googletest "$architecture" client client_tests
  run_scripts
  run_googletest "$architecture" end-to-end end_to_end_tests "$simulator" --in-schemas
}

# The command-line client, from inside.
run_unit_tests_of_lejis() { run_googletest "$architecture" unit lejis_tests; }

# The pattern of --filter does not speak of these.
run_python_rings() {
  run_unittest client lejis "$simulator" "$project/tests/lejis/run.sh"
  run_unittest end-to-end fault-matrix "$project/tests/fault_matrix/run.sh"
  run_unittest end-to-end endurance "$project/tests/endurance/run.sh"
  run_unittest end-to-end backlog "$project/tests/backlog/run.sh"
}

# What needs the files that are shipped, or the options that they are compiled with, without counters.
run_rings_of_files() {
  # The samples, and the pages of docs/ that are made with the library.
  run_unittest client samples "$simulator" "$project/tests/samples/run.sh"
  run_unittest binaries headers "$project/tests/binaries/run.sh"
  run_unittest unit compiling "$project/tests/compiling/run.sh"
  run_unittest fuzzing fuzzing "$project/tests/fuzzing/run.sh"
}

# Clients in languages that are fetched.
run_clients() {
  [[ $LEJIS_TEST_CLIENTS == yes ]] || return 0
  mkdir -p "$results/clients"
  run_unittest client clients env "LEJIS_CLIENT_RECORDS=$results/clients" "$simulator" "$project/tests/clients/run.sh"
}

started=$SECONDS
clean_up_with stop_wine
start_wine
register_dll "$architecture"
run_rings_of_library
if [[ $architecture != coverage ]]; then
  run_unit_tests_of_lejis
  run_apartments
fi
if [[ -z $filter ]]; then
  run_python_rings
  if [[ $architecture != coverage ]]; then
    run_rings_of_files
    run_clients
  fi
fi
say "$architecture tested in $((SECONDS - started)) s"
