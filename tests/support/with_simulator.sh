#!/bin/bash
# with_simulator.sh [--in-schemas] COMMAND...
# Runs COMMAND beside a LEJIS Interface simulator of its own and returns COMMAND's exit code. COMMAND finds in its
# environment
#   LEJIS_SIMULATOR_URL       http://127.0.0.1:PORT
#   LEJIS_SIMULATOR_DATA      the simulator's folder, which is kept under build/simulator
#   LEJIS_SIMULATOR_SCHEMAS   the folder of its schemas, as a Windows path
# --in-schemas: COMMAND starts in the folder of the schemas. Wine takes one schema's reference to another as relative to
# the current folder, so a program that validates must stand there.
set -euo pipefail
# shellcheck source=tools/shell-support.sh
source "$(dirname "${BASH_SOURCE[0]}")/../../tools/shell-support.sh"

in_schemas=no
if [[ ${1:-} == --in-schemas ]]; then
  in_schemas=yes
  shift
fi
(($#)) || wrong_usage "usage: with_simulator.sh [--in-schemas] COMMAND..."

simulators=$project/build/simulator
mkdir -p "$simulators"
# Folders of earlier runs are worth a look, not for ever. Another run may remove them at the same time.
find "$simulators" -mindepth 1 -maxdepth 1 -ignore_readdir_race -type d -mmin +1440 -exec rm -rf {} + || :
folder=$(mktemp --directory --tmpdir="$simulators")
log=$folder/simulator.log
simulator=

is_alive() { kill -0 "$simulator" 2>/dev/null; }

start_simulator() {
  /usr/bin/python3 "$project/tools/simulator/lejis_simulator.py" --port 0 --port-file "$folder/port" \
    --data "$folder/data" --parent "$$" </dev/null >"$log" 2>&1 9>&- &
  simulator=$!
}

# Prints the port when the simulator listens.
await_port() {
  local port _
  for _ in {1..200}; do
    if [[ -s $folder/port ]]; then
      port=$(<"$folder/port")
      [[ $port =~ ^[0-9]+$ ]] && say "$port" && return
    fi
    is_alive || return 1
    sleep 0.1
  done
  return 1
}

# It may have ended since it was looked at; then the signals have nobody to reach.
# shellcheck disable=SC2317  # clean_up_with calls it
stop_simulator() {
  local _
  [[ -n $simulator ]] || return 0
  kill -TERM "$simulator" 2>/dev/null || :
  for _ in {1..50}; do
    is_alive || break
    sleep 0.1
  done
  kill -KILL "$simulator" 2>/dev/null || :
  wait "$simulator" 2>/dev/null || :
}

clean_up_with stop_simulator
start_simulator
port=$(await_port) || {
  tail -n 20 "$log" >&2
  fail "the simulator did not start (full log: $log)"
}
export LEJIS_SIMULATOR_URL=http://127.0.0.1:$port
export LEJIS_SIMULATOR_DATA=$folder/data
export LEJIS_SIMULATOR_SCHEMAS=Z:${folder//\//\\}\\data\\schemas

[[ $in_schemas == no ]] || cd "$folder/data/schemas"
code=0
run "$@" || code=$?
if ! is_alive; then
  complain "the simulator ended before it was stopped"
  ((code)) || code=1
fi
((code == 0)) || complain "the simulator's log: $log"
exit "$code"
