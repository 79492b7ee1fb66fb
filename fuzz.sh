#!/bin/bash
# fuzz.sh [x86|x64|all] [--seconds N] [--seed S] [--cases N] [TARGET...]
# fuzz.sh [x86|x64|all] --replay FILE
# Builds the fuzzer and lets it look for N seconds in total (60 unless told otherwise) for what breaks the library:
# crashes, hangs, leaks, overruns, failures without a description. TARGET is readers, values, automation, sequences or
# answers; all of them unless told otherwise. The seed decides every case. An input that breaks something is saved in
# build/fuzz-findings; --replay runs it again and tells each step.
# --cases ends each target after this number of cases as well.
# The exit code is 1 when there was a finding.
set -euo pipefail
# shellcheck source=tools/shell-support.sh
source "$(dirname "${BASH_SOURCE[0]}")/tools/shell-support.sh"
# shellcheck source=tools/wine-environment.sh
source "$project/tools/wine-environment.sh"
# shellcheck source=tools/fuzzing.sh
source "$project/tools/fuzzing.sh"

selection=all
seconds=60
options=()
replay=
targets=()

read_arguments() {
  while (($#)); do
    case $1 in
      x86 | x64 | all) selection=$1 ;;
      --seconds | --seed | --cases | --case-limit)
        [[ ${2:-} =~ ^[0-9]+$ ]] || wrong_usage "$1 needs a number"
        if [[ $1 == --seconds ]]; then seconds=$2; else options+=("$1" "$2"); fi
        shift
        ;;
      --replay)
        [[ -f ${2:-} ]] || wrong_usage "--replay needs a file"
        replay=$(realpath "$2")
        shift
        ;;
      planted) targets+=("$1") ;;
      *)
        [[ " ${fuzz_targets[*]} " == *" $1 "* ]] || wrong_usage "'$1' is no target: ${fuzz_targets[*]}"
        targets+=("$1")
        ;;
    esac
    shift
  done
  ((${#targets[@]})) || targets=("${fuzz_targets[@]}")
}

# fuzz ARCH ARGUMENT...
fuzz() {
  set_fuzz_command "$@"
  run "${fuzz_command[@]}" 2>/dev/null || found=1
}

fuzz_architecture() {
  local target
  say "$1:"
  if [[ -n $replay ]]; then
    fuzz "$1" --replay "$(windows_path "$replay")"
    return
  fi
  for target in "${targets[@]}"; do
    fuzz "$1" --target "$target" --seconds "$share" "${options[@]}"
  done
}

read_arguments "$@"
mapfile -t architectures < <(architectures_of "$selection")
share=$((seconds / (${#targets[@]} * ${#architectures[@]})))
((share > 0)) || share=1
found=0
clean_up_with stop_wine
lock_checkout
run "$project/tools/setup.sh"
for architecture in "${architectures[@]}"; do
  run "$project/build.sh" "$architecture" fuzz
done
start_wine
check_heap_of fuzz.exe
for architecture in "${architectures[@]}"; do
  if wine_runs "$architecture"; then
    fuzz_architecture "$architecture"
  else
    say "$architecture not fuzzed: 32-bit Wine is not there"
  fi
done
exit "$found"
