#!/bin/bash
# run.sh ARCH: the tests of the simulator's page in Chromium. The library is registered, the simulator runs
# (with_simulator.sh).
set -euo pipefail
# shellcheck source=tools/shell-support.sh
source "$(dirname "${BASH_SOURCE[0]}")/../../tools/shell-support.sh"

export LEJIS_EXE=$project/build/$1/bin/lejis.exe
# The browser must leave no trace, in the user's home or beside it.
HOME=$(mktemp -d)
export HOME TMPDIR=$HOME

# shellcheck disable=SC2317  # clean_up_with calls it
remove_home() { rm -rf "$HOME"; }

clean_up_with remove_home
# One test looks for what bars people with assistive technology. Its checker comes from npm where npm can fetch it.
axe=$project/build/axe/node_modules/axe-core/axe.min.js
if [[ ! -f $axe ]] && command -v npm >/dev/null; then
  timeout 60 npm install --silent --no-audit --no-fund --prefix "$project/build/axe" axe-core@4 >/dev/null 2>&1 || :
fi
if [[ -f $axe ]]; then
  export LEJIS_AXE=$axe
else
  say "axe-core cannot be fetched: one test of the page is skipped"
fi
run /usr/bin/python3 -m unittest discover -s "$project/tests/simulator_page"
