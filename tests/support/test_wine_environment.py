"""Which Wine the scripts use, and what they do when it does not start at once. The Wines are stand-ins."""
import os
import subprocess
import tempfile
import unittest
from pathlib import Path

PROJECT = Path(__file__).resolve().parents[2]
SOURCED = "set -euo pipefail; source tools/shell-support.sh; source tools/wine-environment.sh"
DLLS_32 = "i386-windows/regsvr32.exe"

# Says who it is, and keeps a list of what it was asked to do. `wineboot` fails as often as the file "refusals" has
# lines.
STAND_IN = """#!/bin/bash
here={folder}
[[ $1 != --version ]] || {{ echo "wine-77.1 (stand-in)"; exit; }}
echo "{name} $*" >>"$here/calls"
[[ $1 != wineboot ]] || {{
  if [[ -s $here/refusals ]]; then sed -i 1d "$here/refusals"; echo "no kernel32.dll"; exit 1; fi
  echo made >"$WINEPREFIX/system.reg"
  mkdir -p "$WINEPREFIX"/drive_c/windows/system32
  echo program >"$WINEPREFIX"/drive_c/windows/system32/ole32.dll
  echo settings >"$WINEPREFIX"/drive_c/windows/win.ini
}}
echo "{name}"
"""


class WineCase(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="wine-")
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def put(self, *paths):
        """Programs, and 32-bit DLLs; returns the first."""
        for path in paths:
            place = self.folder / path
            place.parent.mkdir(parents=True, exist_ok=True)
            place.write_text(STAND_IN.format(folder=self.folder, name=path))
            place.chmod(0o755)
        return self.folder / paths[0]

    def shell(self, command, wine=None, path=None):
        """Runs the command with the scripts' environment; WINE names this Wine, or `path` comes first on PATH."""
        environment = {key: value for key, value in os.environ.items() if not key.startswith("WINE")}
        own = str(PROJECT / "tools" / "wine")
        places = [place for place in environment["PATH"].split(":") if place != own]
        environment["PATH"] = ":".join([*([str(path)] if path else []), *places])
        if wine:
            environment["WINE"] = str(wine)
        return subprocess.run(["bash", "-c", f"{SOURCED}; {command}"], cwd=PROJECT, env=environment, text=True,
                              stdin=subprocess.DEVNULL, capture_output=True, timeout=60, check=False)

    def expect(self, command, **options):
        run = self.shell(command, **options)
        self.assertEqual(run.returncode, 0, run)
        return run.stdout.splitlines()


class ChoiceTest(WineCase):
    def test_the_named_wine_runs_and_not_that_on_the_path(self):
        wine = self.put("new/bin/wine", "new/bin/wineserver", "old/wine", "old/wineserver")
        self.assertEqual(self.expect("wine; wineserver", wine=wine, path=self.folder / "old"),
                         ["new/bin/wine", "new/bin/wineserver"])
        self.assertEqual(self.expect("wine; wineserver", path=self.folder / "old"), ["old/wine", "old/wineserver"])

    def test_programs_that_the_scripts_start_get_the_same_wine(self):
        wine = self.put("bin/wine", "bin/wineserver")
        for command in ('run bash -c "wine"', "bash -c 'source tools/shell-support.sh; "
                        "source tools/wine-environment.sh; wine'"):
            self.assertEqual(self.expect(command, wine=wine), ["bin/wine"])

    def test_a_64_bit_loader_of_its_own_runs_the_programs(self):
        for loader in ("a/bin/wine64", "b/lib/wine/wine64"):
            wine = self.put(f"{loader[0]}/bin/wine", f"{loader[0]}/bin/wineserver", loader)
            self.assertEqual(self.expect("wine", wine=wine), [loader])
            self.assertEqual(self.expect("wine", path=wine.parent), [loader])

    def test_a_link_to_a_wine_is_that_wine(self):
        target = self.put("opt/bin/wine", "opt/bin/wineserver", "opt/bin/wine64")
        link = self.folder / "link"
        link.symlink_to(target)
        self.assertEqual(self.expect("wine; wineserver", wine=link), ["opt/bin/wine64", "opt/bin/wineserver"])

    def test_each_wine_that_is_named_has_a_prefix_of_its_own(self):
        wine = self.put("bin/wine", "bin/wineserver")
        self.assertEqual(self.expect('echo "$WINEPREFIX"', wine=wine), [f"{PROJECT}/build/wine-77.1"])
        self.assertEqual(self.expect('echo "$WINEPREFIX"'), [f"{PROJECT}/build/wine"])

    def test_a_name_of_nothing_is_told(self):
        run = self.shell("wine", wine=self.folder / "nothing")
        self.assertEqual(run.returncode, 1)
        self.assertIn(f"WINE names no program: {self.folder}/nothing", run.stderr)

    def test_the_32_bit_half_needs_its_dlls_and_a_loader(self):
        for number, (programs, expected) in enumerate((
                (["bin/wine"], "no"),
                (["bin/wine", f"lib/wine/{DLLS_32}"], "yes"),
                (["bin/wine", f"lib/i386-linux-gnu/wine/{DLLS_32}"], "yes"),
                (["bin/wine", "lib/wine/wine64", f"lib/i386-linux-gnu/wine/{DLLS_32}"], "no"),
                (["bin/wine", "lib/wine/wine64", "lib/wine/wine", f"lib/i386-linux-gnu/wine/{DLLS_32}"], "yes"))):
            wine = self.put(*(f"{number}/{program}" for program in programs))
            self.assertEqual(self.expect("if wine_runs x86; then echo yes; else echo no; fi", wine=wine), [expected])


class PrefixTest(WineCase):
    def setUp(self):
        super().setUp()
        self.wine = self.put("bin/wine", "bin/wineserver")

    def make_prefix(self, refusals=0, name="prefix"):
        (self.folder / "refusals").write_text("once\n" * refusals)
        return self.shell(f"PRISTINE_PREFIX={self.folder}/pristine WINEPREFIX={self.folder}/{name}; make_prefix",
                          wine=self.wine)

    def boots(self):
        return (self.folder / "calls").read_text().count("wineboot")

    def is_finished(self, name="prefix"):
        return (self.folder / name / "finished").exists()

    def test_it_is_made_at_the_first_try(self):
        run = self.make_prefix()
        self.assertEqual((run.returncode, self.boots(), self.is_finished()), (0, 1, True), run)

    def test_a_first_start_that_fails_is_tried_once_more(self):
        run = self.make_prefix(refusals=1)
        self.assertEqual((run.returncode, self.boots(), self.is_finished()), (0, 2, True), run)
        self.assertIn("trying once more", run.stdout)

    def test_a_second_failure_is_final_and_its_log_is_named(self):
        run = self.make_prefix(refusals=2)
        self.assertEqual((run.returncode, self.boots(), self.is_finished()), (1, 2, False), run)
        self.assertIn(f"wineboot failed, see {self.folder}/pristine.log", run.stderr)
        self.assertEqual((self.folder / "pristine.log").read_text().count("no kernel32.dll"), 2)

    def test_a_second_prefix_is_a_copy_that_boots_nothing(self):
        self.make_prefix()
        run = self.make_prefix(name="second")
        self.assertEqual((run.returncode, self.boots(), self.is_finished("second")), (0, 1, True), run)

    def test_one_of_another_wine_boots_again(self):
        self.make_prefix()
        (self.folder / "pristine" / "finished").write_text("3 64 wine-76.0\n")
        run = self.make_prefix()
        self.assertEqual((run.returncode, self.boots(), self.is_finished()), (0, 2, True), run)

    def test_prefixes_share_the_programs_and_nothing_that_wine_writes(self):
        self.make_prefix()
        pristine, prefix = self.folder / "pristine", self.folder / "prefix"
        for path, shared in (("drive_c/windows/system32/ole32.dll", True), ("drive_c/windows/win.ini", False),
                             ("system.reg", False), ("finished", False)):
            self.assertEqual((prefix / path).samefile(pristine / path), shared, path)
            self.assertEqual((prefix / path).read_text(), (pristine / path).read_text(), path)

    def test_a_copy_that_fails_leaves_the_prefix_that_was_there(self):
        self.make_prefix()
        self.put("old/cp").write_text("#!/bin/bash\nexit 1\n")
        run = self.shell(f"PATH={self.folder}/old:$PATH; PRISTINE_PREFIX={self.folder}/pristine "
                         f"WINEPREFIX={self.folder}/prefix; make_prefix", wine=self.wine)
        self.assertEqual((run.returncode, self.is_finished()), (1, True), run)
        self.assertIn("cannot be copied", run.stderr)


if __name__ == "__main__":
    unittest.main()
