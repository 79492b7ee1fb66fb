#!/bin/bash
# wine-program.sh PROGRAM [ARGUMENT...]
# Runs a Windows program, named by its Unix or Windows path, and ends with its exit code. Wine's start.exe stands in
# between: about one in a thousand programs that have used HTTP dies of SIGSEGV at its very end, when Wine stops a thread
# of its own that is just starting. Only the Windows side then knows the code with which the program had ended before.
program=$1
[[ $program != /* ]] || program=Z:${program//\//\\}
exec wine start /exec "$program" "${@:2}"
