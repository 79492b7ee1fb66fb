#!/bin/bash
# programs.sh ARCH: the lane of the programs that use the library of one architecture. It runs the tests of lejis.exe, of
# what happens at each fault of the road, short runs of endurance.sh and of a backlog, the samples, and clients in
# languages that are fetched.
set -euo pipefail
# shellcheck source=tools/shell-support.sh
source "$(dirname "${BASH_SOURCE[0]}")/../../tools/shell-support.sh"
export WINE_LANE=$1-programs
# shellcheck source=tools/wine-environment.sh
source "$project/tools/wine-environment.sh"
# shellcheck source=tests/suite/record.sh
source "$project/tests/suite/record.sh"

architecture=$1
simulator=$project/tests/support/with_simulator.sh

# In languages that are fetched.
run_clients() {
  [[ $LEJIS_TEST_CLIENTS == yes ]] || return 0
  mkdir -p "$results/clients"
  run_unittest client clients env "LEJIS_CLIENT_RECORDS=$results/clients" "$simulator" "$project/tests/clients/run.sh"
}

started=$SECONDS
clean_up_with stop_wine
stay_on_own_processor
start_wine
register_dll "$architecture"
run_unittest client lejis "$simulator" "$project/tests/lejis/run.sh"
run_unittest end-to-end fault-matrix "$project/tests/fault_matrix/run.sh"
run_unittest end-to-end endurance "${on_all_processors[@]}" "$project/tests/endurance/run.sh"
run_unittest end-to-end backlog "${on_all_processors[@]}" "$project/tests/backlog/run.sh"
# The coverage run is interested in the library's own code alone. The samples include the pages of docs/ that are made
# with the library.
if [[ $architecture != coverage ]]; then
  run_unittest client samples "$simulator" "$project/tests/samples/run.sh"
  run_clients
fi
say "$architecture programs tested in $((SECONDS - started)) s"
