#!/bin/bash
# run.sh ARCH: the tests of what stands in the headers of the shipped files.
set -euo pipefail
# shellcheck source=tools/shell-support.sh
source "$(dirname "${BASH_SOURCE[0]}")/../../tools/shell-support.sh"

export LEJIS_BINARIES=$project/build/$1/bin
exec /usr/bin/python3 -m unittest discover -s "$project/tests/binaries"
