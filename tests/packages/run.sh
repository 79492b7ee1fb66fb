#!/bin/bash
# run.sh [--kit] ARCH...: tests of the packages in build/packages, in a Wine prefix of their own that is made anew; with
# --kit those of the kit, which runs most other tests once more. The simulator runs (with_simulator.sh).
set -euo pipefail
# shellcheck source=tools/shell-support.sh
source "$(dirname "${BASH_SOURCE[0]}")/../../tools/shell-support.sh"
# shellcheck source=tools/wine-environment.sh
source "$project/tools/wine-environment.sh"

: "${LEJIS_SIMULATOR_DATA:?with_simulator.sh starts this}"
folder=$project/tests/packages
WINEPREFIX+=-packages
if [[ $1 == --kit ]]; then
  export PYTHONPATH=$folder
  folder+=/kit
  shift
fi
export LEJIS_PACKAGES=$project/build/packages
export LEJIS_ARCHITECTURES="$*"
export LEJIS_SIMULATOR_SCHEMAS=$LEJIS_SIMULATOR_DATA/schemas

clean_up_with stop_wine
stop_wine
make_prefix
run /usr/bin/python3 -m unittest discover -v -s "$folder"
