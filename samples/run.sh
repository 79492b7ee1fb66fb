#!/bin/bash
# samples/run.sh PROGRAM [ARGUMENT...]
# Runs a script (.vbs) or a 32-bit program (.exe) under Wine with the library registered, against the LEJIS Interface
# simulator, whose index holds the burglary of samples/incidents. Among the arguments, SUBMISSION and SEARCH stand for the
# addresses of the simulator's services. Ends with the program's exit code.
set -euo pipefail
# shellcheck source=tools/shell-support.sh
source "$(dirname "${BASH_SOURCE[0]}")/../tools/shell-support.sh"
# shellcheck source=tools/wine-environment.sh
source "$project/tools/wine-environment.sh"

with_simulator() {
  local services=$LEJIS_SIMULATOR_URL/lejis-core-Rev01/services command=() argument
  run "$project/tools/wine-program.sh" "$(windows_path "$project/build/x86/bin/lejis.exe")" submit --url "$services/submission" \
    "$(windows_path "$project/samples/incidents/burglary.xml")" >/dev/null || fail "the simulator takes no incident"
  case $1 in
    *.vbs) command=("$(windows_programs x86)\\cscript.exe" //nologo "$(windows_path "$(realpath "$1")")") ;;
    *) command=("$(realpath "$1")") ;;
  esac
  for argument in "${@:2}"; do
    case $argument in
      SUBMISSION) command+=("$services/submission") ;;
      SEARCH) command+=("$services/search") ;;
      *) command+=("$argument") ;;
    esac
  done
  run_program "${command[@]}"
}

[[ -f ${1:-} ]] || wrong_usage "usage: samples/run.sh PROGRAM [ARGUMENT...]"
if [[ -n ${LEJIS_SIMULATOR_URL:-} ]]; then
  clean_up_with :
  with_simulator "$@"
else
  clean_up_with stop_wine
  lock_checkout
  run "$project/tools/setup.sh"
  run "$project/build.sh" x86 TVLejisCore lejis
  start_wine
  register_dll x86
  run "$project/tests/support/with_simulator.sh" "${BASH_SOURCE[0]}" "$@"
fi
