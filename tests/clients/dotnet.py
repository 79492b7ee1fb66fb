"""Compiles C# and runs what comes of it, with .NET for Windows (tools/clients/dotnet.sh)."""
import json
import os
import subprocess

from client_case import ARCHITECTURE, CLIENTS
from sample_case import RUNNER, windows_path

FOLDER = CLIENTS / "dotnet"
# Wine has no ICU, which .NET wants for the rest.
ENVIRONMENT = {"DOTNET_SYSTEM_GLOBALIZATION_INVARIANT": "1"}
ASSEMBLIES = ("System.Private.CoreLib", "System.Runtime", "System.Console", "System.Runtime.Extensions",
              "System.Runtime.InteropServices", "System.Threading.Thread", "mscorlib")
FRAMEWORK = {"runtimeOptions": {"framework": {"name": "Microsoft.NETCore.App", "version": "2.1.0"}}}
TIME_LIMIT = 120


def compile_program(program, sources):
    """One .dll for both bitnesses, in the C# of the compiler that every Windows has. The oldest .NET is its framework;
    newer ones run it."""
    compiler, = FOLDER.glob("x64/sdk/*/Roslyn/bincore/csc.dll")
    framework, = FOLDER.glob("x86/shared/Microsoft.NETCore.App/*")
    references = [f"-r:{windows_path(framework / assembly)}.dll" for assembly in ASSEMBLIES]
    subprocess.run(
        [RUNNER, FOLDER / "x64" / "dotnet.exe", windows_path(compiler), "-nologo", "-noconfig", "-nostdlib",
         "-langversion:5", "-warnaserror", f"-out:{windows_path(program)}", *references, *map(windows_path, sources)],
        env={**os.environ, **ENVIRONMENT}, stdin=subprocess.DEVNULL, timeout=TIME_LIMIT, check=True)
    program.with_suffix(".runtimeconfig.json").write_text(json.dumps(FRAMEWORK))


def command(program):
    return FOLDER / ARCHITECTURE / "dotnet.exe", windows_path(program)
