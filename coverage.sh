#!/bin/bash
# coverage.sh
# Runs the tests of the 32-bit library with counters in it (./test.sh coverage) and prints for each of its files which
# part of the lines ran and which lines did not. The exit code is 1 when a test failed or fewer than 95 % of all lines
# ran. The annotated sources stand in build/coverage-report/index.html.
set -euo pipefail
# shellcheck source=tools/shell-support.sh
source "$(dirname "${BASH_SOURCE[0]}")/tools/shell-support.sh"

readonly least=95
report=$project/build/coverage-report

(($# == 0)) || wrong_usage "usage: coverage.sh"
clean_up_with :
lock_checkout
run "$project/tools/setup.sh" --with gcovr
# Counts add up from run to run; those of an older library would not fit.
[[ ! -d $project/build/coverage ]] || find "$project/build/coverage" -name '*.gcda' -delete
tests=0
run "$project/test.sh" coverage || tests=$?
mkdir -p "$report"
run gcovr --root "$project" --filter "$project/Plugins/LEJIS/LEJIS Core Library/" \
  --gcov-executable i686-w64-mingw32-gcov-posix --exclude-unreachable-branches \
  --html-details "$report/index.html" --txt "$report/lines.txt" --fail-under-line "$least" "$project/build/coverage" ||
  tests=1
cat "$report/lines.txt"
exit "$tests"
