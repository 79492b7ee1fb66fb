"""Makes the packages of one bitness.

    package.py [--sign CERT KEY [--timestamp URL]] ARCH DESCRIPTION OUTPUT

ARCH is x86 or x64, built into build/ARCH; DESCRIPTION is what describe_type_library printed; OUTPUT is the folder that
gets TVLejisCore-VERSION-ARCH.zip, -symbols.zip and .msi; made for another LEJIS host than the usual one, they are named
TVLejisCore-VERSION-HOST-ARCH. With --sign, DLL, program and installer are signed.
"""
import argparse
import os
import re
import subprocess
import sys
import tempfile
from pathlib import Path

import archive
import documents
import installer
import inventory
import manifests
import type_library
from installer_source import Source
from lejis_host import DEFAULT_LEJIS_HOST
from signing import Signer
from versions import windows_version

PROJECT = Path(__file__).resolve().parents[2]
SCRIPTS = Path(__file__).resolve().parent / "scripts"
PROGRAMS = ("TVLejisCore.dll", "lejis.exe")
# Where Windows keeps its own programs of the library's bitness, as programs of the other one see it.
SYSTEM_FOLDERS = {"x86": "SysWOW64", "x64": "Sysnative"}


def cached(architecture, name):
    """A value of the CMake project as it was configured."""
    cache = (PROJECT / "build" / architecture / "CMakeCache.txt").read_text(encoding="utf-8")
    return re.search(rf"^{name}:\w+=(.*)$", cache, re.MULTILINE)[1]


def project_version(architecture):
    """Major, minor and revision."""
    return cached(architecture, "CMAKE_PROJECT_VERSION")


def lejis_host(architecture):
    """The host of the LEJIS that the library is made for."""
    return cached(architecture, "LEJIS_HOST")


def package_name(version, host, architecture):
    """The name without the end that tells the kind of package."""
    words = ["TVLejisCore", version, architecture]
    if host != DEFAULT_LEJIS_HOST:
        words.insert(2, host)
    return "-".join(words)


def timestamp():
    """The time of the last commit, so that packages made again are the same."""
    if "SOURCE_DATE_EPOCH" in os.environ:
        return int(os.environ["SOURCE_DATE_EPOCH"])
    command = ["git", "-C", str(PROJECT), "log", "-1", "--format=%ct"]
    git = subprocess.run(command, capture_output=True, text=True, check=False)
    # A tree without its history: the earliest time that an archive can name.
    return int(git.stdout) if git.returncode == 0 and git.stdout.strip() else 315532800


def programs_of(architecture, signer=None):
    """The content of the shipped programs by their names."""
    folder = PROJECT / "build" / architecture / "bin"
    with tempfile.TemporaryDirectory(prefix="programs-") as work:
        for name in PROGRAMS:
            path = Path(work, name)
            path.write_bytes((folder / name).read_bytes())
            if signer:
                signer.sign(path)
        return {name: Path(work, name).read_bytes() for name in PROGRAMS}


def common_files(architecture, version, host, moment, programs):
    """What zip and installer have in common."""
    return {**programs, **documents.first_words(architecture, version, host), **documents.for_people(version, host),
            **documents.for_programmers(architecture),
            inventory.NAME: inventory.document(architecture, version, programs, moment)}


def only_in_archive(library, architecture, version):
    members = {}
    for script in SCRIPTS.glob("*.cmd"):
        text = script.read_text(encoding="utf-8").replace("@FOLDER@", SYSTEM_FOLDERS[architecture])
        members[script.name] = documents.with_windows_lines(text)
    folder, number = "registration-free", windows_version(version)
    members[f"{folder}/{manifests.ASSEMBLY}.manifest"] = manifests.of_library(library, number, architecture).encode()
    members[f"{folder}/lejis.exe.manifest"] = manifests.of_program("lejis", number, architecture).encode()
    return members


def below(folder, members):
    return {f"{folder}/{name}": content for name, content in members.items()}


def symbol_members(architecture):
    folder = PROJECT / "build" / architecture / "symbols"
    return {f"{name}.debug": (folder / f"{name}.debug").read_bytes() for name in PROGRAMS}


def build_installer(library, architecture, version, host, files, moment, output):
    with tempfile.TemporaryDirectory(prefix="package-") as folder:
        work = Path(folder)
        for name, content in files.items():
            path = work / name
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_bytes(content)
            os.utime(path, (moment, moment))
        title = "TVLejisCore" if host == DEFAULT_LEJIS_HOST else f"TVLejisCore for {host}"
        installer.build(Source(library, architecture, version, files, title, host), work, output, moment)


def main(architecture, description, output, signer=None):
    library = type_library.read(description)
    version, host = project_version(architecture), lejis_host(architecture)
    name = package_name(version, host, architecture)
    output, moment = Path(output).resolve(), timestamp()
    output.mkdir(parents=True, exist_ok=True)
    for old in output.glob(f"TVLejisCore-*-{architecture}*"):
        old.unlink()
    files = common_files(architecture, version, host, moment, programs_of(architecture, signer))
    members = {**files, **only_in_archive(library, architecture, version)}
    archive.write(output / f"{name}.zip", below(name, members), moment)
    archive.write(output / f"{name}-symbols.zip", below(f"{name}-symbols", symbol_members(architecture)), moment)
    build_installer(library, architecture, version, host, files, moment, output / f"{name}.msi")
    if signer:
        signer.sign(output / f"{name}.msi")


def arguments():
    parser = argparse.ArgumentParser(usage=__doc__)
    parser.add_argument("--sign", nargs=2, type=Path)
    parser.add_argument("--timestamp")
    for name in ("architecture", "description", "output"):
        parser.add_argument(name)
    return parser.parse_args()


if __name__ == "__main__":
    given = arguments()
    main(given.architecture, given.description, given.output,
         Signer(*given.sign, given.timestamp) if given.sign else None)
    sys.exit(0)
