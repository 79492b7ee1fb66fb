"""Makes the package of the simulator.

    simulator_package.py ARCH OUTPUT

OUTPUT is the folder that gets TVLejisCore-VERSION-simulator.zip; the version is that of the project as it was
configured for ARCH.
"""
import sys
from pathlib import Path

import archive
import documents
import pages
from package import PROJECT, below, project_version, timestamp

FOLDER = PROJECT / "tools" / "simulator"
README = FOLDER / "README.md"
START_SCRIPT = Path(__file__).resolve().parent / "simulator" / "simulator.cmd"


def members(version):
    files = {path.relative_to(FOLDER).as_posix(): path.read_bytes() for path in FOLDER.rglob("*")
             if path.is_file() and "__pycache__" not in path.parts}
    readme = pages.page(files.pop(README.name).decode(), README.relative_to(PROJECT).as_posix(), "README.html", {},
                        version, start="README.html")
    files["README.html"] = documents.with_windows_lines(readme)
    files["LICENSE.txt"] = documents.with_windows_lines((PROJECT / "LICENSE").read_text(encoding="utf-8"))
    files[START_SCRIPT.name] = documents.with_windows_lines(START_SCRIPT.read_text(encoding="utf-8"))
    return files


def main(architecture, output):
    version = project_version(architecture)
    name = f"TVLejisCore-{version}-simulator"
    for old in Path(output).glob("TVLejisCore-*-simulator.zip"):
        old.unlink()
    archive.write(Path(output) / f"{name}.zip", below(name, members(version)), timestamp())


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    main(*sys.argv[1:])
