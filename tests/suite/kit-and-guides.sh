#!/bin/bash
# kit-and-guides.sh ARCH...: the lane of the kit that tries the libraries of these architectures on Windows, of the guides
# and of the demonstration.
set -euo pipefail
# shellcheck source=tools/shell-support.sh
source "$(dirname "${BASH_SOURCE[0]}")/../../tools/shell-support.sh"
# shellcheck source=tests/suite/record.sh
source "$project/tests/suite/record.sh"

simulator=$project/tests/support/with_simulator.sh

run_guides() {
  if [[ " $* " == *" x86 "* ]]; then
    # They start and stop Wine themselves, in the prefix that is the usual one outside the lanes.
    run_tests - tools unittest guides /usr/bin/python3 -m unittest discover -s "$project/tests/guides"
  else
    say "The guides were not tested: they are for the 32-bit library"
  fi
}

started=$SECONDS
clean_up_with :
stay_on_own_processor
# It runs what the lanes of all architectures do.
time_limit=1800 run_tests - kit unittest kit "$simulator" "$project/tests/packages/run.sh" --kit "$@"
run_guides "$@"
say "kit and guides tested in $((SECONDS - started)) s"
