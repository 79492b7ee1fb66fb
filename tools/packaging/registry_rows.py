"""The registry rows below HKEY_CLASSES_ROOT that make the classes known: the same that the DLL writes when it registers
itself. Paths are written as the installer's own placeholders.
"""
from typing import NamedTuple

LIBRARY = "[#TVLejisCore.dll]"
FOLDER = "[INSTALLDIR]"


class Row(NamedTuple):
    key: str
    name: str  # empty for a key's default value
    text: str


def class_rows(library):
    """The rows of the classes, which each bitness has separately."""
    for one in library.classes:
        key = rf"CLSID\{one.guid}"
        yield Row(key, "", one.description)
        yield Row(rf"{key}\InprocServer32", "", LIBRARY)
        yield Row(rf"{key}\InprocServer32", "ThreadingModel", "Apartment")
        yield Row(rf"{key}\ProgID", "", one.progid)
        yield Row(rf"{key}\Programmable", "", "")
        yield Row(rf"{key}\TypeLib", "", library.guid)
        yield Row(rf"{key}\Version", "", library.version)


def interface_rows(library):
    """The rows of the interfaces, which each bitness has separately."""
    for one in library.interfaces:
        key = rf"Interface\{one.guid}"
        yield Row(key, "", one.name)
        yield Row(rf"{key}\ProxyStubClsid", "", one.proxy)
        yield Row(rf"{key}\ProxyStubClsid32", "", one.proxy)
        yield Row(rf"{key}\TypeLib", "", library.guid)
        yield Row(rf"{key}\TypeLib", "Version", library.version)


def own_rows(library, architecture):
    platform = {"x86": "win32", "x64": "win64"}[architecture]
    yield from class_rows(library)
    yield from interface_rows(library)
    yield Row(rf"TypeLib\{library.guid}\{library.version}\0\{platform}", "", LIBRARY)


def shared_rows(library):
    """What both bitnesses have in one place: it must stay until the last of them goes."""
    for one in library.classes:
        yield Row(one.progid, "", one.description)
        yield Row(rf"{one.progid}\CLSID", "", one.guid)
    key = rf"TypeLib\{library.guid}\{library.version}"
    yield Row(key, "", library.description)
    yield Row(rf"{key}\FLAGS", "", library.flags)
    yield Row(rf"{key}\HELPDIR", "", FOLDER)
