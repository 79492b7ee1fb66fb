# shellcheck shell=bash
# Sourced by the scripts of this project, which are bash with "set -euo pipefail".

project=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd -P)

say() { printf '%s\n' "$*"; }

complain() { printf '%s: %s\n' "${0##*/}" "$*" >&2; }

fail() {
  complain "$*"
  exit 1
}

wrong_usage() {
  complain "$*"
  exit 64
}

has_command() { command -v "$1" >/dev/null; }

# Chromium and what steers it.
has_browser() {
  has_command chromium && has_command chromedriver && /usr/bin/python3 -c 'import selenium' 2>/dev/null
}

# "x86", "x64" or both, one a line.
architectures_of() {
  case $1 in
    all) printf 'x86\nx64\n' ;;
    # "coverage" is x86 once more, with counters: see coverage.sh.
    x86 | x64 | coverage) say "$1" ;;
    *) wrong_usage "'$1' is none of x86, x64, all" ;;
  esac
}

# One script at a time works in build/: they share the build folders and the Wine prefix. A script that another one
# calls works under its caller's lock. Whatever lives longer than the script must not inherit descriptor 9, or the
# lock outlives the script as well. Descriptor 8 is the lock of wine-prefix.sh.
lock_checkout() {
  [[ ${TVLEJIS_LOCKED_CHECKOUT:-} == "$project" ]] && return
  mkdir -p "$project/build"
  exec 9>"$project/build/.lock"
  if ! flock --nonblock 9; then
    say "Waiting for another script that works in this folder ..."
    flock 9
  fi
  export TVLEJIS_LOCKED_CHECKOUT=$project
}

# Runs one program (no shell function), so that a signal to the script ends it at once: bash puts a trap off until a
# foreground command has ended, but not while it waits for a background one.
running=
run() {
  local code=0
  "$@" </dev/null 8>&- 9>&- &
  running=$!
  wait "$running" || code=$?
  running=
  return "$code"
}

stop_running() {
  [[ -n $running ]] || return 0
  # It may have ended by itself since, which is as good.
  kill -TERM "$running" 2>/dev/null || :
  wait "$running" 2>/dev/null || :
  running=
}

# clean_up_with FUNCTION: ends the program under way and calls FUNCTION, whichever way the script ends.
clean_up_with() {
  # shellcheck disable=SC2064  # the function's name is wanted as it is now
  trap "trap '' INT TERM HUP; stop_running; $1" EXIT
  trap 'exit 129' HUP
  trap 'exit 130' INT
  trap 'exit 143' TERM
}

# take_lejis_host [ARGUMENT...]: sets `lejis_host` to the value of the option --lejis-host, or to nothing without one, and
# `arguments` to the others.
# shellcheck disable=SC2034  # the script that called uses both
take_lejis_host() {
  lejis_host=
  arguments=()
  while (($#)); do
    case $1 in
      --lejis-host)
        (($# > 1)) || wrong_usage "--lejis-host needs a host name"
        lejis_host=$(checked_host "$2")
        shift
        ;;
      --lejis-host=*) lejis_host=$(checked_host "${1#*=}") ;;
      *) arguments+=("$1") ;;
    esac
    shift
  done
}

checked_host() {
  [[ $1 =~ ^[A-Za-z0-9]([A-Za-z0-9.-]*[A-Za-z0-9])?$ ]] || wrong_usage "'$1' is no host name"
  say "$1"
}

# take_architecture DEFAULT [ARGUMENT...]: sets `architecture` to the first argument, where that is one, and `arguments`
# to the others.
# shellcheck disable=SC2034  # the script that called uses both
take_architecture() {
  architecture=$1
  shift
  case ${1:-} in
    x86 | x64)
      architecture=$1
      shift
      ;;
  esac
  arguments=("$@")
}
