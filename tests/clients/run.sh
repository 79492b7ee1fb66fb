#!/bin/bash
# run.sh ARCH [TEST...]: the clients in other languages, as far as the languages are there (tools/clients), and the samples
# in them. The library is registered, the simulator runs (with_simulator.sh).
set -euo pipefail
# shellcheck source=tools/shell-support.sh
source "$(dirname "${BASH_SOURCE[0]}")/../../tools/shell-support.sh"
# shellcheck source=tools/clients/places.sh
source "$project/tools/clients/places.sh"

: "${LEJIS_SIMULATOR_URL:?with_simulator.sh starts this}"
export LEJIS_ARCHITECTURE=$1 PYTHONPATH=$project/tests/samples
tests=("${@:2}")
if ((${#tests[@]} == 0)); then
  tests=(test_scripts)
  [[ ! -f $free_pascal/finished ]] || tests+=(test_pascal)
  if has_dotnet; then tests+=(test_csharp); fi
fi
cd "$project/tests/clients"
exec /usr/bin/python3 -m unittest "${tests[@]}"
