"""What wixl has no words for, written into the tables of the package that it made."""
import re
import subprocess
import tempfile
from collections import Counter
from pathlib import Path

from installer_source import FEATURES, PATH_COMPONENT
from versions import windows_version

# The older version goes when the newer one is in place, so that it stays when the newer one fails. What both have in
# common is one component in both, which the older one leaves alone as it goes.
SEQUENCE = (("RemoveEnvironmentStrings", 3300), ("WriteEnvironmentStrings", 5200), ("InstallExecute", 6500),
            ("RemoveExistingProducts", 6550))
# Properties that are known when the folder is: where "Apps and features" leads.
SET_PROPERTY = 51
LATE_PROPERTIES = (
    ("ARPINSTALLLOCATION", "[INSTALLDIR]", ""),
    ("ARPREADME", "[INSTALLDIR]README.txt", ""),
    ("ARPHELPLINK", "file:///[INSTALLDIR]docs/index.html", "&Documentation=3"),
)
FIRST_LATE_PROPERTY = 1010  # after CostFinalize
# Set at installation, removed at uninstallation, for the machine; appended to what is there.
PATH_NAME, PATH_VALUE = "=-*PATH", "[~];[INSTALLDIR]"
# Whether a person may leave a feature out; none is only advertised.
NO_ADVERTISING, CANNOT_BE_LEFT_OUT = 8, 16

TABLES = {
    "Environment": "CREATE TABLE `Environment` (`Environment` CHAR(72) NOT NULL, `Name` CHAR(255) NOT NULL "
                   "LOCALIZABLE, `Value` CHAR(255) LOCALIZABLE, `Component_` CHAR(72) NOT NULL "
                   "PRIMARY KEY `Environment`)",
    "CustomAction": "CREATE TABLE `CustomAction` (`Action` CHAR(72) NOT NULL, `Type` SHORT NOT NULL, `Source` "
                    "CHAR(72), `Target` CHAR(255) PRIMARY KEY `Action`)",
}
SHORT_NAME = re.compile(r"[A-Za-z0-9_-]{1,8}(\.[A-Za-z0-9_-]{1,3})?")


def _msiinfo(command, package, *arguments):
    # It writes the pictures of a table into the current folder.
    with tempfile.TemporaryDirectory(prefix="msiinfo-") as folder:
        return subprocess.run(["msiinfo", command, str(Path(package).resolve()), *arguments], cwd=folder,
                              capture_output=True, text=True, check=True).stdout


def rows(package, table):
    """The rows of a table, each as a dictionary by column."""
    names, _, _, *lines = [line.split("\t") for line in _msiinfo("export", package, table).splitlines()]
    return [dict(zip(names, line)) for line in lines]


def _new_tables(package):
    present = _msiinfo("tables", package).split()
    return [creation for name, creation in TABLES.items() if name not in present]


def _environment():
    yield ("INSERT INTO `Environment` (`Environment`, `Name`, `Value`, `Component_`) "
           f"VALUES ('{PATH_COMPONENT}', '{PATH_NAME}', '{PATH_VALUE}', '{PATH_COMPONENT}')")


def _sequence():
    for name, number in SEQUENCE:
        yield f"DELETE FROM `InstallExecuteSequence` WHERE `Action` = '{name}'"
        yield f"INSERT INTO `InstallExecuteSequence` (`Action`, `Sequence`) VALUES ('{name}', {number})"


def _late_properties():
    for number, (name, value, condition) in enumerate(LATE_PROPERTIES):
        yield ("INSERT INTO `CustomAction` (`Action`, `Type`, `Source`, `Target`) "
               f"VALUES ('Set{name}', {SET_PROPERTY}, '{name}', '{value}')")
        yield ("INSERT INTO `InstallExecuteSequence` (`Action`, `Condition`, `Sequence`) "
               f"VALUES ('Set{name}', '{condition}', {FIRST_LATE_PROPERTY + number})")


def _features():
    for feature in FEATURES:
        attributes = NO_ADVERTISING if feature.can_be_left_out else NO_ADVERTISING | CANNOT_BE_LEFT_OUT
        yield f"UPDATE `Feature` SET `Attributes` = {attributes} WHERE `Feature` = '{feature.name}'"


def _file_versions(source):
    """Without these, the installer would keep an older file that has a version, and then remove it."""
    for name in source.files:
        if name.endswith((".dll", ".exe")):
            yield (f"UPDATE `File` SET `Version` = '{windows_version(source.version)}', `Language` = '1033' "
                   f"WHERE `File` = '{name}'")
            yield f"DELETE FROM `MsiFileHash` WHERE `File_` = '{name}'"


def _short(name, taken):
    """The name for disks without long ones; `taken` counts those that begin alike."""
    stem, _, end = name.partition(".")
    stem, end = (re.sub(r"[^A-Z0-9]", "", word.upper()) for word in (stem, end))
    beginning = (stem[:5], end[:3])
    taken[beginning] += 1
    return f"{stem[:5]}~{taken[beginning]}" + (f".{end[:3]}" if end else "")


def _short_names(package):
    """Windows Installer wants both names where a name is longer than eight and three characters."""
    folders = {row["Component"]: row["Directory_"] for row in rows(package, "Component")}
    named = [("File", "FileName", row["File"], row["FileName"], folders[row["Component_"]])
             for row in rows(package, "File")]
    named += [("Directory", "DefaultDir", row["Directory"], row["DefaultDir"], row["Directory_Parent"])
              for row in rows(package, "Directory") if row["Directory"] != "TARGETDIR"]
    named += [("Shortcut", "Name", row["Shortcut"], row["Name"], row["Directory_"])
              for row in rows(package, "Shortcut")]
    taken = {}
    for table, column, key, name, folder in named:
        if name != "." and "|" not in name and not SHORT_NAME.fullmatch(name):
            short = _short(name, taken.setdefault(folder, Counter()))
            yield f"UPDATE `{table}` SET `{column}` = '{short}|{name}' WHERE `{table}` = '{key}'"


def complete(package, source):
    queries = [*_new_tables(package), *_environment(), *_sequence(), *_late_properties(), *_features(),
               *_file_versions(source), *_short_names(package)]
    subprocess.run(["msibuild", str(package), *(word for query in queries for word in ("-q", query))], check=True)
