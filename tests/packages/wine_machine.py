"""The Wine prefix as a machine: programs run in it, and pictures of all that its registry and its disk hold."""
import os
import re
import subprocess
import sys
from pathlib import Path
from typing import NamedTuple

sys.path.append(str(Path(__file__).resolve().parents[1] / "support"))

import wine_version  # noqa: E402  (the path comes first)
from windows_program import RUNNER  # noqa: E402

PREFIX = Path(os.environ["WINEPREFIX"])
DISK = PREFIX / "drive_c"
HIVES = ("system.reg", "user.reg", "userdef.reg")
TIME_LIMIT = 120
# What a 64-bit program of Wine 8 registers for both bitnesses, such as the name of a class, comes below Wow6432Node,
# where no 64-bit program looks. Windows and Wine 10 keep it in one place, as Wine 8 does for 32-bit programs.
MSIEXEC = "msiexec" if wine_version.major() >= 10 else r"C:\windows\syswow64\msiexec.exe"

# What Wine keeps for itself. The installer's empty folders and keys stay after the first product that was installed.
# Wine finds its devices little by little, and gives them the time of the last start. The first use of the web leaves a
# cache and settings. The first 32-bit program that draws leaves a key for its fonts.
KEPT_BY_WINE = re.compile(
    r"""system\.reg\ \[Software\\\\Classes\\\\Installer\\\\(Features|Products|UpgradeCodes)\]$
      | system\.reg\ \[Software\\\\Microsoft\\\\Windows\\\\CurrentVersion\\\\Installer\\\\
            (UpgradeCodes|UserData\\\\S-1-5-18\\\\(Components|Products))\]$
      | system\.reg\ \[System\\\\CurrentControlSet\\\\(Control\\\\(Class|DeviceClasses)|Enum)\\\\
      | system\.reg\ \[Software\\\\Microsoft\\\\Windows\ NT\\\\CurrentVersion\\\\NetworkCards\]$
      | system\.reg\ \[Software\\\\Wow6432Node\\\\Microsoft\\\\Windows\\\\CurrentVersion\\\\Fonts\]$
      | disk\ windows/Installer$
      | disk\ users/[^/]+/(Temp|AppData/Local/Temp)(/|$)
      | disk\ users/[^/]+/AppData/Local/Microsoft/Windows/INet(Cache|Cookies)/
      | user\.reg\ .*\\Internet\ Settings\]\ "ProxyEnable"=
      | disk\ windows/temp(/|$)""", re.VERBOSE)
MACHINE_ENVIRONMENT = r"HKLM\System\CurrentControlSet\Control\Session Manager\Environment"
# Wine's installer takes a folder out of the PATH, and leaves the separator.
SEPARATORS_LEFT = re.compile(r'(Session Manager.*Environment\] "PATH"=.*?);+"$')


class Run(NamedTuple):
    code: int
    output: str


def run(*command, folder=None, seconds=TIME_LIMIT):
    process = subprocess.run([RUNNER, *map(str, command)], cwd=folder or DISK, stdin=subprocess.DEVNULL,
                             stdout=subprocess.PIPE, timeout=seconds, check=False)
    return Run(process.returncode, process.stdout.decode("utf-8", "replace").replace("\r\n", "\n"))


def windows_path(path):
    path = Path(path)
    if path.is_relative_to(DISK):
        return "C:\\" + str(path.relative_to(DISK)).replace("/", "\\")
    return "Z:" + str(path).replace("/", "\\")


def stop():
    """Ends the prefix's programs, which writes its registry to the disk."""
    for option in ("--kill", "--wait"):
        subprocess.run(["wineserver", option], stdin=subprocess.DEVNULL, timeout=TIME_LIMIT, check=False)


def remove_separators_left():
    """Removes them from the machine's PATH.

    With two of them in a row, Wine's cmd reports success for any program and starts none.
    """
    value = re.search(r"PATH +(REG\w+) +(.*)", run("reg", "query", MACHINE_ENVIRONMENT, "/v", "PATH").output)
    run("reg", "add", MACHINE_ENVIRONMENT, "/v", "PATH", "/t", value[1], "/d", value[2].strip().rstrip(";"), "/f")


def _registry(hive):
    key = ""
    for line in (PREFIX / hive).read_text(encoding="utf-8", errors="replace").splitlines():
        if line.startswith("["):
            key = re.sub(r" \d+$", "", line)
            yield f"{hive} {key}"
        elif line and not line.startswith(("#", ";", "WINE REGISTRY")):
            yield f"{hive} {key} {line}"


def picture():
    """Every key and value of the registry and every file and folder of the disk, each as one text."""
    stop()
    entries = {entry for hive in HIVES for entry in _registry(hive)}
    entries |= {f"disk {path.relative_to(DISK)}" for path in DISK.rglob("*")}
    return {SEPARATORS_LEFT.sub(r'\1"', entry) for entry in entries if not KEPT_BY_WINE.match(entry)}


CLASSES = "system.reg [Software\\\\Classes\\\\"


def class_entries(before, after):
    """What came below HKEY_CLASSES_ROOT, the installer's own bookkeeping apart."""
    return {entry[len(CLASSES):] for entry in after - before if entry.startswith(CLASSES)
            and not entry.startswith(CLASSES + "Installer")}
