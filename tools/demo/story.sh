#!/bin/bash
# story.sh ARCH: the story of demo.sh. The library is registered, the simulator runs.
set -euo pipefail
# shellcheck source=tools/shell-support.sh
source "$(dirname "${BASH_SOURCE[0]}")/../shell-support.sh"
# shellcheck source=tools/wine-environment.sh
source "$project/tools/wine-environment.sh"

: "${LEJIS_SIMULATOR_URL:?with_simulator.sh starts this}"
lejis=$(windows_path "$project/build/$1/bin/lejis.exe")
submission_url=$LEJIS_SIMULATOR_URL/lejis-core-Rev01/services/submission
search_url=$LEJIS_SIMULATOR_URL/lejis-core-Rev01/services/search
# No server listens on port 1.
dead_url=http://127.0.0.1:1/lejis-core-Rev01/services/submission
answer=$LEJIS_SIMULATOR_DATA/lejis-output
broken=0

# What lejis ends with.
readonly done_code=0 refused=1 try_again=2 wrong_usage=64

heading() { printf '\n%s\n%s\n' "$1" "${1//?/-}"; }

sample() { say "samples/incidents/$1.xml"; }

not_as_told() {
  say "    NOT AS TOLD: $*"
  broken=$((broken + 1))
}

# lejis_gives CODE ARGUMENT...
lejis_gives() {
  local code=0
  printf '\n  $ lejis'
  printf ' %s' "${@:2}"
  printf '\n'
  run_program "$lejis" "${@:2}" >"$answer" 2>&1 || code=$?
  tr -d '\r' <"$answer" | sed 's/^/    /'
  say "    (exit code $code)"
  ((code == $1)) || not_as_told "exit code $1 was expected"
}

it_says() { grep --quiet --ignore-case -e "$1" "$answer" || not_as_told "the answer should mention '$1'"; }

# simulator EXPECTATION COMMAND ARGUMENT...
simulator() {
  run /usr/bin/python3 "$project/tools/demo/simulator_control.py" "$LEJIS_SIMULATOR_URL" "${@:2}" || not_as_told "$1"
}

simulator_plays() { simulator "the simulator should take this fault" play-fault "$1"; }

# index_holds N: shows the index, which must hold N incidents.
index_holds() {
  printf '\n  The index now holds:\n'
  simulator "the index should hold $1 incidents" show-index "$1"
}

clean_up_with :

heading "An incident is checked before anybody else sees it"
lejis_gives "$done_code" check "$(sample burglary)"

heading "It is submitted to LEJIS"
lejis_gives "$done_code" submit "$(sample burglary)" --url "$submission_url"
index_holds 1

heading "Doubtful details are submitted as well, with warnings for the officer"
lejis_gives "$done_code" submit "$(sample many-warnings)" --url "$submission_url"
it_says warning

heading "More incidents: a stolen vehicle, names from many countries, a large case"
lejis_gives "$done_code" submit "$(sample vehicle-theft)" "$(sample international)" "$(sample large)" \
  --url "$submission_url"
index_holds 5

heading "The same incident again replaces the first; this time LEJIS's own schema checks it before it leaves"
# Wine takes one schema's reference to another as relative to the current folder, so lejis stands among the schemas.
cd "$LEJIS_SIMULATOR_DATA/schemas"
lejis_gives "$done_code" submit "$(windows_path "$project/$(sample burglary)")" \
  --url "$submission_url" --validate-schema
cd "$project"
simulator "the schema should have been asked for" wsdl-was-read
index_holds 5

heading "An incident is withdrawn"
lejis_gives "$done_code" delete "$(sample burglary)" --url "$submission_url"
index_holds 4
simulator "all submissions should be valid" all-calls-were-valid

heading "An incident that breaks the rules never leaves the house"
simulator "the simulator should forget its calls" forget-exchanges
lejis_gives "$refused" check "$(sample refused)"
lejis_gives "$refused" submit "$(sample refused)" --url "$submission_url"
simulator "nothing should have been sent" exchanges-are 0

heading "LEJIS itself refuses a submission: there is no use in trying again"
simulator_plays '{"kind": "soap-fault", "message": "The agency is not known here."}'
lejis_gives "$refused" submit "$(sample burglary)" --url "$submission_url"
it_says 'The agency is not known here'

heading "The LEJIS core is offline: try again later"
simulator_plays '{"kind": "response-code", "text": "100 core offline"}'
lejis_gives "$try_again" submit "$(sample burglary)" --url "$submission_url"
it_says 'core system is offline'

heading "The LEJIS Interface is down: try again later"
lejis_gives "$try_again" submit "$(sample burglary)" --url "$dead_url"
it_says 'is down'

heading "None of these attempts has touched the index; the next one succeeds"
index_holds 4
lejis_gives "$done_code" submit "$(sample burglary)" --url "$submission_url"
index_holds 5

heading "What the index holds is found again: by name, by serial number, by words"
lejis_gives "$done_code" search --surname hol --user jdoe --url "$search_url"
it_says '2024-001873'
lejis_gives "$done_code" search --serial NW14-88213-K --user jdoe --url "$search_url"
it_says '2024-001873'
lejis_gives "$done_code" search --text Harlow --user jdoe --url "$search_url"
it_says '24-H-00519'
lejis_gives "$done_code" search --surname nobody --user jdoe --url "$search_url"
it_says 'nothing was found'

heading "A search that is too broad is not answered"
lejis_gives "$refused" search --property-make Northwind --user jdoe --url "$search_url"
it_says 'narrowing your search'

heading "A user whom JNET does not know is told whom to ask"
lejis_gives "$refused" search --surname hol --user unknown --url "$search_url"
it_says 'JNET User ID is not known'

heading "The server breaks off in the middle of its answer; the next search succeeds"
simulator_plays '{"target": "search", "kind": "truncated"}'
lejis_gives "$try_again" search --surname hol --user jdoe --url "$search_url"
it_says 'Internal error in web service code'
lejis_gives "$done_code" search --surname hol --user jdoe --url "$search_url"

heading "A command that makes no sense is told apart from all of these"
lejis_gives "$wrong_usage" submit

say
((broken == 0)) || fail "$broken things were not as told"
say "That is the whole story, and everything was as told."
