"""A second compiler's opinion: clang compiles the sources, and clang-tidy checks them. Nothing is built.

    check_with_clang.py BUILD_FOLDER [--tidy FOLDER]... [--compile FOLDER]...

BUILD_FOLDER is configured for x64, and its generated headers are made. Its compile_commands.json names the sources;
those below each FOLDER are checked. --tidy also runs the checks of .clang-tidy, which takes twice as long. Every
warning is an error.
"""
import argparse
import json
import os
import re
import shlex
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

GCC = "x86_64-w64-mingw32-g++-posix"
CLANG = ["clang++", "--target=x86_64-w64-mingw32", "-fsyntax-only", "-nostdinc++"]
# Options that only GCC knows. Precompiled headers are left out too, so each source has to include what it uses.
DROPPED = re.compile(r"-fpch-preprocess|-Winvalid-pch|-fsanitize.*|-Wno-(restrict|stringop-.*)|-Werror|-MD|-c")
DROPPED_WITH_VALUE = {"-o", "-MT", "-MF", "-include"}


def clang_command(gcc_command, system_folders):
    command = [*CLANG, *(part for folder in system_folders for part in ("-isystem", folder))]
    arguments = iter(gcc_command[1:])
    for argument in arguments:
        if argument in DROPPED_WITH_VALUE:
            next(arguments)
        elif not DROPPED.fullmatch(argument):
            command.append(argument)
    return command


def system_folders_of_gcc():
    """The folders of GCC's headers, without its intrinsics: clang has headers of its own for these."""
    listing = subprocess.run([GCC, "-E", "-x", "c++", "-v", os.devnull], capture_output=True, text=True,
                             check=True).stderr
    folders = listing.partition("#include <...> search starts here:")[2].partition("End of search list")[0].split()
    return [os.path.normpath(folder) for folder in folders if not re.search(r"/gcc/[^.]*/include(-fixed)?$", folder)]


def entries_below(folder, database, system_folders):
    """One entry a source: what several targets compile is checked once."""
    entries = {}
    for entry in database:
        source = Path(entry["file"])
        if source.suffix == ".cpp" and source.is_relative_to(folder) and source not in entries:
            command = clang_command(shlex.split(entry["command"]), system_folders)
            entries[source] = {**entry, "command": shlex.join(command)}
    if not entries:
        sys.exit(f"check_with_clang.py: no source below {folder} is compiled")
    return list(entries.values())


def findings_of(command, folder):
    """What a checker says, where it fails."""
    run = subprocess.run(command, cwd=folder, capture_output=True, text=True, check=False)
    return run.stdout + run.stderr if run.returncode else ""


def tidy(entry, database_folder):
    command = ["clang-tidy", "--quiet", "--warnings-as-errors=*", "-p", str(database_folder), entry["file"]]
    return findings_of(command, entry["directory"])


def compile_alone(entry, _):
    return findings_of([*shlex.split(entry["command"]), "-Werror"], entry["directory"])


def read_arguments():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("build_folder", type=Path)
    parser.add_argument("--tidy", type=Path, action="append", default=[])
    parser.add_argument("--compile", type=Path, action="append", default=[])
    return parser.parse_args()


def main():
    arguments = read_arguments()
    database = json.loads((arguments.build_folder / "compile_commands.json").read_text())
    system_folders = system_folders_of_gcc()
    work = [(check, entry) for check, folders in ((tidy, arguments.tidy), (compile_alone, arguments.compile))
            for folder in folders for entry in entries_below(folder.resolve(), database, system_folders)]
    # clang-tidy finds the command of a source in a database of clang's own.
    database_folder = (arguments.build_folder / "clang").resolve()
    database_folder.mkdir(exist_ok=True)
    (database_folder / "compile_commands.json").write_text(json.dumps([entry for _, entry in work]))
    failed = False
    with ThreadPoolExecutor(len(os.sched_getaffinity(0))) as pool:
        for findings in pool.map(lambda item: item[0](item[1], database_folder), work):
            failed |= bool(findings)
            sys.stdout.write(findings)
    sys.exit(failed)


if __name__ == "__main__":
    main()
