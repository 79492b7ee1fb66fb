#!/bin/bash
# build.sh [--lejis-host HOST] [x86|x64|all|x86-debug|x64-debug] [TARGET...]
# Builds the library, its command-line client, the tests and the benchmarks into build/x86 and build/x64, or only the
# named targets. HOST is the host in the namespaces of the LEJIS that they are made for; without it they are made for
# lejis.example, which stands for no LEJIS. x86-debug and x64-debug build the same for a debugger, without optimization,
# into folders of these names; "all" does not include them.
# Environment: BUILD_TYPE (a CMake build type), CMAKE_OPTIONS (more options, separated by blanks).
set -euo pipefail
# shellcheck source=tools/shell-support.sh
source "$(dirname "${BASH_SOURCE[0]}")/tools/shell-support.sh"

take_lejis_host "$@"
case ${arguments[0]:-all} in
  # Presets of the build alone: tests and packages are made of the release.
  x86-debug | x64-debug) architectures=${arguments[0]} ;;
  *) architectures=$(architectures_of "${arguments[0]:-all}") ;;
esac
targets=("${arguments[@]:1}")

# The options that a build folder was configured with are kept in it; other options configure it again.
options_of() {
  local options=()
  [[ -z ${BUILD_TYPE:-} ]] || options+=("-DCMAKE_BUILD_TYPE=$BUILD_TYPE")
  [[ -z $lejis_host ]] || options+=("-DLEJIS_HOST=$lejis_host")
  # shellcheck disable=SC2206  # several options are wanted from one variable
  options+=(${CMAKE_OPTIONS:-})
  ((${#options[@]} == 0)) || printf '%s\n' "${options[@]}"
}

is_configured() {
  local folder=$project/build/$1
  [[ -f $folder/build.ninja && -f $folder/configured-with ]] || return 1
  [[ $(<"$folder/configured-with") == "$(options_of)" ]] || return 1
  [[ ! $project/CMakePresets.json -nt $folder/configured-with ]] || return 1
  # A project folder that was moved or copied leaves a cache that names the old place.
  grep --quiet --no-messages --line-regexp --fixed-strings "CMAKE_HOME_DIRECTORY:INTERNAL=$project" \
    "$folder/CMakeCache.txt"
}

# quietly LOG COMMAND...: shows the output only when COMMAND fails.
quietly() {
  run "${@:2}" >"$1" 2>&1 && return
  tail -n 200 "$1" >&2
  return 1
}

configure() {
  local log=$project/build/$1-configure.log options
  mapfile -t options < <(options_of)
  rm -f "$project/build/$1/configured-with"
  quietly "$log" cmake -S "$project" --preset "$1" --fresh "${options[@]}" ||
    fail "configuring $1 failed (full log: $log)"
  options_of >"$project/build/$1/configured-with"
}

build() {
  local log=$project/build/$1-build.log started=$SECONDS
  is_configured "$1" || configure "$1"
  quietly "$log" cmake --build "$project/build/$1" ${targets[0]:+--target "${targets[@]}"} || fail "building $1 failed (full log: $log)"
  say "$1 built${lejis_host:+ for $lejis_host} in $((SECONDS - started)) s:"
  find "build/$1/bin" -maxdepth 1 -type f \( -name '*.dll' -o -name '*.exe' \) -printf '  %-36p %8k KB\n'
}

clean_up_with :
cd "$project"
lock_checkout
run "$project/tools/setup.sh"
for architecture in $architectures; do
  build "$architecture"
done
