"""The Windows Installer package of one bitness, built by wixl from a source that is generated here."""
import hashlib
import re
import struct
import subprocess
import time
import uuid
import xml.etree.ElementTree as ElementTree

from registry_rows import own_rows, shared_rows

# These make installed packages know each other; they never change.
UPGRADE_CODES = {"x86": "5B0C4E0E-3B0D-4C7A-9D52-0B6A4C7E8E10", "x64": "A7D9C1A5-6E36-4B0B-8E0C-6C5E7F0A2D21"}
IDENTIFIERS = uuid.UUID("e2b7c1d4-58aa-4c0f-9f63-7d1d0c9b5a34")

PROGRAM_FOLDERS = {"x86": "ProgramFilesFolder", "x64": "ProgramFiles64Folder"}
BITS = {"x86": "32-bit", "x64": "64-bit"}
# A time in the installer's summary: its type and then the time in units of 100 ns since 1601.
FILE_TIME = struct.pack("<I", 0x40)
TICKS = 10_000_000
SECONDS_FROM_1601_TO_1970 = 11_644_473_600
DOWNGRADE = "A newer TVLejisCore is installed already. Uninstall it first if you want this one."


def public_version(version):
    """Without the build, which the installer would compare in the place of the revision."""
    major, minor, _, revision = version.split(".")
    return f"{major}.{minor}.{revision}"


def _identifier(*words):
    return str(uuid.uuid5(IDENTIFIERS, "/".join(words))).upper()


def product_code(architecture, version):
    return _identifier("product", architecture, version)


def _add(parent, tag, **attributes):
    return ElementTree.SubElement(parent, tag, attributes)


def _add_rows(component, rows, key_path=False):
    for number, row in enumerate(rows):
        attributes = {"Root": "HKCR", "Key": row.key, "Type": "string", "Value": row.text}
        if row.name:
            attributes["Name"] = row.name
        if key_path and number == 0:
            attributes["KeyPath"] = "yes"
        _add(component, "RegistryValue", **attributes)


class Source:
    """The installer's source for one bitness; `files` are what goes into its folder, the DLL first. `title` is what
    people see of it, `host` the LEJIS host that the library is made for."""

    def __init__(self, library, architecture, file_version, files, title, host):
        self.type_library, self.architecture, self.files = library, architecture, files
        self.title, self.host = title, host
        self.file_version, self.version = file_version, public_version(file_version)
        self.components = []

    def document(self):
        root = ElementTree.Element("Wix", xmlns="http://schemas.microsoft.com/wix/2006/wi")
        product = _add(root, "Product", Id=product_code(self.architecture, self.version), Version=self.version,
                       Name=f"{self.title} ({BITS[self.architecture]})", Manufacturer="Talvex", Language="1033",
                       UpgradeCode=UPGRADE_CODES[self.architecture])
        _add(product, "Package", InstallerVersion="200", InstallScope="perMachine", Compressed="yes",
             Manufacturer="Talvex", Description="Talvex Core LEJIS Support",
             Comments=f"Registers the LEJIS classes for all users; made for the LEJIS host {self.host}")
        _add(product, "MajorUpgrade", DowngradeErrorMessage=DOWNGRADE)
        _add(product, "Media", Id="1", Cabinet="files.cab", EmbedCab="yes")
        _add(product, "Property", Id="ARPNOMODIFY", Value="1")
        _add(product, "Property", Id="LEJISHOST", Value=self.host)
        self._add_folders(product)
        feature = _add(product, "Feature", Id="Library", Level="1", Title="TVLejisCore")
        for component in self.components:
            _add(feature, "ComponentRef", Id=component)
        ElementTree.indent(root)
        return ElementTree.tostring(root, "unicode")

    def _add_folders(self, product):
        target = _add(product, "Directory", Id="TARGETDIR", Name="SourceDir")
        programs = _add(target, "Directory", Id=PROGRAM_FOLDERS[self.architecture])
        maker = _add(programs, "Directory", Id="MakerFolder", Name="Talvex")
        self._add_maker_folder(maker)
        folder = _add(maker, "Directory", Id="INSTALLDIR", Name="TVLejisCore")
        self._add_library(folder)
        for path in self.files[1:]:
            self._add_file(self._component(folder, path.name), path)
        self._add_shared_rows(target)

    def _component(self, folder, name, is_shared=False):
        self.components.append(name)
        words = ("component", name) if is_shared else ("component", name, self.architecture)
        attributes = {"Id": name, "Guid": _identifier(*words)}
        if self.architecture == "x64" and not is_shared:
            attributes["Win64"] = "yes"
        return _add(folder, "Component", **attributes)

    def _add_file(self, component, path):
        _add(component, "File", Id=path.name, Name=path.name, Source=path.name, KeyPath="yes")

    def _add_library(self, folder):
        component = self._component(folder, self.files[0].name)
        self._add_file(component, self.files[0])
        _add_rows(component, own_rows(self.type_library, self.architecture))

    def _add_maker_folder(self, folder):
        component = self._component(folder, "MakerFolderRemoval")
        _add(component, "CreateFolder")
        # It goes when nobody else has put anything there.
        _add(component, "RemoveFolder", Id="RemoveMakerFolder", On="uninstall")

    def _add_shared_rows(self, folder):
        # The same component in the packages of both bitnesses: the system counts who has installed it, and takes its
        # rows out with the last one. Hence it is a 32-bit component in both.
        component = self._component(folder, "SharedRegistration", is_shared=True)
        _add_rows(component, shared_rows(self.type_library), key_path=True)


def _run_msibuild(package, *arguments):
    subprocess.run(["msibuild", str(package), *arguments], check=True)


def _state_file_versions(source, package):
    """Without these, the installer would keep an older file that has a version, and then remove it."""
    for file in source.files:
        if file.suffix in (".dll", ".exe"):
            _run_msibuild(package, "-q", f"UPDATE `File` SET `Version` = '{source.file_version}', `Language` = '1033' "
                                         f"WHERE `File` = '{file.name}'",
                           f"DELETE FROM `MsiFileHash` WHERE `File_` = '{file.name}'")


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
    started = time.time()
    path = work_folder / f"{output.stem}.wxs"
    path.write_text(source.document(), encoding="utf-8")
    command = ["wixl", "--arch", source.architecture, "--output", str(output), path.name]
    wixl = subprocess.run(command, cwd=work_folder, capture_output=True, text=True, check=False)
    # It succeeds after warnings too, with a package that lacks what it warns of.
    if wixl.returncode or wixl.stderr:
        raise RuntimeError(f"wixl failed: {wixl.stderr}")
    digest = hashlib.sha256(path.read_bytes())
    for file in source.files:
        digest.update(file.read_bytes())
    # Two packages of different content must differ in this code, equal ones need not.
    code = "{" + _identifier("package", digest.hexdigest()) + "}"
    name = f"{source.title} {source.version} ({BITS[source.architecture]})"
    template = {"x86": "Intel;1033", "x64": "x64;1033"}[source.architecture]
    _state_file_versions(source, output)
    _run_msibuild(output, "-s", name, "Talvex", template, code)
    _date_back(output, started, moment)
