#!/bin/bash
# tools.sh ARCH...: the lane of the tools, which are written in Python, and of the packages of these architectures, which
# are installed, used and uninstalled.
set -euo pipefail
# shellcheck source=tools/shell-support.sh
source "$(dirname "${BASH_SOURCE[0]}")/../../tools/shell-support.sh"
export WINE_LANE=tools
# shellcheck source=tools/wine-environment.sh
source "$project/tools/wine-environment.sh"
# shellcheck source=tests/suite/record.sh
source "$project/tests/suite/record.sh"

simulator=$project/tests/support/with_simulator.sh

run_python() {
  local folder
  for folder in simulator support docs debugging; do
    run_tests - tools unittest "$folder" /usr/bin/python3 -m unittest discover -s "$project/tests/$folder"
  done
}

# In a browser, with submissions from the library of this architecture.
run_page() {
  if has_browser; then
    run_tests - tools unittest simulator_page "${on_all_processors[@]}" "$simulator" \
      "$project/tests/simulator_page/run.sh" "$1"
  else
    say "The simulator's page was not tested: Chromium is not there"
  fi
}

started=$SECONDS
clean_up_with stop_wine
stay_on_own_processor
start_wine
register_dll "$1"
run_python
run_page "$1"
run_tests - packages unittest packages "$simulator" "$project/tests/packages/run.sh" "$@"
say "tools and packages tested in $((SECONDS - started)) s"
