#!/bin/bash
# run.sh ARCH: the short run. The library is registered and Wine runs.
set -euo pipefail
# shellcheck source=tools/shell-support.sh
source "$(dirname "${BASH_SOURCE[0]}")/../../tools/shell-support.sh"
# shellcheck source=tools/wine-environment.sh
source "$project/tools/wine-environment.sh"

ENDURANCE_CLIENT=$(windows_path "$project/build/$1/tests/endurance_client.exe")
export ENDURANCE_CLIENT
exec /usr/bin/python3 -m unittest discover -s "$project/tests/endurance"
