"""How check_with_clang.py turns GCC's commands into clang's. clang itself is not needed."""
import sys
import unittest
from pathlib import Path

PROJECT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(PROJECT / "tools"))

import check_with_clang  # noqa: E402


def entry(file, command):
    return {"file": file, "directory": "/build", "command": command}


class ClangCommandTest(unittest.TestCase):
    def clang(self, *arguments):
        command = check_with_clang.clang_command(["x86_64-w64-mingw32-g++-posix", *arguments], ["/gcc/c++"])
        self.assertEqual(command[:6], [*check_with_clang.CLANG, "-isystem", "/gcc/c++"])
        return command[6:]

    def test_warnings_definitions_and_folders_stay(self):
        kept = ["-DNAME=L\"a b\"", "-Iown", "-isystem", "made", "-Wall", "-Wconversion", "-std=c++20", "a.cpp"]
        self.assertEqual(self.clang(*kept), kept)

    def test_output_and_what_only_gcc_knows_are_left_out(self):
        self.assertEqual(self.clang("-fpch-preprocess", "-Winvalid-pch", "-fsanitize=undefined", "-Wno-restrict",
                                    "-Wno-stringop-overread", "-Werror", "-MD", "-MT", "a.obj", "-MF", "a.d", "-o",
                                    "a.obj", "-c", "a.cpp"), ["a.cpp"])

    def test_precompiled_headers_are_left_out(self):
        self.assertEqual(self.clang("-include", "cmake_pch.hxx", "a.cpp"), ["a.cpp"])


class EntriesTest(unittest.TestCase):
    def files(self, folder, *entries):
        return [found["file"] for found in check_with_clang.entries_below(Path(folder), entries, [])]

    def test_a_source_of_several_targets_is_checked_once_as_the_first_compiles_it(self):
        found = check_with_clang.entries_below(
            Path("/p/a"), [entry("/p/a/x.cpp", "g++ -DONE"), entry("/p/a/x.cpp", "g++ -DTWO")], [])
        self.assertEqual(len(found), 1)
        self.assertTrue(found[0]["command"].endswith(" -DONE"))

    def test_only_sources_below_the_folder_are_checked(self):
        self.assertEqual(self.files("/p/a", entry("/p/a/x.cpp", "g++"), entry("/p/ab/y.cpp", "g++"),
                                    entry("/p/a/cmake_pch.hxx.cxx", "g++")), ["/p/a/x.cpp"])

    def test_a_folder_without_sources_is_a_mistake(self):
        with self.assertRaises(SystemExit):
            self.files("/p/b", entry("/p/a/x.cpp", "g++"))


if __name__ == "__main__":
    unittest.main()
