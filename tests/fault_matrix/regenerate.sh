#!/bin/bash
# regenerate.sh [x86|x64]: writes docs/fault-matrix.md from a run. Fails, after that, where the run is not as documented.
set -euo pipefail
# shellcheck source=tools/shell-support.sh
source "$(dirname "${BASH_SOURCE[0]}")/../../tools/shell-support.sh"
# shellcheck source=tools/wine-environment.sh
source "$project/tools/wine-environment.sh"

architecture=${1:-x86}
clean_up_with stop_wine
lock_checkout
run "$project/build.sh" "$architecture" TVLejisCore fault_client unit_tests
start_wine
register_dll "$architecture"
export FAULT_MATRIX_PAGE=$project/docs/fault-matrix.md
run "$project/tests/fault_matrix/run.sh" "$architecture"
