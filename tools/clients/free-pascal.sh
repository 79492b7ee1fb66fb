#!/bin/bash
# free-pascal.sh: makes Free Pascal's compilers for Windows, and the units that tests/clients and samples/pascal use, from
# Debian's sources (fp-compiler and fpc-source, see tools/setup.sh --clients), in build/clients/free-pascal:
#   x86/compiler, x64/compiler    the compilers
#   x86/units, x64/units          System, SysUtils, Variants, ComObj, EventSink and what they use
# That takes some twenty seconds, once. The compilers link by themselves.
set -euo pipefail
# shellcheck source=tools/shell-support.sh
source "$(dirname "${BASH_SOURCE[0]}")/../shell-support.sh"
# shellcheck source=tools/clients/places.sh
source "$project/tools/clients/places.sh"

log=$project/build/clients/free-pascal.log
version=$(ppcx64 -iV)
sources=/usr/share/fpcsrc/$version
messages=/usr/lib/x86_64-linux-gnu/fpc/$version/msg/errore.msg

# The compiler for x86 runs here as the other one does.
make_x86_compiler() {
  local compiler=$sources/compiler place=$free_pascal/x86
  mkdir -p "$place/made"
  ppcx64 -O2 -Xs -di386 -dEXTERN_MSG -Fu"$compiler" -Fu"$compiler/i386" -Fu"$compiler/x86" -Fu"$compiler/systems" \
    -Fi"$compiler" -Fi"$compiler/i386" -Fi"$compiler/x86" -FU"$place/made" -o"$place/compiler" "$compiler/pp.pas"
  # It reads its messages from beside it.
  cp "$messages" "$place/errore.msg"
}

make_x64_compiler() {
  mkdir -p "$free_pascal/x64"
  ln -sf "$(realpath "$(command -v ppcx64)")" "$free_pascal/x64/compiler"
}

# make_units ARCH CPU SYSTEM STARTUP_UNIT
make_units() {
  local rtl=$sources/rtl packages=$sources/packages units=$free_pascal/$1/units folder unit
  local compile=("$free_pascal/$1/compiler" -n "-T$3" -O2 -Sg "-FU$units")
  mkdir -p "$units"
  for folder in inc "$2" x86_64 "$3" win win/wininc objpas objpas/sysutils objpas/classes; do
    compile+=("-Fi$rtl/$folder")
  done
  for folder in "$3" win inc "$2" objpas; do compile+=("-Fu$rtl/$folder"); done
  "${compile[@]}" -Us "$rtl/$3/system.pp"
  for unit in inc/uuchar.pp objpas/objpas.pp inc/fpintres.pp "$3/$4.pp"; do "${compile[@]}" "$rtl/$unit"; done
  for folder in inc win; do
    compile+=("-Fu$packages/rtl-objpas/src/$folder" "-Fi$packages/rtl-objpas/src/$folder")
  done
  for folder in winunits-base fcl-registry fcl-base; do compile+=("-Fu$packages/$folder/src"); done
  "${compile[@]}" "$packages/winunits-base/src/eventsink.pp"
}

tell_failure() {
  local code=$?
  ((code)) || return 0
  tail -n 5 "$log" >&2
  complain "Free Pascal for Windows cannot be made (full log: $log)"
}

[[ -f $free_pascal/finished && $(<"$free_pascal/finished") == "$version" ]] && exit
say "Making Free Pascal's compilers and units for Windows ..."
rm -rf "$free_pascal"
mkdir -p "$free_pascal"
trap tell_failure EXIT
# Nothing stands after this subshell: bash passes over failures in what "||" or "if" looks at.
(
  make_x86_compiler
  make_units x86 i386 win32 sysinitpas
  make_x64_compiler
  make_units x64 x86_64 win64 sysinit
) >"$log" 2>&1
say "$version" >"$free_pascal/finished"
