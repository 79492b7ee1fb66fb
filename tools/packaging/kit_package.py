"""Makes the kit that tries the library on Windows.

    kit_package.py OUTPUT ARCH...

OUTPUT is the folder that gets TVLejisCore-VERSION-kit.zip, with the programs of these architectures as they were built.
The kit's own program is that of the first one: that of x86 runs on every Windows.
"""
import sys
from pathlib import Path

import archive
import documents
import pages
from package import PROJECT, below, project_version, timestamp

FOLDER = Path(__file__).resolve().parent / "kit"
README = FOLDER / "README.md"
SCRIPTS = PROJECT / "tests" / "client" / "scripts"
SHIPPED = ("TVLejisCore.dll", "lejis.exe")
TESTS = ("unit_tests.exe", "client_tests.exe", "end_to_end_tests.exe", "windows_tests.exe")
# The samples that the runs start, and the files that these read.
SAMPLES = ("vbscript", "jscript", "powershell", "csharp", "incidents")


def text(path):
    return documents.with_windows_lines(path.read_text(encoding="utf-8"))


def programs(architecture):
    build = PROJECT / "build" / architecture
    files = {name: (build / "bin" / name).read_bytes() for name in SHIPPED}
    files |= {name: (build / "tests" / name).read_bytes() for name in TESTS}
    # What the tests read, they look for beside themselves.
    files["OwnTimer.tlb"] = (build / "tests" / "type_library" / "OwnTimer.tlb").read_bytes()
    files["type_library.txt"] = (PROJECT / "tests" / "client" / "golden" / "type_library.txt").read_bytes()
    return below(f"bin/{architecture}", files)


def scripts():
    files = {f"scripts/{path.name}": text(path) for path in sorted(SCRIPTS.glob("*.vbs"))}
    return files | {f"scripts/windows/{path.name}": text(path) for path in sorted(FOLDER.glob("*.vbs"))}


def samples():
    return {f"samples/{path.relative_to(PROJECT / 'samples').as_posix()}": text(path) for name in SAMPLES
            for path in sorted((PROJECT / "samples" / name).iterdir()) if path.suffix != ".md"}


def runs():
    """The table of runs, with a line for each script."""
    names = sorted(path.name for path in SCRIPTS.glob("*.vbs"))
    lines = []
    for line in (FOLDER / "runs.tsv").read_text(encoding="utf-8").splitlines():
        lines += [line.replace("{script}", name) for name in names] if line.startswith("{script}") else [line]
    return documents.with_windows_lines("\n".join(lines) + "\n")


def members(version, architectures):
    files = {"kit.exe": (PROJECT / "build" / architectures[0] / "kit" / "kit.exe").read_bytes(), "runs.tsv": runs(),
             "LICENSE.txt": text(PROJECT / "LICENSE")}
    for name in ("check.cmd", "rows.tsv"):
        files[name] = text(FOLDER / name)
    page = pages.page(README.read_text(encoding="utf-8"), README.relative_to(PROJECT).as_posix(), "README.html", {},
                      version, start="README.html")
    files["README.html"] = documents.with_windows_lines(page)
    for architecture in architectures:
        files |= programs(architecture)
    return files | scripts() | samples()


def main(output, *architectures):
    version = project_version(architectures[0])
    name = f"TVLejisCore-{version}-kit"
    for old in Path(output).glob("TVLejisCore-*-kit.zip"):
        old.unlink()
    Path(output).mkdir(parents=True, exist_ok=True)
    archive.write(Path(output) / f"{name}.zip", below(name, members(version, architectures)), timestamp())


if __name__ == "__main__":
    if len(sys.argv) < 3:
        sys.exit(__doc__)
    main(*sys.argv[1:])
