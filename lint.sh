#!/bin/bash
# lint.sh
# Finds mistakes without running anything.
#   C++ sources   their layout (clang-format)
#   the library   cppcheck, with the exceptions of tools/cppcheck-exceptions.txt; clang as a second compiler;
#                 clang-tidy with the checks of .clang-tidy; no word of LEJIS in the platform
#   lejis.exe     cppcheck and clang
#   both          no thread_local, which is destroyed wrongly; no include that looks up the floors, and no circle
#   scripts       shellcheck; flake8 (unknown and unused names, syntax, white space, lines of more than 120 characters)
# The compiler's own warnings are errors in every build.
set -euo pipefail
# shellcheck source=tools/shell-support.sh
source "$(dirname "${BASH_SOURCE[0]}")/tools/shell-support.sh"

(($# == 0)) || wrong_usage "usage: lint.sh"
cd "$project"
clean_up_with :
lock_checkout
run tools/setup.sh --with clang-format --with cppcheck --with shellcheck --with flake8 --with clang --with clang-tidy

failed=0
# check NAME COMMAND...
check() {
  if run "${@:2}"; then say "$1: nothing to say"; else failed=1; fi
}

# is_absent WORD FOLDER: prints the lines that have it, in any spelling.
# shellcheck disable=SC2317  # check calls it
is_absent() { ! grep -rniF -- "$1" "$2"; }

# clang needs the commands of a build and the headers that it generates. A folder of its own keeps other builds as they
# are configured.
make_generated_headers() {
  local folder=build/lint
  run cmake -S . --preset x64 --fresh -D COMPILE_BY_FOLDER=OFF -B "$folder" &&
    run cmake --build "$folder" --target TVLejisCore_interfaces_files core/generated/NcicOffenseCodeRows.inc
}

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
make_generated_headers >build/lint.log 2>&1 || fail "the headers of clang cannot be made (full log: build/lint.log)"
check clang /usr/bin/python3 tools/check_with_clang.py build/lint --tidy "$core" --compile tools/lejis
check shellcheck shellcheck --external-sources "${scripts[@]}"
check flake8 /usr/bin/python3 -m flake8 --isolated --select=F,E501,E7,E9,W --extend-ignore=W503,W504 \
  --max-line-length=120 "${modules[@]}"
exit "$failed"
