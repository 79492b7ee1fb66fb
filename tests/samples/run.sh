#!/bin/bash
# run.sh ARCH: the tests of samples/, and of the pages of docs/ that are made with the library. The library is registered,
# the simulator runs (with_simulator.sh).
set -euo pipefail
# shellcheck source=tools/shell-support.sh
source "$(dirname "${BASH_SOURCE[0]}")/../../tools/shell-support.sh"

: "${LEJIS_SIMULATOR_URL:?with_simulator.sh starts this}"
export LEJIS_ARCHITECTURE=$1
exec /usr/bin/python3 -m unittest discover -s "$project/tests/samples"
