# shellcheck shell=bash
# Sourced by what starts Wine: which Wine that is, and where its programs are. It is the one that WINE names, such as
# /opt/wine-10/bin/wine, or else the one on PATH. The functions fail when there is no Wine.

# Its program `wine`. The one in tools/wine, which stands first on the scripts' PATH, is not meant.
chosen_wine() {
  local own=${BASH_SOURCE[0]%/*}/wine/wine place places
  if [[ -n ${WINE:-} ]]; then
    type -P "$WINE"
    return
  fi
  # All of them first: `type` would complain of a reader that goes away before the last one.
  mapfile -t places < <(type -aP wine)
  for place in "${places[@]}"; do
    if ! [[ $place -ef $own ]]; then
      printf '%s\n' "$place"
      return
    fi
  done
  return 1
}

# program_of_wine NAME: another of its programs, which stands beside `wine` or, as Debian has it, in lib/wine.
program_of_wine() {
  local wine target place
  wine=$(chosen_wine) || return
  target=$(realpath "$wine")
  for place in "${wine%/*}/$1" "${target%/*}/$1" "${target%/*}/../lib/wine/$1"; do
    if [[ -x $place ]]; then
      printf '%s\n' "$place"
      return
    fi
  done
  return 1
}

# What loads programs of both bitnesses and takes system32 for what it says: the 64-bit loader, where Wine has one of
# its own. Debian's `wine` is the 32-bit loader, to which system32 is syswow64.
wine_loader() { program_of_wine wine64 || chosen_wine; }

# Is the 32-bit half there: its DLLs and, where the loaders are two, the other one?
has_32_bit_wine() {
  local loader target lib
  loader=$(wine_loader) || return
  [[ $loader != */wine64 || -x ${loader%64} ]] || return
  target=$(realpath "$(chosen_wine)")
  lib=${target%/*}/../lib
  compgen -G "$lib/wine/i386-windows/regsvr32.exe" >/dev/null ||
    compgen -G "$lib/*/wine/i386-windows/regsvr32.exe" >/dev/null
}
