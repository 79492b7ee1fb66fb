#!/bin/bash
# generate.sh ARCH FOLDER: writes the generated pages of docs/ into the folder: reference/ from the type library, the page
# and schemas of the incident format, and roads.md with the exchanges in it; also TVLejisCore.cs of samples/csharp. The
# library is registered, the simulator runs and was not called yet.
set -euo pipefail
# shellcheck source=tools/shell-support.sh
source "$(dirname "${BASH_SOURCE[0]}")/../shell-support.sh"
# shellcheck source=tools/wine-environment.sh
source "$project/tools/wine-environment.sh"

: "${LEJIS_SIMULATOR_DATA:?with_simulator.sh starts this}"
clean_up_with :
mkdir -p "$2/reference"
run_program "$(windows_path "$project/build/$1/tools/reference.exe")" \
  "$(windows_path "$(library_of "$1")")" "$(windows_path "$2/reference")" "$(windows_path "$2/TVLejisCore.cs")" ||
  fail "the reference could not be written"
run_program "$(windows_path "$project/build/$1/tools/incident_format.exe")" \
  "$(windows_path "$2")" || fail "the incident format could not be written"
run "$project/tools/docs/exchanges.sh" "$1"
run /usr/bin/python3 "$project/tools/docs/exchange_pages.py" "$LEJIS_SIMULATOR_DATA/exchanges" \
  "$project/docs/roads.md" "$2/roads.md"
