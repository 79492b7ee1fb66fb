"""The same sources give the same bytes, in any folder and at any time.

A whole second build takes minutes. Here the shipped files are searched for what made builds differ, and a small program
with the library's own rules, resources and type library is built in two folders.
"""
import os
import shutil
import subprocess
import tempfile
import time
import unittest
from pathlib import Path

import pefile

FOLDER = Path(os.environ["LEJIS_BINARIES"])
BUILD = FOLDER.parent
ARCHITECTURE = BUILD.name
PROJECT = Path(__file__).resolve().parents[2]
CORE = PROJECT / "Plugins" / "LEJIS" / "LEJIS Core Library"
NAMES = ("TVLejisCore.dll", "lejis.exe")
TIME_LIMIT = 240

SMALL_PROJECT = """cmake_minimum_required(VERSION 3.25)
project(Small VERSION 1.2.3 LANGUAGES C CXX RC)
list(APPEND CMAKE_MODULE_PATH "${CMAKE_CURRENT_SOURCE_DIR}/cmake")
include(CompilerSettings)
include(Version)
include(DebugSymbols)
include(PlatformHeaders)
include(TypeLibrary)
add_type_library(interfaces TVLejisCore.idl)
get_target_property(TYPE_LIBRARY interfaces TYPE_LIBRARY)
set(LEJIS_HOST small.test)
configure_file(TVLejisCore.rc.in small.rc @ONLY)
add_executable(small DescribeTypeLibrary.cpp ${CMAKE_CURRENT_BINARY_DIR}/small.rc)
add_dependencies(small interfaces_files)
target_link_libraries(small PRIVATE project_version ole32 oleaut32)
target_link_options(small PRIVATE -municode)
keep_symbols_apart(small)
"""


class ShippedFilesTest(unittest.TestCase):
    def test_they_hold_no_time_of_making(self):
        for path in (*(FOLDER / name for name in NAMES), *(BUILD / "symbols" / f"{name}.debug" for name in NAMES)):
            with self.subTest(path.name), pefile.PE(str(path), fast_load=True) as file:
                self.assertEqual(file.FILE_HEADER.TimeDateStamp, 0)
        library = (BUILD / "core" / "type_library" / "TVLejisCore.tlb").read_bytes()
        self.assertIn(b"at Thu Jan  1 00:00:00 1970", library)

    def test_they_hold_no_folder_of_the_project(self):
        for path in (*(FOLDER / name for name in NAMES), *(BUILD / "symbols" / f"{name}.debug" for name in NAMES)):
            with self.subTest(path.name):
                self.assertNotIn(str(PROJECT).encode(), path.read_bytes())


class TwoFoldersTest(unittest.TestCase):
    def build(self, name):
        """The files of the small program, by their names."""
        folder = Path(tempfile.mkdtemp(prefix=name))
        self.addCleanup(shutil.rmtree, folder)
        shutil.copytree(CORE, folder, dirs_exist_ok=True, ignore=lambda _, names: [
            name for name in names if Path(name).suffix in (".cpp", ".h", ".tsv", ".txt")])
        shutil.copytree(PROJECT / "cmake", folder / "cmake", ignore=shutil.ignore_patterns("__pycache__"))
        shutil.copy(PROJECT / "tools" / "packaging" / "DescribeTypeLibrary.cpp", folder)
        (folder / "CMakeLists.txt").write_text(SMALL_PROJECT, encoding="utf-8")
        toolchain = folder / "cmake" / f"mingw-w64-{ARCHITECTURE}.cmake"
        for command in (["cmake", "-S", folder, "-B", folder / "build", "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Release",
                         f"-DCMAKE_TOOLCHAIN_FILE={toolchain}"], ["cmake", "--build", folder / "build"]):
            run = subprocess.run(command, capture_output=True, text=True, timeout=TIME_LIMIT, check=False)
            self.assertEqual(run.returncode, 0, run.stdout + run.stderr)
        files = ("small.exe", "symbols/small.exe.debug", "type_library/TVLejisCore.tlb")
        return {name: (folder / "build" / name).read_bytes() for name in files}

    def test_they_give_the_same_program_symbols_and_type_library(self):
        one = self.build("one-")
        # The times in the files count seconds.
        time.sleep(1.1)
        another = self.build("another-folder-")
        for name, content in one.items():
            self.assertTrue(content == another[name], f"{name} is not the same")


if __name__ == "__main__":
    unittest.main()
