"""What the linker wrote into the shipped files: what they load, and what an attacker cannot count on.

The environment names the folder of the files: LEJIS_BINARIES.
"""
import os
import struct
import unittest
from pathlib import Path

import pefile

FOLDER = Path(os.environ["LEJIS_BINARIES"])
NAMES = ("TVLejisCore.dll", "lejis.exe")

# Windows' own, each of which Windows finds by its list of known files and never beside the program.
SYSTEM_LIBRARIES = {"advapi32.dll", "kernel32.dll", "msvcrt.dll", "ole32.dll", "oleaut32.dll", "shell32.dll",
                    "user32.dll"}
# Libraries that only lejis.exe imports. Windows looks for them beside the program first, which is safe for lejis.exe:
# only an administrator writes to its folder. The library runs inside programs of any folder and imports none of them.
ONLY_FOR_PROGRAM = {"lejis.exe": {"bcrypt.dll", "version.dll", "wininet.dll", "ws2_32.dll"}}

HIGH_ENTROPY_VA = 0x0020
DYNAMIC_BASE = 0x0040
NX_COMPAT = 0x0100
RELOCS_STRIPPED = 0x0001
FOUR_GIGABYTES = 1 << 32

LARGEST_LIBRARY = 1_572_864

PROJECT = Path(__file__).resolve().parents[2]
SOURCES = (PROJECT / "Plugins" / "LEJIS" / "LEJIS Core Library", PROJECT / "tools" / "lejis")


# The status as an argument of TerminateProcess, and its greatest distance from the start of the function.
STACK_BUFFER_OVERRUN = struct.pack("<I", 0xC0000409)
LONGEST_START = 48


def is_64_bit(file):
    return file.OPTIONAL_HEADER.Magic == pefile.OPTIONAL_HEADER_MAGIC_PE_PLUS


def slots(file, prefix):
    """Where the addresses of imported functions stand whose names begin so."""
    return [function.address for entry in file.DIRECTORY_ENTRY_IMPORT for function in entry.imports
            if function.name and function.name.startswith(prefix)]


def code_of(file):
    return next(section for section in file.sections if section.Name.startswith(b".text"))


def call_targets(data):
    """Where in the code the calls in it lead to."""
    return [at + 5 + struct.unpack_from("<i", data, at + 1)[0] for at in range(len(data) - 5) if data[at] == 0xE8]


def references(file, slot):
    """How often the code names the slot: by its address (x86) or by the distance from the place (x64)."""
    code = code_of(file)
    data = code.get_data()
    start = file.OPTIONAL_HEADER.ImageBase + code.VirtualAddress
    if not is_64_bit(file):
        return data.count(struct.pack("<I", slot))
    return sum(start + at + 4 + struct.unpack_from("<i", data, at)[0] == slot for at in range(len(data) - 3))


class Binaries(unittest.TestCase):
    def each(self, check):
        for name in NAMES:
            with self.subTest(name), pefile.PE(str(FOLDER / name)) as file:
                check(file)

    def test_only_libraries_of_the_system_are_imported(self):
        for name in NAMES:
            with self.subTest(name), pefile.PE(str(FOLDER / name)) as file:
                imported = {entry.dll.decode().lower() for entry in file.DIRECTORY_ENTRY_IMPORT}
                self.assertEqual(set(), imported - SYSTEM_LIBRARIES - ONLY_FOR_PROGRAM.get(name, set()))
                self.assertFalse(hasattr(file, "DIRECTORY_ENTRY_DELAY_IMPORT"))

    def test_no_source_loads_a_library(self):
        loading = [path.name for folder in SOURCES for path in folder.rglob("*")
                   if path.suffix in (".cpp", ".h") and "LoadLibrary" in path.read_text(encoding="utf-8")]
        self.assertEqual([], loading)

    def test_no_code_of_the_toolchain_loads_a_library_either(self):
        # Two calls are harmless, because Windows looks for no file. The C library's rand_s asks for advapi32.dll, which
        # these files import. The start code of 32-bit files takes another reference to the compiler's own library when
        # the process has loaded it already.
        def check(file):
            allowed = 1 if is_64_bit(file) else 2
            self.assertLessEqual(sum(references(file, slot) for slot in slots(file, b"LoadLibrary")), allowed)
            used = slots(file, b"CoCreateInstance")
            self.assertGreater(sum(references(file, slot) for slot in used), 0, "the count misses what is used")
        self.each(check)

    def test_addresses_are_random(self):
        def check(file):
            self.assertTrue(file.OPTIONAL_HEADER.DllCharacteristics & DYNAMIC_BASE)
            self.assertFalse(file.FILE_HEADER.Characteristics & RELOCS_STRIPPED)
            self.assertTrue(file.DIRECTORY_ENTRY_BASERELOC, "without relocations the address cannot change")
        self.each(check)

    def test_64_bit_addresses_use_the_whole_space(self):
        def check(file):
            if is_64_bit(file):
                self.assertTrue(file.OPTIONAL_HEADER.DllCharacteristics & HIGH_ENTROPY_VA)
                self.assertGreater(file.OPTIONAL_HEADER.ImageBase, FOUR_GIGABYTES)
        self.each(check)

    def test_data_is_not_executed(self):
        def check(file):
            self.assertTrue(file.OPTIONAL_HEADER.DllCharacteristics & NX_COMPAT)
            for section in file.sections:
                self.assertFalse(section.IMAGE_SCN_MEM_EXECUTE and section.IMAGE_SCN_MEM_WRITE, section.Name)
        self.each(check)

    def test_the_stack_is_guarded(self):
        # The one place that ends the process with this status, and the functions that call it before they return.
        def check(file):
            data = code_of(file).get_data()
            place = data.index(STACK_BUFFER_OVERRUN)
            self.assertEqual(-1, data.find(STACK_BUFFER_OVERRUN, place + 1))
            self.assertGreater(sum(0 <= place - target <= LONGEST_START for target in call_targets(data)), 50)
        self.each(check)

    def test_loading_draws_nothing_from_the_cryptography_of_the_system(self):
        # Windows would have to load libraries for it while it loads this one.
        def check(file):
            self.assertEqual([], slots(file, b"Crypt"))
        self.each(check)

    def test_the_library_stays_small(self):
        self.assertLessEqual((FOLDER / NAMES[0]).stat().st_size, LARGEST_LIBRARY)


if __name__ == "__main__":
    unittest.main()
