#!/bin/bash
# exchanges.sh ARCH: has the exchanges of docs/roads.md with the simulator, in the order of exchange_pages.py. The library
# is registered, the simulator runs and was not called yet.
set -euo pipefail
# shellcheck source=tools/shell-support.sh
source "$(dirname "${BASH_SOURCE[0]}")/../shell-support.sh"
# shellcheck source=tools/wine-environment.sh
source "$project/tools/wine-environment.sh"

: "${LEJIS_SIMULATOR_URL:?with_simulator.sh starts this}"
services=$LEJIS_SIMULATOR_URL/lejis-core-Rev01/services
incident=$(windows_path "$project/samples/incidents/burglary.xml")

# lejis_gives CODE ARGUMENT...
lejis_gives() {
  local code=0
  run_program "$(windows_path "$project/build/$architecture/bin/lejis.exe")" "${@:2}" \
    >/dev/null || code=$?
  ((code == $1)) || fail "lejis ${*:2} ended with code $code"
}

architecture=$1
clean_up_with :
lejis_gives 0 submit "$incident" --url "$services/submission"
lejis_gives 0 search --surname HOL --user jdoe --url "$services/search"
run /usr/bin/python3 "$project/tools/demo/simulator_control.py" "$LEJIS_SIMULATOR_URL" play-fault \
  '{"kind": "soap-fault", "message": "The agency is not known here."}'
lejis_gives 1 submit "$incident" --url "$services/submission"
lejis_gives 0 delete "$incident" --url "$services/submission"
