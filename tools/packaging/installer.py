"""The Windows Installer package of one bitness, built by wixl and completed by rows that wixl has no words for."""
import hashlib
import re
import struct
import subprocess
import time

import icon
import installer_rows
from installer_source import BITS, ICON, identifier
from product import MAKER

# A time in the installer's summary: its type and then the time in units of 100 ns since 1601.
FILE_TIME = struct.pack("<I", 0x40)
TICKS = 10_000_000
SECONDS_FROM_1601_TO_1970 = 11_644_473_600


def _date_back(package, started, moment):
    """Puts `moment` in place of the times of making, so that a package made again is the same."""
    content = bytearray(package.read_bytes())
    places = []
    for place in (found.start() for found in re.finditer(re.escape(FILE_TIME), content)):
        (made,) = struct.unpack_from("<Q", content, place + len(FILE_TIME))
        if started - 1 <= made / TICKS - SECONDS_FROM_1601_TO_1970 <= time.time() + 1:
            places.append(place + len(FILE_TIME))
    if len(places) != 2:
        raise RuntimeError(f"the installer's times of creation and change were found {len(places)} times")
    for place in places:
        struct.pack_into("<Q", content, place, (moment + SECONDS_FROM_1601_TO_1970) * TICKS)
    package.write_bytes(content)


def build(source, work_folder, output, moment):
    """The files of the source stand in `work_folder`, by their paths."""
    started = time.time()
    (work_folder / ICON).write_bytes(icon.content())
    path = work_folder / f"{output.stem}.wxs"
    path.write_text(source.document(), encoding="utf-8")
    command = ["wixl", "--arch", source.architecture, "--output", str(output), path.name]
    wixl = subprocess.run(command, cwd=work_folder, capture_output=True, text=True, check=False)
    # It succeeds after warnings too, with a package that lacks what it warns of.
    if wixl.returncode or wixl.stderr:
        raise RuntimeError(f"wixl failed: {wixl.stderr}")
    digest = hashlib.sha256(path.read_bytes())
    for name in sorted(source.files):
        digest.update(source.files[name])
    # Two packages of different content must differ in this code, equal ones need not.
    code = "{" + identifier("package", digest.hexdigest()) + "}"
    name = f"{source.title} {source.version} ({BITS[source.architecture]})"
    template = {"x86": "Intel;1033", "x64": "x64;1033"}[source.architecture]
    installer_rows.complete(output, source)
    subprocess.run(["msibuild", str(output), "-s", name, MAKER, template, code], check=True)
    _date_back(output, started, moment)
