#!/bin/bash
# guides.sh: the guides and the demonstration. They start and stop Wine themselves, so nothing else may use the usual
# prefix meanwhile. They are for the 32-bit library.
set -euo pipefail
# shellcheck source=tools/shell-support.sh
source "$(dirname "${BASH_SOURCE[0]}")/../../tools/shell-support.sh"
# shellcheck source=tests/suite/record.sh
source "$project/tests/suite/record.sh"

clean_up_with :
run_tests - tools unittest guides /usr/bin/python3 -m unittest discover -s "$project/tests/guides"
