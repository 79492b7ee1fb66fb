#!/bin/bash
# lint.sh
# What can be seen without running anything: the layout of the C++ sources (clang-format), mistakes in the library and
# its programs (cppcheck; its exceptions stand in tools/cppcheck-exceptions.txt; no thread_local, which is destroyed
# wrongly; no include that looks up the floors of the library or of its client, and no circle; no word of LEJIS in the
# platform) and in the scripts (shellcheck for those of the shell; flake8 for Python: names that are unknown or unused,
# syntax, white space, lines of more than 120 characters). The compiler's own warnings are errors in every build.
set -euo pipefail
# shellcheck source=tools/shell-support.sh
source "$(dirname "${BASH_SOURCE[0]}")/tools/shell-support.sh"

(($# == 0)) || wrong_usage "usage: lint.sh"
cd "$project"
clean_up_with :
lock_checkout
run tools/setup.sh --with clang-format --with cppcheck --with shellcheck --with flake8

failed=0
# check NAME COMMAND...
check() {
  if run "${@:2}"; then say "$1: nothing to say"; else failed=1; fi
}

# is_absent WORD FOLDER: prints the lines that have it, in any spelling.
# shellcheck disable=SC2317  # check calls it
is_absent() { ! grep -rniF -- "$1" "$2"; }

# Files that git knows, or would add.
files_of() { git ls-files --cached --others --exclude-standard -- "$@"; }

mapfile -t sources < <(files_of '*.cpp' '*.h')
mapfile -t shipped < <(files_of 'Plugins/*.cpp' 'Plugins/*.h' 'tools/lejis/*.cpp' 'tools/lejis/*.h')
mapfile -t scripts < <(files_of '*.sh' '.ci/run' 'tools/wine/*')
mapfile -t modules < <(files_of '*.py')
core="Plugins/LEJIS/LEJIS Core Library"
core_floors=(platform foundation "model deferred" "checking inquiry" services harness
  "DllExports.cpp TVLejisCore.idl PrecompiledHeaders.h")
client_floors=(text "console network" library files submission "report search doctor show" incidents commandline
  main.cpp)
cppcheck_options=(
  --quiet --error-exitcode=1 --template=gcc -j "$(nproc)"
  '--enable=warning,performance,portability' --std=c++20 --platform=win32W --library=windows
  --inline-suppr --suppressions-list=tools/cppcheck-exceptions.txt --suppress=missingInclude
  # What the system's headers, which are not read, define.
  -DSTDMETHODIMP=HRESULT '-DSTDMETHODIMP_(type)=type' -DSTDMETHODCALLTYPE= '-DLEJIS_HOST=L""'
)

check clang-format clang-format --dry-run --Werror "${sources[@]}"
check cppcheck cppcheck "${cppcheck_options[@]}" -I "$core" "$core" tools/lejis tools/kit
check thread_local tools/find-thread-locals.sh "${shipped[@]}"
check floors tools/find-upward-includes.sh "$core" "${core_floors[@]}"
check floors tools/find-upward-includes.sh tools/lejis "${client_floors[@]}"
check platform is_absent lejis "$core/platform"
check shellcheck shellcheck --external-sources "${scripts[@]}"
check flake8 /usr/bin/python3 -m flake8 --isolated --select=F,E501,E7,E9,W --extend-ignore=W503,W504 \
  --max-line-length=120 "${modules[@]}"
exit "$failed"
