#!/bin/bash
# find-upward-includes.sh FOLDER FLOOR...
# Prints which C++ sources in FOLDER include one from a higher floor of it, or form a circle, and ends with code 1 when
# there are any. The floors are named from the ground up: each is a folder in FOLDER, or several side by side in one
# word ("checking inquiry"), which do not include each other, or a file. A file that is on no floor is printed too. Includes
# of files outside FOLDER are ignored. A header and its source count as one in circles.
set -euo pipefail
(($# > 1)) || { echo "usage: find-upward-includes.sh FOLDER FLOOR..." >&2; exit 2; }
cd "$1"
shift
code=0

# "FLOOR NAME", a line for each folder and file.
floors=$(
  for ((floor = 1; floor <= $#; floor++)); do
    for name in ${!floor}; do
      [[ -e $name ]] || { echo "find-upward-includes.sh: there is no $name" >&2; exit 2; }
      echo "$floor $name"
    done
  done
)

# "FILE:LINE:INCLUDED", for each include of a file that is here.
includes=$(
  grep -rn --include='*.cpp' --include='*.h' --include='*.inl' --include='*.idl' -oP '^\s*#\s*include\s+"\K[^"]+' . |
    sed 's|^\./||' | sort | while IFS= read -r line; do [[ ! -e ${line#*:*:} ]] || echo "$line"; done
)

# shellcheck disable=SC2016 # The dollars are awk's.
awk -F: '
  # The first part of the path, which is the file itself in FOLDER.
  function top(path) { sub("/.*", "", path); return path }
  NR == FNR { split($0, row, " "); floor[row[2]] = row[1]; next }
  $0 == "" { next }
  !(top($1) in floor) { if (!told[top($1)]++) { print top($1) " stands on no floor"; code = 1 }; next }
  !(top($3) in floor) { print $1 ":" $2 ": " $3 " stands on no floor"; code = 1; next }
  top($1) != top($3) && floor[top($3)] >= floor[top($1)] {
    print $1 ":" $2 ": " $3 " stands " (floor[top($3)] > floor[top($1)] ? "higher" : "side by side with it"); code = 1
  }
  END { exit code }
' <(echo "$floors") <(echo "$includes") || code=1

# "ONE OTHER" without their extensions, for the includes; a loop is told line by line.
pairs=$(awk -F: 'NF { sub(/\.[a-z]+$/, "", $1); sub(/\.[a-z]+$/, "", $3); if ($1 != $3) print $1, $3 }' <<<"$includes")
# tsort fails where it finds a loop; what it says is judged below.
circles=$(tsort <<<"$pairs" 2>&1 >/dev/null) || true
if [[ -n $circles ]]; then
  sed -e 's|^.*contains a loop:$|These include each other in a circle:|' -e 's|^tsort: |  |' <<<"$circles"
  code=1
fi
exit "$code"
