#!/bin/bash
# run.sh ARCH: the fault matrix. The library is registered and Wine runs.
set -euo pipefail
# shellcheck source=tools/shell-support.sh
source "$(dirname "${BASH_SOURCE[0]}")/../../tools/shell-support.sh"
# shellcheck source=tools/wine-environment.sh
source "$project/tools/wine-environment.sh"

tests=$project/build/$1/tests
FAULT_CLIENT=$(windows_path "$tests/fault_client.exe")
UNIT_TESTS=$(windows_path "$tests/unit_tests.exe")
LEJIS_EXE=$(windows_path "$project/build/$1/bin/lejis.exe")
export FAULT_CLIENT UNIT_TESTS LEJIS_EXE
exec /usr/bin/python3 -m unittest discover -s "$project/tests/fault_matrix"
