#!/bin/bash
# test.sh [x86|x64|all] [--filter PATTERN] [--clients] [--require-x86] [--require-browser] [--require-clients]
# Builds everything and runs the tests under Wine, in lanes side by side (tests/suite): for each architecture one of the
# library and one of the programs that use it; one for the tools and the packages, which are made first; one for the kit,
# the guides and the demonstration. Clients in many apartments come before the others.
# PATTERN is GoogleTest's, such as "Vehicle*:-*Slow*"; scripts are chosen by their file names likewise, and the tests of
# the tools, of the samples and of the guides are left out. Only what such tests need is built then.
# --clients: also clients in C# and Free Pascal, whose languages are fetched: 300 MB, once.
# --require-x86 makes it an error that x86 programs cannot be run here, --require-browser that the simulator's page cannot
# be looked at, for want of Chromium, --require-clients that Free Pascal cannot be had for --clients, which it includes.
# The last line is "N passed, M failed"; the exit code is 1 unless tests ran and all passed.
set -euo pipefail
# shellcheck source=tools/shell-support.sh
source "$(dirname "${BASH_SOURCE[0]}")/tools/shell-support.sh"
# shellcheck source=tools/wine-environment.sh
source "$project/tools/wine-environment.sh"

selection=all
setup_options=()
export LEJIS_TEST_RESULTS=$project/build/test-results LEJIS_TEST_FILTER='' LEJIS_TEST_CLIENTS=no
LEJIS_TEST_PROCESSORS=$(/usr/bin/python3 -c 'import os; print(*sorted(os.sched_getaffinity(0)), sep=",")')
export LEJIS_TEST_PROCESSORS

read_arguments() {
  while (($#)); do
    case $1 in
      --filter)
        (($# > 1)) || wrong_usage "--filter needs a pattern"
        LEJIS_TEST_FILTER=$2
        shift
        ;;
      --filter=*) LEJIS_TEST_FILTER=${1#*=} ;;
      --require-x86 | --require-browser) setup_options+=("$1") ;;
      --clients | --require-clients)
        LEJIS_TEST_CLIENTS=yes
        setup_options+=("$1")
        ;;
      -*) wrong_usage "unknown option $1" ;;
      *) selection=$1 ;;
    esac
    shift
  done
}

# The architectures of the selection whose programs can be run here, one a line.
tested_architectures() {
  local architecture
  for architecture in $(architectures_of "$selection"); do
    if wine_runs "$architecture"; then
      say "$architecture"
    else
      [[ $selection == all ]] || fail "x86 programs do not run here: 32-bit Wine is not there"
      complain "x86 not tested: 32-bit Wine is not there"
    fi
  done
}

report() { run /usr/bin/python3 "$project/tests/support/test_report.py" "$@"; }

# The names of the running lanes, by process number.
declare -A lanes=()
IFS=, read -ra processors <<<"$LEJIS_TEST_PROCESSORS"
# start_lane NAME COMMAND...
start_lane() {
  LEJIS_TEST_PROCESSOR=${processors[${#lanes[@]} % ${#processors[@]}]} "${@:2}" </dev/null 9>&- &
  lanes[$!]=$1
}

# start_lanes SCRIPT: one lane for each architecture.
start_lanes() {
  local architecture
  for architecture in $architectures; do
    start_lane "$architecture $1" "$project/tests/suite/$1.sh" "$architecture"
  done
}

# shellcheck disable=SC2317  # clean_up_with calls it
stop_lanes() {
  local lane
  for lane in "${!lanes[@]}"; do kill -TERM "$lane" 2>/dev/null || :; done
  wait
}

# A lane that breaks off counts as a failed test. What tests failed, a lane has recorded itself.
await_lanes() {
  local lane
  for lane in "${!lanes[@]}"; do
    wait "$lane" || report broke-off "$LEJIS_TEST_RESULTS" "${lanes[$lane]}"
  done
  lanes=()
}

# What clients of which language did, and which languages were not there.
say_clients() {
  if [[ $LEJIS_TEST_CLIENTS == yes ]]; then
    run /usr/bin/python3 "$project/tests/clients/table.py" "$LEJIS_TEST_RESULTS/clients"
  else
    say "The clients in C#, Free Pascal, JScript and VBScript were not run: --clients runs them"
  fi
}

read_arguments "$@"
# The coverage run and one with a filter are of the library alone.
is_whole=no
[[ -n $LEJIS_TEST_FILTER || $selection == coverage ]] || is_whole=yes
[[ $is_whole$LEJIS_TEST_CLIENTS != noyes ]] || wrong_usage "--clients goes with neither --filter nor coverage"
architectures_of "$selection" >/dev/null
clean_up_with stop_lanes
lock_checkout
rm -rf "$LEJIS_TEST_RESULTS"
mkdir -p "$LEJIS_TEST_RESULTS"
targets=()
if [[ -n $LEJIS_TEST_FILTER ]]; then
  targets=(TVLejisCore unit_tests client_tests end_to_end_tests lejis_tests apartment_tests checked_library)
else
  setup_options=(--browser --with g++ --with gdb "${setup_options[@]}")
fi
run "$project/tools/setup.sh" "${setup_options[@]}"
run "$project/build.sh" "$selection" "${targets[@]}"
[[ $is_whole == no ]] || run "$project/package.sh" --kit "$selection"

architectures=$(tested_architectures)
make_wine_programs
if [[ $selection != coverage ]]; then
  start_lanes apartments
  # With a filter the lanes are not busy.
  [[ -n $LEJIS_TEST_FILTER ]] || await_lanes
fi
start_lanes library
if [[ -z $LEJIS_TEST_FILTER ]]; then
  # Two programs that write the same counters lose some.
  [[ $selection != coverage ]] || await_lanes
  start_lanes programs
fi
if [[ $is_whole == yes ]]; then
  # shellcheck disable=SC2086  # one argument each
  start_lane tools "$project/tests/suite/tools.sh" $architectures
  # shellcheck disable=SC2086
  start_lane "kit and guides" "$project/tests/suite/kit-and-guides.sh" $architectures
fi
await_lanes
[[ $is_whole == no ]] || say_clients
report summary "$LEJIS_TEST_RESULTS"
