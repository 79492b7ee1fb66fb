# shellcheck shell=bash
# A part of wine-environment.sh: how a Wine prefix is made. `wineboot` makes one pristine prefix, in which nothing ever
# runs. Each prefix that is used is a copy of it. The copies share Wine's own programs, which are nearly all of the
# 1.3 GB of a prefix and which nothing changes.

# What a finished prefix was made by. A prefix that was interrupted has no such mark; one made before Wine's 32-bit
# half came, or by another version, has a different one. Both are made again. The number rises with boot_prefix.
prefix_mark() {
  local bits=64
  has_32_bit_wine && bits=32+64
  printf '3 %s %s\n' "$bits" "$(wine --version)"
}

# is_finished PREFIX
is_finished() { [[ -f $1/finished && $(<"$1/finished") == "$(prefix_mark)" ]]; }

add_registry_value() { run_program reg add "$1" /v "$2" /t "$3" /d "$4" /f >/dev/null 2>&1; }

# boot_prefix LOG: a new one.
boot_prefix() {
  rm -rf "$WINEPREFIX"
  mkdir -p "$WINEPREFIX"
  run timeout --kill-after=10 180 wine wineboot -i >>"$1" 2>&1
}

make_pristine_prefix() {
  local WINEPREFIX=$PRISTINE_PREFIX log=$PRISTINE_PREFIX.log
  say "Making the Wine prefix build/$(basename "$WINEPREFIX") (about 15 seconds) ..."
  : >"$log"
  # One that was killed in the middle may have left its server.
  stop_wine
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

# copy_pristine_prefix TARGET: with links to the programs. What Wine writes to is the copy's own.
copy_pristine_prefix() (
  rm -rf "$1" && cp --archive --link "$PRISTINE_PREFIX" "$1" && cd "$PRISTINE_PREFIX" &&
    find . -path './drive_c/windows/s*/*' -prune -o -type f -print0 |
    xargs -0 cp --archive --parents --remove-destination --target-directory "$1"
)

# Lanes that run side by side may come here at once: the first one makes the pristine prefix.
make_prefix() {
  stop_wine
  exec 8>"$PRISTINE_PREFIX.lock"
  flock 8
  is_finished "$PRISTINE_PREFIX" || make_pristine_prefix
  exec 8>&-
  copy_pristine_prefix "$WINEPREFIX.new" || fail "$PRISTINE_PREFIX cannot be copied to $WINEPREFIX"
  rm -rf "$WINEPREFIX"
  mv "$WINEPREFIX.new" "$WINEPREFIX"
}
