#!/bin/bash
# test.sh [x86|x64|all] [--filter PATTERN] [--require-x86] [--require-browser]
# Builds everything and runs the tests under Wine: in each architecture the unit tests, the clients' tests (C++ and
# scripts), the tests over HTTP against the simulator and against servers that fail, clients in many apartments, short
# runs of endurance.sh and of fuzz.sh; then the tests of the tools, written in Python, and of the packages, which are
# made, installed, used and uninstalled.
# PATTERN is GoogleTest's, such as "Vehicle*:-*Slow*"; scripts are chosen by their file names likewise, and the tests of
# the tools, of the samples and of the guides are left out.
# --require-x86 makes it an error that x86 programs cannot be run here, --require-browser that the simulator's page cannot
# be looked at, for want of Chromium.
# The last line is "N passed, M failed"; the exit code is 1 unless tests ran and all passed.
set -euo pipefail
# shellcheck source=tools/shell-support.sh
source "$(dirname "${BASH_SOURCE[0]}")/tools/shell-support.sh"
# shellcheck source=tools/wine-environment.sh
source "$project/tools/wine-environment.sh"

time_limit=300
results=$project/build/test-results
selection=all
filter=
setup_options=()

read_arguments() {
  while (($#)); do
    case $1 in
      --filter)
        (($# > 1)) || wrong_usage "--filter needs a pattern"
        filter=$2
        shift
        ;;
      --filter=*) filter=${1#*=} ;;
      --require-x86 | --require-browser) setup_options+=("$1") ;;
      -*) wrong_usage "unknown option $1" ;;
      *) selection=$1 ;;
    esac
    shift
  done
}

# run_tests ARCH RING KIND PROGRAM COMMAND...
run_tests() {
  local code=0 filtered=()
  [[ -z $filter ]] || filtered=(--filtered)
  run timeout --kill-after=10 "$time_limit" "${@:5}" >"$results/$1-$2-$4.log" 2>&1 || code=$?
  run /usr/bin/python3 "$project/tests/support/test_report.py" record "$results" "${@:1:4}" "$code" "${filtered[@]}"
}

# run_googletest ARCH RING PROGRAM [WRAPPER...]
run_googletest() {
  local program arguments
  program=$(windows_path "$project/build/$1/tests/$3.exe")
  arguments=("--gtest_output=xml:$(windows_path "$results/$1-$2-$3.xml")" --gtest_color=no)
  [[ -z $filter ]] || arguments+=("--gtest_filter=$filter")
  run_tests "$1" "$2" gtest "$3" "${@:4}" "$project/tools/wine-program.sh" "$program" "${arguments[@]}"
}

# Does the filter want a test of this name? GoogleTest's rule: any of the patterns before "-", none of those after.
wants() {
  local positive=${filter%%-*} negative=
  [[ $filter != *-* ]] || negative=${filter#*-}
  matches_any "$1" "${positive:-*}" && ! matches_any "$1" "$negative"
}

matches_any() {
  local pattern patterns
  IFS=: read -ra patterns <<<"$2"
  for pattern in "${patterns[@]}"; do
    # shellcheck disable=SC2053  # a pattern is what is wanted
    [[ $1 == $pattern ]] && return
  done
  return 1
}

run_scripts() {
  local script name
  for script in "$project"/tests/client/scripts/*.vbs; do
    name=$(basename "$script")
    wants "$name" || continue
    run_tests "$1" client script "$name" \
      "$project/tools/wine-program.sh" "$(windows_programs "$1")\\cscript.exe" //nologo "$(windows_path "$script")"
  done
}

# lejis.exe, used as people use it; the pattern of --filter does not speak of these tests.
run_lejis() {
  # Every test starts the program, some of them often.
  local time_limit=600
  [[ -z $filter ]] || return 0
  run_tests "$1" client unittest lejis "$project/tests/support/with_simulator.sh" "$project/tests/lejis/run.sh" "$1"
}

# The samples, and the pages of docs/ that are made with the library.
run_samples() {
  [[ -z $filter && $1 != coverage ]] || return 0
  run_tests "$1" client unittest samples "$project/tests/support/with_simulator.sh" "$project/tests/samples/run.sh" "$1"
}

# What stands in the headers of the shipped files; those with counters in them are not shipped.
run_binaries() {
  [[ -z $filter && $1 != coverage ]] || return 0
  run_tests "$1" binaries unittest headers env "LEJIS_BINARIES=$project/build/$1/bin" \
    /usr/bin/python3 -m unittest discover -s "$project/tests/binaries"
}

# Servers that fail, and a client that loses nothing to them; the pattern of --filter does not speak of these either.
run_failing_servers() {
  [[ -z $filter ]] || return 0
  run_tests "$1" end-to-end unittest fault-matrix "$project/tests/fault_matrix/run.sh" "$1"
  run_tests "$1" end-to-end unittest endurance "$project/tests/endurance/run.sh" "$1"
  run_tests "$1" end-to-end unittest backlog "$project/tests/backlog/run.sh" "$1"
}

# run_apartments_of ARCH RING DLL ROUNDS
run_apartments_of() {
  run_googletest "$1" "$2" apartment_tests env "LEJIS_LIBRARY=$(windows_path "$3")" "LEJIS_ROUNDS=$4" \
    "$project/tests/support/with_simulator.sh"
}

# Clients in many apartments whose threads end, of the DLL that is shipped and, for a shorter time, of one with checks
# inside. What the controls do with bare requests tells what is Wine's own, when something fails here: --filter
# '*Control*' runs them.
run_apartments() {
  [[ $1 != coverage ]] || return 0
  local filter=${filter:-*-*Control*}
  check_heap_of apartment_tests.exe
  run_apartments_of "$1" apartments "$(library_of "$1")" 50
  run_apartments_of "$1" apartments-checked "$project/build/$1/tests/checked/TVLejisCore.dll" 10
}

# Half a minute of fuzzing; the pattern of --filter does not speak of it.
run_fuzzing() {
  [[ -z $filter && $1 != coverage ]] || return 0
  run_tests "$1" fuzzing unittest fuzzing "$project/tests/fuzzing/run.sh" "$1"
}

run_architecture() {
  local started=$SECONDS
  register_dll "$1"
  run_googletest "$1" unit unit_tests
  run_googletest "$1" client client_tests
  run_scripts "$1"
  run_lejis "$1"
  run_samples "$1"
  run_googletest "$1" end-to-end end_to_end_tests "$project/tests/support/with_simulator.sh" --in-schemas
  run_apartments "$1"
  run_binaries "$1"
  run_failing_servers "$1"
  run_fuzzing "$1"
  say "$1 tested in $((SECONDS - started)) s"
}

run_python() {
  local folder
  for folder in simulator support docs; do
    run_tests - tools unittest "$folder" /usr/bin/python3 -m unittest discover -s "$project/tests/$folder"
  done
}

# In a browser, with submissions from the library of this architecture.
run_page() {
  if ! has_browser; then
    say "The simulator's page was not tested: Chromium is not there"
    return
  fi
  run_tests - tools unittest simulator_page "$project/tests/support/with_simulator.sh" \
    "$project/tests/simulator_page/run.sh" "$1"
}

# run_packages ARCH...
run_packages() {
  # Each picture of the machine takes a new start of Wine.
  local time_limit=600
  run_tests - packages unittest packages "$project/tests/support/with_simulator.sh" "$project/tests/packages/run.sh" "$@"
}

# The guide's commands and the demonstration start and stop Wine themselves, so they come last. They are for the 32-bit
# library.
run_guide() {
  [[ $selection != x64 ]] && wine_runs x86 || return 0
  run_tests - tools unittest guides /usr/bin/python3 -m unittest discover -s "$project/tests/guides"
}

read_arguments "$@"
architectures=$(architectures_of "$selection")
clean_up_with stop_wine
lock_checkout
rm -rf "$results"
mkdir -p "$results"
[[ -n $filter ]] || setup_options=(--browser "${setup_options[@]}")
run "$project/tools/setup.sh" "${setup_options[@]}"
run "$project/build.sh" "$selection"
[[ -n $filter || $selection == coverage ]] || run "$project/package.sh" "$selection"
start_wine
tested=()
for architecture in $architectures; do
  if wine_runs "$architecture"; then
    run_architecture "$architecture"
    tested+=("$architecture")
  else
    [[ $selection == all ]] || fail "x86 programs do not run here: 32-bit Wine is not there"
    say "x86 not tested: 32-bit Wine is not there"
  fi
done
if [[ -z $filter && $selection != coverage ]]; then
  run_python
  run_page "${tested[0]}"
  run_packages "${tested[@]}"
  run_guide
fi
run /usr/bin/python3 "$project/tests/support/test_report.py" summary "$results"
