#!/bin/bash
# demo.sh
# Builds the library and tells its story: incidents are checked, submitted to a LEJIS Interface (a simulator, over real
# HTTP), withdrawn, refused, and kept back while the other side is down. Ends with code 1 when something is not as told.
set -euo pipefail
# shellcheck source=tools/shell-support.sh
source "$(dirname "${BASH_SOURCE[0]}")/tools/shell-support.sh"
# shellcheck source=tools/wine-environment.sh
source "$project/tools/wine-environment.sh"

(($# == 0)) || wrong_usage "usage: demo.sh"

clean_up_with stop_wine
lock_checkout
run "$project/tools/setup.sh"
# The suite is a 32-bit program, so that is the library it loads.
architecture=x86
wine_runs x86 || architecture=x64
run "$project/build.sh" "$architecture" TVLejisCore lejis
start_wine
register_dll "$architecture"
run "$project/tests/support/with_simulator.sh" "$project/tools/demo/story.sh" "$architecture"
