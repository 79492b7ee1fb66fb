# shellcheck shell=bash
# Sourced after shell-support.sh by scripts that hold the lock: Wine with a prefix of this checkout's own in build/wine.
# WINE names another Wine than the one on PATH; that one's prefix is build/wine-VERSION. WINE_LANE names a prefix for
# programs that run at the same time as others; its name stands at the end.

: "${project:?shell-support.sh comes first}"
# shellcheck source=tools/wine-choice.sh
source "$project/tools/wine-choice.sh"
# shellcheck source=tools/wine-prefix.sh
source "$project/tools/wine-prefix.sh"

export WINEPREFIX=$project/build/wine
if [[ -n ${WINE:-} ]]; then
  chosen_wine >/dev/null || fail "WINE names no program: $WINE"
  WINE=$(realpath --no-symlinks "$(chosen_wine)")
  export WINE
  wine_version=$("$WINE" --version) || fail "'$WINE --version' tells no version"
  WINEPREFIX=$project/build/${wine_version%% *}
fi
# What the prefixes of this Wine are copied from.
PRISTINE_PREFIX=$WINEPREFIX-pristine
WINEPREFIX+=${WINE_LANE:+-$WINE_LANE}
# Whatever starts `wine` or `wineserver` gets those of the chosen Wine.
[[ :$PATH: == *:$project/tools/wine:* ]] || export PATH=$project/tools/wine:$PATH
export WINEARCH=win64
export WINEDEBUG=-all
# Mono and Gecko would ask to be downloaded; the menu builder would write into the user's home.
export WINEDLLOVERRIDES='mscoree,mshtml=;winemenubuilder.exe=d'
# Gives the prefix the en-US locale, with UTF-8 file names.
export LANG=C.UTF-8 LC_ALL=C.UTF-8
unset DISPLAY WAYLAND_DISPLAY WINELOADER WINESERVER LANGUAGE

wine_runs() { [[ $1 == x64* ]] || has_32_bit_wine; }

windows_path() { printf '%s' "Z:${1//\//\\}"; }

# The folder of Windows' own programs of one bitness, as 64-bit programs and wine_loader see it.
windows_programs() {
  case $1 in
    x86 | x86-debug | coverage) printf '%s' 'C:\windows\syswow64' ;;
    x64 | x64-debug) printf '%s' 'C:\windows\system32' ;;
  esac
}

# run_program PROGRAM [ARGUMENT...]: a program that ends soon.
run_program() { run timeout --kill-after=10 60 "$project/tools/wine-program.sh" "$@"; }

# Programs of 64 bits can start those of both bitnesses.
make_wine_program() {
  local source=$project/tools/$1.cpp program=$project/build/$1.exe
  [[ $program -nt $source ]] && return
  run x86_64-w64-mingw32-g++-posix -std=c++20 -O1 -Wall -Wextra -Werror -DUNICODE -D_UNICODE -static -s \
    -o "$program.new" "$source" || fail "$source cannot be built"
  mv "$program.new" "$program"
}

# What start_wine and wine-program.sh start.
make_wine_programs() {
  make_wine_program launch
  make_wine_program hold-desktop
}

# Needs the lock: a server that still runs here was left by a script that was killed.
start_wine() {
  make_wine_programs
  stop_wine
  is_finished "$WINEPREFIX" || make_prefix
  # Without this the first program starts the server and its services, which keep that program's output open.
  wineserver --persistent </dev/null >/dev/null 2>&1 9>&- || fail "Wine's server does not start"
  run timeout --kill-after=10 60 wine cmd /c exit >/dev/null 2>&1 || fail "Wine runs no program"
  # Ends with the server.
  wine "$project/build/hold-desktop.exe" </dev/null >/dev/null 2>&1 8>&- 9>&- &
  disown
}

# Ends every Wine process of this prefix and of no other.
stop_wine() {
  [[ -d $WINEPREFIX ]] || return 0
  # Its exit code says only whether a server was running.
  wineserver --kill </dev/null >/dev/null 2>&1 9>&- || :
}

# check_heap_of PROGRAM.EXE: turns on heap checking (the flags for tails, free blocks and parameters), which Windows and
# Wine look up by a program's name.
check_heap_of() {
  local bits
  for bits in 32 64; do
    run_program reg add "HKLM\\Software\\Microsoft\\Windows NT\\CurrentVersion\\Image File Execution Options\\$1" \
      /v GlobalFlag /t REG_DWORD /d 0x70 /f "/reg:$bits" >/dev/null 2>&1 || fail "the prefix takes no settings"
  done
}

library_of() { printf '%s' "$project/build/$1/bin/TVLejisCore.dll"; }

register_dll() {
  local code=0
  [[ -f $(library_of "$1") ]] || fail "$(library_of "$1") has not been built"
  # Without /s a newer Wine shows a message box, and nobody is there to close it.
  run_program "$(windows_programs "$1")\\regsvr32.exe" /s \
    "$(windows_path "$(library_of "$1")")" >/dev/null 2>&1 || code=$?
  ((code == 0)) || fail "the $1 library could not be registered: regsvr32 ended with code $code"
}
