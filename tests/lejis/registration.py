"""Changes to the registry and to what is registered, for the tests of a machine in disorder; they are undone."""
import os
import re
import shutil
import struct
import subprocess
import tempfile
from pathlib import Path

from lejis_case import RUNNER, TIME_LIMIT

CLASSES = r"HKLM\Software\Classes"
INTERNET = r"HKCU\Software\Microsoft\Windows\CurrentVersion\Internet Settings"
BITS = 64 if "/x64/" in os.environ["LEJIS_EXE"] else 32
OTHER_BITS = 96 - BITS
BUILT = Path(os.environ["LEJIS_EXE"]).with_name("TVLejisCore.dll")
HOST = "lejis.example"
# As long as the other, so that it fits into its place.
OTHER_HOST = "lejis.testing"
NOT_STARTED = 127

_MACHINES = {32: 0x14C, 64: 0x8664}


def _run(*command):
    return subprocess.run([RUNNER, *command], stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                          stderr=subprocess.DEVNULL, timeout=TIME_LIMIT, check=True).stdout.decode("utf-8")


def reg(*arguments):
    return _run("reg", *arguments)


def set_value(test, key, name, text, kind="REG_SZ"):
    """A value that was not there before the test."""
    test.addCleanup(reg, "delete", key, "/v", name, "/f")
    reg("add", key, "/v", name, "/t", kind, "/d", text, "/f")


def use_proxy(test, servers, exceptions=None):
    """Sets the proxy in this user's settings for the Internet."""
    test.addCleanup(reg, "add", INTERNET, "/v", "ProxyEnable", "/t", "REG_DWORD", "/d", "0", "/f")
    reg("add", INTERNET, "/v", "ProxyEnable", "/t", "REG_DWORD", "/d", "1", "/f")
    set_value(test, INTERNET, "ProxyServer", servers)
    if exceptions:
        set_value(test, INTERNET, "ProxyOverride", exceptions)


def regsvr32(*arguments):
    command = ("regsvr32.exe", "/s", *map(str, arguments))
    try:
        _run(*command)
    except subprocess.CalledProcessError as error:
        # On a busy machine Wine was seen to fail at the start, with this code, which regsvr32 does not have.
        if error.returncode != NOT_STARTED:
            raise
        _run(*command)


def windows_path(path):
    return "Z:" + str(path).replace("/", "\\")


def class_key(name):
    found = reg("query", rf"{CLASSES}\TVLejisCore.{name}\CLSID", "/ve")
    return rf"{CLASSES}\CLSID\{re.search(r'{[0-9A-Fa-f-]{36}}', found)[0]}"


def register_copy(test):
    """A copy of the library in the place of the registered one; returns its file."""
    folder = tempfile.mkdtemp(prefix="lejis-library-")
    test.addCleanup(shutil.rmtree, folder)
    copy = Path(folder, "TVLejisCore.dll")
    shutil.copy(BUILT, copy)
    test.addCleanup(regsvr32, windows_path(BUILT))
    regsvr32(windows_path(copy))
    return copy


def register_for_other_host(test):
    """A library whose every text names another LEJIS host."""
    copy = register_copy(test)
    content = copy.read_bytes()
    copy.write_bytes(content.replace(HOST.encode("utf-16-le"), OTHER_HOST.encode("utf-16-le")))
    return copy


def turn_into_other_bitness(file):
    """Changes the bitness that the file's header states, and nothing else."""
    content = bytearray(file.read_bytes())
    (header,) = struct.unpack_from("<I", content, 0x3C)
    struct.pack_into("<H", content, header + 4, _MACHINES[OTHER_BITS])
    file.write_bytes(content)
