"""The installer's source for wixl, generated for one bitness."""
import re
import uuid
import xml.etree.ElementTree as ElementTree
from pathlib import PurePosixPath
from typing import NamedTuple

from product import DESCRIPTION, MAKER
from registry_rows import own_rows, shared_rows

# These make installed packages know each other; they never change.
UPGRADE_CODES = {"x86": "5B0C4E0E-3B0D-4C7A-9D52-0B6A4C7E8E10", "x64": "A7D9C1A5-6E36-4B0B-8E0C-6C5E7F0A2D21"}
IDENTIFIERS = uuid.UUID("e2b7c1d4-58aa-4c0f-9f63-7d1d0c9b5a34")

PROGRAM_FOLDERS = {"x86": "ProgramFilesFolder", "x64": "ProgramFiles64Folder"}
BITS = {"x86": "32-bit", "x64": "64-bit"}
LIBRARY = "TVLejisCore.dll"
ICON = "product.ico"
START_PAGE = "docs.index.html"
PATH_COMPONENT = "CommandLinePath"
DOWNGRADE = "A newer TVLejisCore is installed already. Uninstall it first if you want this one."


class Feature(NamedTuple):
    name: str
    title: str
    description: str
    can_be_left_out: bool


FEATURES = (
    Feature("Library", "TVLejisCore", "The library, registered for all users, and lejis.exe.", False),
    Feature("Path", "lejis on the PATH", "Lets every command prompt find lejis.exe.", True),
    Feature("Documentation", "Documentation and samples", "Pages, samples, type library, IDL and C++ header.", True),
)


def identifier(*words):
    return str(uuid.uuid5(IDENTIFIERS, "/".join(words))).upper()


def product_code(architecture, version):
    return identifier("product", architecture, version)


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


def _row_name(path):
    """The name of a file in the installer's tables, which has neither slashes nor blanks."""
    return re.sub(r"[^A-Za-z0-9_.]", "_", path.replace("/", "."))


def _feature_of(path):
    return "Documentation" if "/" in path or path.endswith(".html") else "Library"


class Source:
    """The installer's source for one bitness; `files` are the contents of its folder by their paths in it. `title` is
    what people see of it, `host` the LEJIS host that the library is made for."""

    def __init__(self, library, architecture, version, files, title, host):
        self.type_library, self.architecture, self.files = library, architecture, files
        self.title, self.host, self.version = title, host, version
        self.components = {feature.name: [] for feature in FEATURES}
        self.folders = {}

    def document(self):
        root = ElementTree.Element("Wix", xmlns="http://schemas.microsoft.com/wix/2006/wi")
        product = _add(root, "Product", Id=product_code(self.architecture, self.version), Version=self.version,
                       Name=f"{self.title} ({BITS[self.architecture]})", Manufacturer=MAKER, Language="1033",
                       UpgradeCode=UPGRADE_CODES[self.architecture])
        _add(product, "Package", InstallerVersion="200", InstallScope="perMachine", Compressed="yes",
             Manufacturer=MAKER, Description=DESCRIPTION,
             Comments=f"Registers the LEJIS classes for all users; made for the LEJIS host {self.host}")
        _add(product, "MajorUpgrade", DowngradeErrorMessage=DOWNGRADE)
        _add(product, "Media", Id="1", Cabinet="files.cab", EmbedCab="yes")
        _add(product, "Icon", Id=ICON, SourceFile=ICON)
        for name, value in (("ARPNOMODIFY", "1"), ("ARPPRODUCTICON", ICON), ("LEJISHOST", self.host),
                            ("ARPCOMMENTS", f"Made for the LEJIS host {self.host}. MIT licence: see LICENSE.txt.")):
            _add(product, "Property", Id=name, Value=value)
        self._add_folders(product)
        self._add_features(product)
        ElementTree.indent(root)
        return ElementTree.tostring(root, "unicode")

    def _add_features(self, product):
        for feature in FEATURES:
            # Whether it can be left out is written by installer_rows.
            element = _add(product, "Feature", Id=feature.name, Level="1", Title=feature.title,
                           Description=feature.description)
            for component in self.components[feature.name]:
                _add(element, "ComponentRef", Id=component)

    def _add_folders(self, product):
        target = _add(product, "Directory", Id="TARGETDIR", Name="SourceDir")
        programs = _add(target, "Directory", Id=PROGRAM_FOLDERS[self.architecture])
        maker = _add(programs, "Directory", Id="MakerFolder", Name=MAKER)
        self._add_maker_folder(maker, "MakerFolderRemoval", "Library")
        self.folders[PurePosixPath(".")] = folder = _add(maker, "Directory", Id="INSTALLDIR", Name="TVLejisCore")
        for path in sorted(self.files):
            self._add_file(path)
        # Its folder is the mark that it is there; the row of the PATH comes by installer_rows.
        _add(self._component(folder, PATH_COMPONENT, "Path"), "CreateFolder")
        self._add_start_menu(target)
        self._add_shared_rows(target)

    def _component(self, folder, name, feature, is_shared=False):
        self.components[feature].append(name)
        words = ("component", name) if is_shared else ("component", name, self.architecture)
        attributes = {"Id": name, "Guid": identifier(*words)}
        if self.architecture == "x64" and not is_shared:
            attributes["Win64"] = "yes"
        return _add(folder, "Component", **attributes)

    def _folder(self, path):
        if path not in self.folders:
            self.folders[path] = _add(self._folder(path.parent), "Directory", Id=_row_name(str(path)), Name=path.name)
        return self.folders[path]

    def _add_file(self, path):
        row = _row_name(path)
        place = PurePosixPath(path)
        component = self._component(self._folder(place.parent), row, _feature_of(path))
        _add(component, "File", Id=row, Name=place.name, Source=path, KeyPath="yes")
        if path == LIBRARY:
            _add_rows(component, own_rows(self.type_library, self.architecture))

    def _add_maker_folder(self, folder, name, feature):
        component = self._component(folder, name, feature)
        _add(component, "CreateFolder")
        # It goes when nobody else has put anything there.
        _add(component, "RemoveFolder", Id=f"Remove{name}", On="uninstall")

    def _add_start_menu(self, target):
        menu = _add(target, "Directory", Id="ProgramMenuFolder", Name="Programs")
        folder = _add(menu, "Directory", Id="MakerMenu", Name=MAKER)
        component = self._component(folder, "StartMenu", "Documentation")
        _add(component, "Shortcut", Id="DocumentationShortcut", Directory="MakerMenu",
             Name=f"{self.title} documentation ({BITS[self.architecture]})", Target=f"[#{START_PAGE}]", Icon=ICON,
             Description="Guides, reference and samples of the LEJIS library")
        _add(component, "RemoveFolder", Id="RemoveMakerMenu", On="uninstall")
        # A shortcut is no mark that the installer could find again.
        _add(component, "RegistryValue", Root="HKLM", Key=r"Software\Talvex\TVLejisCore", Name="Documentation",
             Type="string", Value=self.version, KeyPath="yes")

    def _add_shared_rows(self, folder):
        # The same component in the packages of both bitnesses: the system counts who has installed it, and takes its
        # rows out with the last one. Hence it is a 32-bit component in both.
        component = self._component(folder, "SharedRegistration", "Library", is_shared=True)
        _add_rows(component, shared_rows(self.type_library), key_path=True)
