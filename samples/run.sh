#!/bin/bash
# samples/run.sh [x86|x64] SAMPLE [ARGUMENT...]
# Runs a sample under Wine with the library registered, against the LEJIS Interface simulator, whose index holds the
# burglary of samples/incidents. SAMPLE is a script (.vbs, .js), a C++ source, which is built first, or a program
# (.exe); its path begins in the current folder, in samples/ or in the project's folder. Without a bitness everything is
# of 32 bits. Among the arguments, SUBMISSION and SEARCH stand for the addresses of the simulator's services. Ends with
# the sample's exit code, but never with 0 when the sample said nothing.
set -euo pipefail
# shellcheck source=tools/shell-support.sh
source "$(dirname "${BASH_SOURCE[0]}")/../tools/shell-support.sh"
# shellcheck source=tools/wine-environment.sh
source "$project/tools/wine-environment.sh"

time_limit=60

# found_sample NAME: its whole path.
found_sample() {
  local folder
  for folder in "$PWD" "$project/samples" "$project"; do
    [[ ! -f $folder/$1 ]] || { realpath "$folder/$1" && return; }
  done
  [[ -f $1 ]] && realpath "$1"
}

# parameters_of SAMPLE: what its first lines name after its own name, such as "URL USER SURNAME".
parameters_of() {
  local name
  name=$(basename "$1")
  [[ $name == *.exe ]] || sed -nE "1,5s/^('|\/\/) .*\b${name%.*}(\.[a-z]+)? ([A-Z][A-Z ]*)\$/\3/p" "$1" | head -n 1
}

# Where the sample names its parameters, that many arguments are needed.
demand_arguments() {
  local parameters service=SUBMISSION
  read -ra parameters < <(parameters_of "$sample") || return 0
  ((${#arguments[@]} < ${#parameters[@]})) || return 0
  # A search names more than the address.
  ((${#parameters[@]} == 1)) || service=SEARCH
  wrong_usage "${sample##*/} needs ${parameters[*]}, for the simulator:" \
    "samples/run.sh $name ${parameters[*]/#URL/$service}"
}

built_program() {
  local folder=$project/build/samples/$architecture compiler=i686-w64-mingw32-g++ program
  [[ $architecture == x86 ]] || compiler=x86_64-w64-mingw32-g++
  program=$folder/$(basename "$sample" .cpp).exe
  mkdir -p "$folder"
  run "$compiler" -std=c++20 -municode -static "-I$project/build/$architecture/core/type_library" "$sample" \
    -o "$program" -lole32 -loleaut32 -luuid || fail "$name cannot be built"
  say "$program"
}

# Sets `command` to what runs the sample.
choose_command() {
  case $sample in
    *.vbs | *.js)
      command=("$(windows_programs "$architecture")\\cscript.exe" //nologo "$(windows_path "$sample")")
      ;;
    *.cpp) command=("$(built_program)") ;;
    *.exe) command=("$sample") ;;
  esac
}

fill_index() {
  run "$project/tools/wine-program.sh" "$(windows_path "$project/build/$architecture/bin/lejis.exe")" submit \
    --url "$services/submission" "$(windows_path "$project/samples/incidents/burglary.xml")" >/dev/null ||
    fail "the simulator takes no incident"
}

# judge CODE: the words that the sample lacks.
judge() {
  if (($1 == 124 || $1 == 137)); then
    fail "${sample##*/} did not end within $time_limit seconds"
  elif [[ ! -s $output ]]; then
    complain "${sample##*/} ended with code $1 and said nothing, as a script does that Wine's cscript cannot run"
    (($1)) || exit 1
  fi
  exit "$1"
}

run_sample() {
  local services=$LEJIS_SIMULATOR_URL/lejis-core-Rev01/services command argument code=0
  choose_command
  fill_index
  for argument in "${arguments[@]}"; do
    case $argument in
      SUBMISSION) command+=("$services/submission") ;;
      SEARCH) command+=("$services/search") ;;
      *) command+=("$argument") ;;
    esac
  done
  run timeout --kill-after=10 "$time_limit" "$project/tools/wine-program.sh" "${command[@]}" >"$output" 2>&1 || code=$?
  cat "$output"
  judge "$code"
}

remove_output() { rm -f "$output"; }

take_architecture x86 "$@"
((${#arguments[@]})) || wrong_usage "usage: samples/run.sh [x86|x64] SAMPLE [ARGUMENT...]"
name=${arguments[0]}
arguments=("${arguments[@]:1}")
sample=$(found_sample "$name") || wrong_usage "there is no sample $name"
[[ $sample =~ \.(vbs|js|cpp|exe)$ ]] ||
  wrong_usage "$name is neither a script (.vbs, .js) nor a C++ source nor a program (.exe)"
demand_arguments
if [[ -n ${LEJIS_SIMULATOR_URL:-} ]]; then
  output=$(mktemp)
  clean_up_with remove_output
  run_sample
else
  clean_up_with stop_wine
  lock_checkout
  run "$project/tools/setup.sh"
  run "$project/build.sh" "$architecture" TVLejisCore lejis
  start_wine
  register_dll "$architecture"
  run "$project/tests/support/with_simulator.sh" "$project/samples/run.sh" "$architecture" "$sample" "${arguments[@]}"
fi
