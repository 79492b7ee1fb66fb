#!/bin/bash
# run.sh ARCH: a short look by each of the fuzzer's targets, and the fuzzer's own tests. Wine runs. What is found is
# saved where fuzz.sh saves it.
set -euo pipefail
# shellcheck source=tools/shell-support.sh
source "$(dirname "${BASH_SOURCE[0]}")/../../tools/shell-support.sh"
# shellcheck source=tools/wine-environment.sh
source "$project/tools/wine-environment.sh"
# shellcheck source=tools/fuzzing.sh
source "$project/tools/fuzzing.sh"

check_heap_of fuzz.exe
set_fuzz_command "$1"
FUZZ_COMMAND=$(printf '%s\n' "${fuzz_command[@]}")
export FUZZ_COMMAND
exec /usr/bin/python3 -m unittest discover -s "$project/tests/fuzzing"
