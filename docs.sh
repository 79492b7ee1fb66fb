#!/bin/bash
# docs.sh
# Makes the generated pages of docs/ anew: docs/reference/ from the type library, the page and schemas of the incident
# format from the table of lejis.exe, and the exchanges in docs/roads.md from the library's real traffic with the
# simulator. Also samples/csharp/TVLejisCore.cs, from the type library. test.sh tells when that is needed.
set -euo pipefail
# shellcheck source=tools/shell-support.sh
source "$(dirname "${BASH_SOURCE[0]}")/tools/shell-support.sh"
# shellcheck source=tools/wine-environment.sh
source "$project/tools/wine-environment.sh"

(($# == 0)) || wrong_usage "usage: docs.sh"

clean_up_with stop_wine
lock_checkout
run "$project/tools/setup.sh"
# Both bitnesses have the same type library but for its target, and send the same.
architecture=x86
wine_runs x86 || architecture=x64
run "$project/build.sh" "$architecture" TVLejisCore lejis reference incident_format
start_wine
register_dll "$architecture"
pages=$project/build/docs
rm -rf "$pages"
run "$project/tests/support/with_simulator.sh" "$project/tools/docs/generate.sh" "$architecture" "$pages"
rm -rf "$project/docs/reference" "$project/docs/incident-format"
mv "$pages/TVLejisCore.cs" "$project/samples/csharp/"
cp -R "$pages/." "$project/docs/"
say "docs/reference, docs/incident-format, docs/roads.md and samples/csharp/TVLejisCore.cs are up to date."
