#!/bin/bash
# run.sh ARCH: the tests of what the compiler refuses, with the compiler and the options of the library's tests.
set -euo pipefail
# shellcheck source=tools/shell-support.sh
source "$(dirname "${BASH_SOURCE[0]}")/../../tools/shell-support.sh"

export LEJIS_BUILD=$project/build/$1
exec /usr/bin/python3 -m unittest discover -s "$project/tests/compiling"
