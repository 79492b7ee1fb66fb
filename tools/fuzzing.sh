# shellcheck shell=bash
# shellcheck disable=SC2034  # the arrays are for the scripts that source this
# Sourced after wine-environment.sh by scripts that run fuzz.exe.

: "${project:?shell-support.sh comes first}"

readonly fuzz_targets=(readers values automation sequences answers)
# Beside build/x86 and build/x64, where cleaning the one or the other leaves them.
fuzz_findings=$project/build/fuzz-findings

# set_fuzz_command ARCH ARGUMENT...: puts what runs fuzz.exe into the array fuzz_command. The program says everything on
# its standard output; on the other Wine's XML parser complains of what it is made to read.
set_fuzz_command() {
  mkdir -p "$fuzz_findings"
  fuzz_command=(wine "$(windows_path "$project/build/$1/fuzzing/fuzz.exe")"
    --corpus "$(windows_path "$project/fuzzing/corpus")" --findings "$(windows_path "$fuzz_findings/$1-")" "${@:2}")
}
