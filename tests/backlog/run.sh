#!/bin/bash
# run.sh ARCH: the short backlog. The library is registered and Wine runs.
set -euo pipefail
# shellcheck source=tools/shell-support.sh
source "$(dirname "${BASH_SOURCE[0]}")/../../tools/shell-support.sh"
# shellcheck source=tools/wine-environment.sh
source "$project/tools/wine-environment.sh"

LEJIS_EXE=$(windows_path "$project/build/$1/bin/lejis.exe")
export LEJIS_EXE
exec /usr/bin/python3 -m unittest discover -s "$project/tests/backlog"
