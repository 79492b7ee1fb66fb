# shellcheck shell=bash
# Sourced after wine-environment.sh by the lanes of the suite, which test.sh starts side by side: how a lane runs a test
# program and records what it did. Their environment holds
#   LEJIS_TEST_RESULTS   the folder of the logs
#   LEJIS_TEST_FILTER    the pattern of --filter, or nothing
#   LEJIS_TEST_CLIENTS   yes or no: clients in languages that are fetched
#   LEJIS_TEST_PROCESSORS, LEJIS_TEST_PROCESSOR
#                        all processors, and the lane's own, by their numbers; without them a lane uses what it finds

: "${project:?shell-support.sh comes first}"
results=${LEJIS_TEST_RESULTS:?test.sh sets this}
filter=${LEJIS_TEST_FILTER:-}
# Of one test program, in seconds. Lanes share the machine's processors.
time_limit=900

# A program under Wine asks Wine's server at every step. On one processor the two take half the time, because no question
# has to wake another processor. So the lane stays on its own, except for tests whose threads have to run side by side.
stay_on_own_processor() {
  [[ -z ${LEJIS_TEST_PROCESSOR:-} ]] || taskset --cpu-list --pid "$LEJIS_TEST_PROCESSOR" $$ >/dev/null
}

on_all_processors=()
[[ -z ${LEJIS_TEST_PROCESSORS:-} ]] || on_all_processors=(taskset --cpu-list "$LEJIS_TEST_PROCESSORS")

# run_tests ARCH RING KIND PROGRAM COMMAND...
run_tests() {
  local code=0 started=$SECONDS filtered=()
  [[ -z $filter ]] || filtered=(--filtered)
  run timeout --kill-after=10 "$time_limit" "${@:5}" >"$results/$1-$2-$4.log" 2>&1 || code=$?
  run /usr/bin/python3 "$project/tests/support/test_report.py" record "$results" "${@:1:4}" "$code" \
    "$((SECONDS - started))" "${filtered[@]}"
}

# run_googletest ARCH RING PROGRAM [WRAPPER...]
run_googletest() {
  local program arguments
  program=$(windows_path "$project/build/$1/tests/$3.exe")
  arguments=("--gtest_output=xml:$(windows_path "$results/$1-$2-$3.xml")" --gtest_color=no)
  [[ -z $filter ]] || arguments+=("--gtest_filter=$filter")
  run_tests "$1" "$2" gtest "$3" "${on_all_processors[@]}" "${@:4}" "$project/tools/wine-program.sh" "$program" \
    "${arguments[@]}"
}

# run_unittest RING PROGRAM COMMAND...: tests of the lane's architecture that are written in Python.
# shellcheck disable=SC2154  # the lane sets `architecture`
run_unittest() { run_tests "$architecture" "$1" unittest "$2" "${@:3}" "$architecture"; }

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
