#!/bin/bash
# package.sh [--lejis-host HOST] [x86|x64|all]
# Builds the library and makes its packages in build/packages: for each bitness a zip, a zip of the debug symbols and an
# installer (MSI), and SHA256SUMS. HOST is the host in the namespaces of the LEJIS that they are made for, and stands in
# the packages' names; without it they are made for lejis.example, which stands for none.
set -euo pipefail
# shellcheck source=tools/shell-support.sh
source "$(dirname "${BASH_SOURCE[0]}")/tools/shell-support.sh"
# shellcheck source=tools/wine-environment.sh
source "$project/tools/wine-environment.sh"

take_lejis_host "$@"
((${#arguments[@]} <= 1)) || wrong_usage "usage: package.sh [--lejis-host HOST] [x86|x64|all]"
architectures=$(architectures_of "${arguments[0]:-all}")
build=("$project/build.sh" ${lejis_host:+--lejis-host "$lejis_host"})
packages=$project/build/packages

# The type library is read by a Windows program, of a bitness that runs here; either reads both.
reader=x64
[[ $architectures != x86 ]] || ! wine_runs x86 || reader=x86

# The description of a bitness, made again when its type library has changed.
description_of() { printf '%s' "$project/build/$1/packaging/type_library.tsv"; }

describe() {
  local folder description library
  description=$(description_of "$1")
  library="$project/build/$1/core/type_library/TVLejisCore.tlb"
  folder=$(dirname "$description")
  [[ ! $description -nt $library ]] || return 0
  mkdir -p "$folder"
  run_program "$project/build/$reader/packaging/describe_type_library.exe" \
    "$(windows_path "$library")" >"$description.new" || fail "the type library of $1 could not be read"
  tr -d '\r' <"$description.new" >"$description"
  rm "$description.new"
}

clean_up_with stop_wine
lock_checkout
run "$project/tools/setup.sh"
run "${build[@]}" "$reader" describe_type_library
for architecture in $architectures; do
  run "${build[@]}" "$architecture" TVLejisCore lejis
done
start_wine
for architecture in $architectures; do
  describe "$architecture"
  run /usr/bin/python3 "$project/tools/packaging/package.py" "$architecture" "$(description_of "$architecture")" \
    "$packages"
done
cd "$packages"
sha256sum -- *.zip *.msi >SHA256SUMS
say "Packages in build/packages:"
find . -maxdepth 1 -type f ! -name SHA256SUMS -printf '  %-40f %8k KB\n' | sort
