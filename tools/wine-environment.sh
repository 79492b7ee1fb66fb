# shellcheck shell=bash
# Sourced after shell-support.sh by scripts that hold the lock: Wine with a prefix of this checkout's own in build/wine.
# WINE names another Wine than the one on PATH; that one's prefix is build/wine-VERSION. WINE_LANE names a prefix for
# programs that run at the same time as others; its name stands at the end.

: "${project:?shell-support.sh comes first}"
# shellcheck source=tools/wine-choice.sh
source "$project/tools/wine-choice.sh"

export WINEPREFIX=$project/build/wine
if [[ -n ${WINE:-} ]]; then
  chosen_wine >/dev/null || fail "WINE names no program: $WINE"
  WINE=$(realpath --no-symlinks "$(chosen_wine)")
  export WINE
  wine_version=$("$WINE" --version) || fail "'$WINE --version' tells no version"
  WINEPREFIX=$project/build/${wine_version%% *}
fi
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

wine_runs() { [[ $1 == x64 ]] || has_32_bit_wine; }

windows_path() { printf '%s' "Z:${1//\//\\}"; }

# The folder of Windows' own programs of one bitness, as 64-bit programs and wine_loader see it.
windows_programs() {
  case $1 in
    x86 | coverage) printf '%s' 'C:\windows\syswow64' ;;
    x64) printf '%s' 'C:\windows\system32' ;;
  esac
}

# What a finished prefix was made by. A prefix that was interrupted has no such mark; one made before Wine's 32-bit
# half came, or by another version, has a different one. Both are made again. The number rises with make_prefix.
prefix_mark() {
  local bits=64
  has_32_bit_wine && bits=32+64
  printf '2 %s %s\n' "$bits" "$(wine --version)"
}

# run_program PROGRAM [ARGUMENT...]: a program that ends soon.
run_program() { run timeout --kill-after=10 60 "$project/tools/wine-program.sh" "$@"; }

add_registry_value() { run_program reg add "$1" /v "$2" /t "$3" /d "$4" /f >/dev/null 2>&1; }

# boot_prefix LOG: a new one.
boot_prefix() {
  rm -rf "$WINEPREFIX"
  mkdir -p "$WINEPREFIX"
  run timeout --kill-after=10 180 wine wineboot -i >>"$1" 2>&1
}

make_prefix() {
  local log=$WINEPREFIX.log
  say "Making the Wine prefix build/$(basename "$WINEPREFIX") (about 15 seconds) ..."
  : >"$log"
  # On a busy machine the first start of a new prefix was seen to fail: "could not load kernel32.dll".
  boot_prefix "$log" || {
    say "wineboot failed, see $log; trying once more ..."
    stop_wine
    boot_prefix "$log"
  } || fail "wineboot failed, see $log"
  # Windows and message boxes work without a display.
  add_registry_value 'HKCU\Software\Wine\Drivers' Graphics REG_SZ null || fail "the prefix takes no settings"
  # A crashed test ends instead of showing a dialog that nobody sees.
  add_registry_value 'HKCU\Software\Wine\WineDbg' ShowCrashDialog REG_DWORD 0 || fail "the prefix takes no settings"
  # The registry is written to disk when the server ends.
  stop_wine
  [[ -s $WINEPREFIX/system.reg ]] || fail "wineboot made no registry, see $log"
  prefix_mark >"$WINEPREFIX/finished"
}

# What wine-program.sh starts. Programs of both bitnesses can be started by one of 64 bits.
make_launcher() {
  local source=$project/tools/launch.cpp launcher=$project/build/launch.exe
  [[ $launcher -nt $source ]] && return
  run x86_64-w64-mingw32-g++-posix -std=c++20 -O1 -Wall -Wextra -Werror -DUNICODE -D_UNICODE -static -s \
    -o "$launcher.new" "$source" || fail "$source cannot be built"
  mv "$launcher.new" "$launcher"
}

# Needs the lock: a server that still runs here was left by a script that was killed.
start_wine() {
  make_launcher
  stop_wine
  [[ -f $WINEPREFIX/finished && $(<"$WINEPREFIX/finished") == "$(prefix_mark)" ]] || make_prefix
  # Without this the first program starts the server and its services, which keep that program's output open.
  wineserver --persistent </dev/null >/dev/null 2>&1 9>&- || fail "Wine's server does not start"
  run timeout --kill-after=10 60 wine cmd /c exit >/dev/null 2>&1 || fail "Wine runs no program"
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
