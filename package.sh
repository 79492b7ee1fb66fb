#!/bin/bash
# package.sh [--lejis-host HOST] [--sign CERT KEY [--timestamp URL]] [--kit] [--output FOLDER] [x86|x64|all]
# Builds the library and makes its packages in build/packages: for each bitness a zip, a zip of the debug symbols and an
# installer (MSI); a zip of the simulator, and SHA256SUMS. HOST is the host in the namespaces of the LEJIS that they are
# made for, and stands in the packages' names; without it they are made for lejis.example, which stands for none.
# --sign: the DLLs, programs and installers are signed with this certificate (a file with its chain, PEM) and key (PEM);
# URL is the time-stamping service without which a signature ends with its certificate.
# --kit: also the zip that tries the library on Windows, with its tests. It is for lejis.example, as the simulator is.
# --output: they are made in this folder instead of build/packages.
set -euo pipefail
# shellcheck source=tools/shell-support.sh
source "$(dirname "${BASH_SOURCE[0]}")/tools/shell-support.sh"
# shellcheck source=tools/wine-environment.sh
source "$project/tools/wine-environment.sh"

signing=()
selection=all
with_kit=no
packages=$project/build/packages

# Paths are given as seen from where the script was started.
readable_file() {
  [[ -r ${1:-} ]] || wrong_usage "${1:-nothing}: there is no such certificate or key"
  realpath "$1"
}

read_arguments() {
  local certificate key
  while (($#)); do
    case $1 in
      --sign)
        certificate=$(readable_file "${2:-}")
        key=$(readable_file "${3:-}")
        signing+=(--sign "$certificate" "$key")
        shift 2
        ;;
      --timestamp)
        [[ -n ${2:-} ]] || wrong_usage "--timestamp needs the address of a service"
        signing+=(--timestamp "$2")
        shift
        ;;
      --kit) with_kit=yes ;;
      --output)
        [[ -n ${2:-} ]] || wrong_usage "--output needs a folder"
        packages=$(realpath --canonicalize-missing "$2")
        shift
        ;;
      -*) wrong_usage "unknown option $1" ;;
      *) selection=$1 ;;
    esac
    shift
  done
  [[ ${signing[0]:---sign} == --sign ]] || wrong_usage "--timestamp is of use with --sign alone, and comes after it"
}

take_lejis_host "$@"
read_arguments "${arguments[@]}"
[[ $with_kit == no || -z $lejis_host ]] || wrong_usage "the kit is tried with the simulator, which is for no LEJIS host"
architectures=$(architectures_of "$selection")
build=("$project/build.sh" ${lejis_host:+--lejis-host "$lejis_host"})

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

programs=(TVLejisCore lejis)
[[ $with_kit == no ]] || programs+=(kit unit_tests client_tests end_to_end_tests windows_tests)

clean_up_with stop_wine
lock_checkout
run "$project/tools/setup.sh"
run "${build[@]}" "$reader" describe_type_library
for architecture in $architectures; do
  run "${build[@]}" "$architecture" "${programs[@]}"
done
start_wine
for architecture in $architectures; do
  describe "$architecture"
  run /usr/bin/python3 "$project/tools/packaging/package.py" "${signing[@]}" "$architecture" \
    "$(description_of "$architecture")" "$packages"
done
run /usr/bin/python3 "$project/tools/packaging/simulator_package.py" "$architecture" "$packages"
if [[ $with_kit == yes ]]; then
  # shellcheck disable=SC2086  # one argument each
  run /usr/bin/python3 "$project/tools/packaging/kit_package.py" "$packages" $architectures
else
  # One of earlier programs would pass for theirs.
  rm -f "$packages"/TVLejisCore-*-kit.zip
fi
cd "$packages"
sha256sum -- *.zip *.msi >SHA256SUMS
say "Packages in ${packages#"$project"/}:"
find . -maxdepth 1 -type f ! -name SHA256SUMS -printf '  %-40f %8k KB\n' | sort
