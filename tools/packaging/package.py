"""Makes the packages of one bitness.

    package.py ARCH DESCRIPTION OUTPUT

ARCH is x86 or x64, built into build/ARCH; DESCRIPTION is what describe_type_library printed; OUTPUT is the folder that
gets TVLejisCore-VERSION-ARCH.zip, -symbols.zip and .msi; made for another LEJIS host than the usual one, they are named
TVLejisCore-VERSION-HOST-ARCH.
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
# What the guide says in the sources, and which host's name it gets in the packages of another.
DEFAULT_LEJIS_HOST = "lejis.example"
MADE_FOR = "made for the LEJIS host `{}`"
# Where Windows keeps its own programs of the library's bitness, as programs of the other one see it.
SYSTEM_FOLDERS = {"x86": "SysWOW64", "x64": "Sysnative"}


def cached(architecture, name):
    """A value of the CMake project as it was configured."""
    cache = (PROJECT / "build" / architecture / "CMakeCache.txt").read_text(encoding="utf-8")
    return re.search(rf"^{name}:\w+=(.*)$", cache, re.MULTILINE)[1]


def full_version(architecture):
    """Major, minor, build and revision."""
    return cached(architecture, "CMAKE_PROJECT_VERSION")


def lejis_host(architecture):
    """The host of the LEJIS that the library is made for."""
    return cached(architecture, "LEJIS_HOST")


def package_name(version, host, architecture):
    """Without the end that tells the kind of package."""
    words = ["TVLejisCore", installer.public_version(version), architecture]
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


def installed_guide(host):
    """The guide, naming the host."""
    text = (PROJECT / INSTALLED_GUIDE).read_text(encoding="utf-8")
    sentence = MADE_FOR.format(DEFAULT_LEJIS_HOST)
    if text.count(sentence) != 1:
        raise RuntimeError(f"{INSTALLED_GUIDE} does not say once what it is {sentence}")
    return text.replace(sentence, MADE_FOR.format(host)).encode()


def documents(host):
    """The files for people, by their names in the archive."""
    files = [*PROJECT.glob("LICEN[CS]E*"), PROJECT / "README.md",
             *(PROJECT / "docs").rglob("*.md"), *(PROJECT / "samples").rglob("*")]
    found = {str(path.relative_to(PROJECT)): path.read_bytes() for path in files if path.is_file()
             and "__pycache__" not in path.parts}
    return {**found, INSTALLED_GUIDE: installed_guide(host)}


def incident_format(host):
    """The page and the schemas of the incident files that the library reads, which has this LEJIS host."""
    files = [PROJECT / "docs" / "incident-format.md", *sorted(PROJECT.glob(SCHEMAS))]
    return {str(path.relative_to(PROJECT)): path.read_bytes().replace(DEFAULT_LEJIS_HOST.encode(), host.encode())
            for path in files}


def with_windows_lines(text):
    return text.replace("\n", "\r\n").encode()


def archive_members(library, architecture, version, host):
    bin_folder = PROJECT / "build" / architecture / "bin"
    members = documents(host) | incident_format(host)
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


def build_installer(library, architecture, version, host, moment, output):
    with tempfile.TemporaryDirectory(prefix="package-") as folder:
        work = Path(folder)
        programs = [PROJECT / "build" / architecture / "bin" / name for name in PROGRAMS]
        files = [Path(shutil.copyfile(program, work / program.name)) for program in programs]
        pages = {INSTALLED_GUIDE: installed_guide(host)} | incident_format(host)
        files += [written(work, name, content) for name, content in pages.items()]
        for file in files:
            os.utime(file, (moment, moment))
        title = "TVLejisCore" if host == DEFAULT_LEJIS_HOST else f"TVLejisCore for {host}"
        installer.build(installer.Source(library, architecture, version, files, title, host), work, output, moment)


def main(architecture, description, output):
    library = type_library.read(description)
    version, host = full_version(architecture), lejis_host(architecture)
    name = package_name(version, host, architecture)
    output, moment = Path(output).resolve(), timestamp()
    output.mkdir(parents=True, exist_ok=True)
    for old in output.glob(f"TVLejisCore-*-{architecture}*"):
        old.unlink()
    archive.write(output / f"{name}.zip", below(name, archive_members(library, architecture, version, host)),
                  moment)
    archive.write(output / f"{name}-symbols.zip", below(f"{name}-symbols", symbol_members(architecture)), moment)
    build_installer(library, architecture, version, host, moment, output / f"{name}.msi")
    return 0


if __name__ == "__main__":
    if len(sys.argv) != 4:
        sys.exit(__doc__)
    sys.exit(main(*sys.argv[1:]))
