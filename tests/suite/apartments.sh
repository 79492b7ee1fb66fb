#!/bin/bash
# apartments.sh ARCH: the lane of clients in many apartments whose threads end, with the library of one architecture.
#
# test.sh runs it before the lanes that load the machine: there Wine itself breaks its heap at times, as bare requests
# show, which use nothing of the library. --filter '*Control*' runs these, which tells what is Wine's own when something
# fails here.
set -euo pipefail
# shellcheck source=tools/shell-support.sh
source "$(dirname "${BASH_SOURCE[0]}")/../../tools/shell-support.sh"
export WINE_LANE=$1-apartments
# shellcheck source=tools/wine-environment.sh
source "$project/tools/wine-environment.sh"
# shellcheck source=tests/suite/record.sh
source "$project/tests/suite/record.sh"

architecture=$1
simulator=$project/tests/support/with_simulator.sh
filter=${filter:-*-*Control*}

# run_apartments RING DLL ROUNDS
run_apartments() {
  run_googletest "$architecture" "$1" apartment_tests env "LEJIS_LIBRARY=$(windows_path "$2")" "LEJIS_ROUNDS=$3" \
    "$simulator"
}

started=$SECONDS
clean_up_with stop_wine
start_wine
register_dll "$architecture"
check_heap_of apartment_tests.exe
# The DLL that is shipped and, for a shorter time, one with checks inside.
run_apartments apartments "$(library_of "$architecture")" 50
run_apartments apartments-checked "$project/build/$architecture/tests/checked/TVLejisCore.dll" 10
say "$architecture apartments tested in $((SECONDS - started)) s"
