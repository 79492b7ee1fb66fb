#!/bin/bash
# run.sh ARCH: the tests of lejis.exe. The library is registered, the simulator runs (with_simulator.sh).
set -euo pipefail
# shellcheck source=tools/shell-support.sh
source "$(dirname "${BASH_SOURCE[0]}")/../../tools/shell-support.sh"

: "${LEJIS_SIMULATOR_DATA:?with_simulator.sh starts this}"
export LEJIS_EXE=$project/build/$1/bin/lejis.exe
# Not the Windows path that other tests take.
export LEJIS_SIMULATOR_SCHEMAS=$LEJIS_SIMULATOR_DATA/schemas
exec /usr/bin/python3 -m unittest discover -s "$project/tests/lejis"
