# shellcheck shell=bash
# Sourced after shell-support.sh: where the languages of the clients in tests/clients are, and whether they are there.

: "${project:?shell-support.sh comes first}"
# shellcheck disable=SC2034  # the scripts that source this use it
free_pascal=$project/build/clients/free-pascal
dotnet=$project/build/clients/dotnet

# The compiler for this machine, which compiles the ones for Windows, and their sources.
has_free_pascal() { has_command ppcx64 && compgen -G '/usr/share/fpcsrc/*/compiler/pp.pas' >/dev/null; }

# .NET for Windows in both bitnesses, with a compiler of C#.
has_dotnet() { [[ -f $dotnet/x86/dotnet.exe && -f $dotnet/x64/dotnet.exe ]]; }
