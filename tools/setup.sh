#!/bin/bash
# setup.sh [--require-x86] [--browser | --require-browser] [--clients | --require-clients] [--with PROGRAM]...
# Installs on Debian 12 what building and testing need and is not there yet, and programs whose package has their name.
# Without 32-bit Wine the x86 tests cannot run; that is an error only with --require-x86. --browser: Chromium too, for the
# tests of the simulator's page; that it cannot be had is an error only with --require-browser. --clients: Free Pascal and
# .NET for Windows too, for the tests of clients in these languages; a missing Free Pascal is an error only with
# --require-clients, a missing .NET never.
set -euo pipefail
# shellcheck source=tools/shell-support.sh
source "$(dirname "${BASH_SOURCE[0]}")/shell-support.sh"
# shellcheck source=tools/wine-environment.sh
source "$project/tools/wine-environment.sh"
# shellcheck source=tools/clients/places.sh
source "$project/tools/clients/places.sh"

require_x86=no
browser=no
clients=no
programs=()
while (($#)); do
  case $1 in
    --require-x86) require_x86=yes ;;
    --browser) browser=wanted ;;
    --require-browser) browser=required ;;
    --clients) clients=wanted ;;
    --require-clients) clients=required ;;
    --with)
      programs+=("${2:?--with needs a program}")
      shift
      ;;
    *) wrong_usage "usage: setup.sh [--require-x86] [--browser | --require-browser] [--clients | --require-clients]" \
      "[--with PROGRAM]..." ;;
  esac
  shift
done

log=$project/build/setup.log
# Says that 32-bit Wine could not be had here, so that not every run tries for a minute; --require-x86 tries again.
gave_up_32_bit=$project/build/.without-32-bit-wine
# The same for Chromium and --require-browser.
gave_up_browser=$project/build/.without-browser
# And for Free Pascal and --require-clients.
gave_up_free_pascal=$project/build/.without-free-pascal

missing_packages() {
  has_command cmake || say cmake
  has_command ninja || say ninja-build
  [[ -f /usr/src/googletest/CMakeLists.txt ]] || say googletest
  [[ -x /usr/bin/python3 ]] || say python3
  /usr/bin/python3 -c 'import lxml.etree' 2>/dev/null || say python3-lxml
  [[ -f /usr/include/nlohmann/json.hpp ]] || say nlohmann-json3-dev
  has_command wixl || say wixl
  has_command osslsigncode || say osslsigncode
  has_command openssl || say openssl
  has_command msibuild || say msitools
  /usr/bin/python3 -c 'import markdown' 2>/dev/null || say python3-markdown
  /usr/bin/python3 -c 'import pefile' 2>/dev/null || say python3-pefile
  local program
  for program in "${programs[@]}"; do
    has_command "$program" || say "$program"
  done
}

# Everything of Wine and the compilers but the 32-bit half of Wine.
has_toolchain() {
  local cpu
  chosen_wine >/dev/null && [[ -f /usr/include/wine/wine/windows/msxml6.h ]] || return 1
  compgen -G '/usr/lib/*/wine/x86_64-windows/regsvr32.exe' >/dev/null || return 1
  for cpu in x86_64 i686; do
    has_command "$cpu-w64-mingw32-g++-posix" && has_command "$cpu-w64-mingw32-widl" || return 1
  done
}

root_is_there() { ((EUID == 0)) || has_command sudo; }

as_root() {
  if ((EUID == 0)); then run "$@"; else run sudo "$@"; fi
}

# logged COMMAND...: its output goes to the log.
logged() { as_root "$@" >>"$log" 2>&1; }

# Fails when they cannot be installed.
try_to_install() {
  say "Installing $* ..."
  # A single index that cannot be had fails the update but not, as a rule, the installation, which is what counts.
  logged apt-get -o Acquire::Retries=3 -o DPkg::Lock::Timeout=300 update || say "apt-get update reported an error."
  logged env DEBIAN_FRONTEND=noninteractive \
    apt-get -o DPkg::Lock::Timeout=300 install -y --no-install-recommends "$@"
}

give_up() {
  tail -n 20 "$log" >&2
  fail "could not install $1 (full log: $log)"
}

install_toolchain() {
  say "Installing Wine (64 and 32 bit) and the mingw-w64 compilers, about two minutes ..."
  logged "$project/tools/install-wine-toolchain.sh" && return
  touch "$gave_up_32_bit"
  if ! has_toolchain; then
    say "That failed; installing them without 32-bit Wine ..."
    logged "$project/tools/install-wine-toolchain.sh" --without-32-bit || give_up "Wine and the compilers"
  fi
}

wants_32_bit_wine() {
  # Nothing is installed for a Wine that WINE names.
  [[ -z ${WINE:-} ]] && ! has_32_bit_wine || return 1
  [[ $require_x86 == yes || ! -e $gave_up_32_bit ]]
}

install_missing() {
  local packages=("$@")
  [[ -x /usr/bin/apt-get ]] || fail "something is missing and there is no apt-get to install it with"
  root_is_there || fail "something is missing, and installing it needs root or sudo; neither is there"
  : >"$log"
  ((${#packages[@]} == 0)) || try_to_install "${packages[@]}" || give_up "${packages[*]}"
  if ! has_toolchain || wants_32_bit_wine; then install_toolchain; fi
}

judge_32_bit_wine() {
  has_32_bit_wine && return
  [[ $require_x86 == no ]] || fail "32-bit Wine is demanded and could not be installed (log: $log)"
  say "32-bit Wine is not there: the x86 build can be made but not run here (tools/setup.sh --require-x86 tries again)."
}

# ensure WANTED MARK IS_THERE PACKAGE...: an installation of its own, for nothing else depends on it and it may fail. Fails
# when it is wanted but cannot be had.
ensure() {
  if [[ $1 == no ]] || "$3"; then return; fi
  if [[ $1 == required || ! -e $2 ]] && root_is_there; then
    : >"$log"
    try_to_install "${@:4}" || touch "$2"
  fi
  "$3"
}

ensure_browser() {
  ensure "$browser" "$gave_up_browser" has_browser chromium chromium-driver python3-selenium && return
  [[ $browser == wanted ]] || fail "Chromium is demanded and could not be installed (log: $log)"
  say "Chromium is not there: the simulator's page will not be tested (tools/setup.sh --require-browser tries again)."
}

ensure_clients() {
  if [[ $clients == no ]]; then return; fi
  if ! ensure "$clients" "$gave_up_free_pascal" has_free_pascal fp-compiler fpc-source ||
    ! run "$project/tools/clients/free-pascal.sh"; then
    [[ $clients == wanted ]] || fail "Free Pascal is demanded and cannot be had (log: $log)"
    say "Free Pascal is not there: its clients will not be tested (tools/setup.sh --require-clients tries again)."
  fi
  run "$project/tools/clients/dotnet.sh"
}

mkdir -p "$project/build"
clean_up_with :
mapfile -t missing < <(missing_packages)
if ((${#missing[@]})) || ! has_toolchain || { wants_32_bit_wine && root_is_there; }; then
  install_missing "${missing[@]}"
fi
judge_32_bit_wine
ensure_browser
ensure_clients
