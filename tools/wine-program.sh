#!/bin/bash
# wine-program.sh PROGRAM [ARGUMENT...]
# Runs a Windows program, named by its Unix or Windows path, and ends with its exit code. Wine has been started
# (start_wine). A program of this checkout stands in between, tools/launch.cpp: about one in a thousand programs
# that have used HTTP dies of SIGSEGV at its very end, when Wine stops a thread of its own that is just starting. Only
# the Windows side then knows the code with which the program had ended before.
set -uo pipefail
launcher=${BASH_SOURCE[0]%/*}/../build/launch.exe
program=$1
[[ $program != /* ]] || program=Z:${program//\//\\}

# On a busy machine Wine fails at times to start a program. The launcher removes the mark first, so that nothing is
# ever run twice.
mark=$(mktemp)
trap '[[ ! -e $mark ]] || rm -f "$mark"' EXIT
for tries in 1 2 3; do
  code=0
  LAUNCHED=Z:${mark//\//\\} wine "$launcher" "$program" "${@:2}" || code=$?
  [[ -e $mark ]] || exit "$code"
done
echo "${0##*/}: Wine failed $tries times to start $launcher (code $code)" >&2
exit "$code"
