"""Makes the packages of one bitness.

    package.py ARCH DESCRIPTION OUTPUT

ARCH is x86 or x64, built into build/ARCH; DESCRIPTION is what describe_type_library printed; OUTPUT is the folder that
gets TVLejisCore-VERSION-ARCH.zip, -symbols.zip and .msi.
"""
import os
import re
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

import archive
import installer
import manifests
import type_library

PROJECT = Path(__file__).resolve().parents[2]
SCRIPTS = Path(__file__).resolve().parent / "scripts"
PROGRAMS = ("TVLejisCore.dll", "lejis.exe")
INSTALLED_GUIDE = "docs/installing.md"
SCHEMAS = "docs/incident-format/*.xsd"
# The LEJIS host of the pages and schemas that are kept here.
KEPT_HOST = "lejis.example"
# Where Windows keeps its own programs of the library's bitness, as programs of the other one see it.
SYSTEM_FOLDERS = {"x86": "SysWOW64", "x64": "Sysnative"}


def cached(architecture, name):
    """What CMake has been told, or has found out."""
    cache = (PROJECT / "build" / architecture / "CMakeCache.txt").read_text(encoding="utf-8")
    return re.search(rf"^{name}:\w+=(.*)$", cache, re.MULTILINE)[1]


def full_version(architecture):
    """The version of the CMake project: major, minor, build and revision."""
    return cached(architecture, "CMAKE_PROJECT_VERSION")


def timestamp():
    """The time of the last commit, so that packages made again are the same."""
    if "SOURCE_DATE_EPOCH" in os.environ:
        return int(os.environ["SOURCE_DATE_EPOCH"])
    command = ["git", "-C", str(PROJECT), "log", "-1", "--format=%ct"]
    git = subprocess.run(command, capture_output=True, text=True, check=False)
    # A tree without its history: the earliest time that an archive can name.
    return int(git.stdout) if git.returncode == 0 and git.stdout.strip() else 315532800


def documents():
    """The files for people, by their names in the archive."""
    files = [*PROJECT.glob("LICEN[CS]E*"), PROJECT / "README.md",
             *(PROJECT / "docs").rglob("*.md"), *(PROJECT / "samples").rglob("*")]
    return {str(path.relative_to(PROJECT)): path.read_bytes() for path in files if path.is_file()
            and "__pycache__" not in path.parts}


def incident_format(host):
    """The page and the schemas of the incident files that the library reads, which has this LEJIS host."""
    files = [PROJECT / "docs" / "incident-format.md", *sorted(PROJECT.glob(SCHEMAS))]
    return {str(path.relative_to(PROJECT)): path.read_bytes().replace(KEPT_HOST.encode(), host.encode())
            for path in files}


def with_windows_lines(text):
    return text.replace("\n", "\r\n").encode()


def archive_members(library, architecture, version):
    bin_folder = PROJECT / "build" / architecture / "bin"
    members = documents() | incident_format(cached(architecture, "LEJIS_HOST"))
    members.update({name: (bin_folder / name).read_bytes() for name in PROGRAMS})
    for script in SCRIPTS.glob("*.cmd"):
        text = script.read_text(encoding="utf-8").replace("@FOLDER@", SYSTEM_FOLDERS[architecture])
        members[script.name] = with_windows_lines(text)
    folder = "registration-free"
    members[f"{folder}/{manifests.ASSEMBLY}.manifest"] = manifests.of_library(library, version, architecture).encode()
    members[f"{folder}/lejis.exe.manifest"] = manifests.of_program("lejis", version, architecture).encode()
    return members


def below(folder, members):
    return {f"{folder}/{name}": content for name, content in members.items()}


def symbol_members(architecture):
    folder = PROJECT / "build" / architecture / "symbols"
    return {f"{name}.debug": (folder / f"{name}.debug").read_bytes() for name in PROGRAMS}


def written(folder, name, content):
    path = folder / Path(name).name
    path.write_bytes(content)
    return path


def build_installer(library, architecture, version, moment, output):
    with tempfile.TemporaryDirectory(prefix="package-") as folder:
        work = Path(folder)
        sources = [*(PROJECT / "build" / architecture / "bin" / name for name in PROGRAMS), PROJECT / INSTALLED_GUIDE]
        files = [Path(shutil.copyfile(source, work / source.name)) for source in sources]
        files += [written(work, name, content) for name, content in
                  incident_format(cached(architecture, "LEJIS_HOST")).items()]
        for file in files:
            os.utime(file, (moment, moment))
        installer.build(installer.Source(library, architecture, version, files), work, output, moment)


def main(architecture, description, output):
    library = type_library.read(description)
    version = full_version(architecture)
    name = f"TVLejisCore-{installer.public_version(version)}-{architecture}"
    output, moment = Path(output).resolve(), timestamp()
    output.mkdir(parents=True, exist_ok=True)
    for old in output.glob(f"TVLejisCore-*-{architecture}*"):
        old.unlink()
    archive.write(output / f"{name}.zip", below(name, archive_members(library, architecture, version)), moment)
    archive.write(output / f"{name}-symbols.zip", below(f"{name}-symbols", symbol_members(architecture)), moment)
    build_installer(library, architecture, version, moment, output / f"{name}.msi")
    return 0


if __name__ == "__main__":
    if len(sys.argv) != 4:
        sys.exit(__doc__)
    sys.exit(main(*sys.argv[1:]))
