"""The option that names the LEJIS host, as build.sh and package.sh take it; nothing is built."""
import subprocess
import unittest
from pathlib import Path

PROJECT = Path(__file__).resolve().parents[2]
SOURCED = "set -euo pipefail; source tools/shell-support.sh"
WRONG_USAGE = 64


def shell(*command):
    return subprocess.run(command, cwd=PROJECT, text=True, stdin=subprocess.DEVNULL, capture_output=True, timeout=60,
                          check=False)


class LejisHostTest(unittest.TestCase):
    def take(self, *arguments):
        """The host, and the arguments that are left."""
        show = 'take_lejis_host "$@"; printf "%s|%s" "$lejis_host" "${arguments[*]}"'
        return shell("bash", "-c", f"{SOURCED}; {show}", "build.sh", *arguments).stdout.split("|")

    def test_it_may_stand_anywhere(self):
        for arguments in (("--lejis-host", "core.lejis.test", "x64", "lejis"),
                          ("x64", "--lejis-host=core.lejis.test", "lejis"),
                          ("x64", "lejis", "--lejis-host", "core.lejis.test")):
            with self.subTest(arguments):
                self.assertEqual(self.take(*arguments), ["core.lejis.test", "x64 lejis"])

    def test_it_may_be_left_out(self):
        self.assertEqual(self.take("x64", "lejis"), ["", "x64 lejis"])
        self.assertEqual(self.take(), ["", ""])

    def test_what_is_no_host_is_refused_before_anything_is_built(self):
        for script in ("build.sh", "package.sh"):
            for host in ("", "http://lejis.test", "lejis test", "-lejis", "lejis.test;rm", "lejis.test:8080"):
                with self.subTest(script, host=host):
                    run = shell(f"./{script}", "--lejis-host", host, "x64")
                    self.assertEqual((run.returncode, run.stdout, run.stderr),
                                     (WRONG_USAGE, "", f"{script}: '{host}' is no host name\n"))

    def test_a_host_that_is_missing(self):
        run = shell("./build.sh", "--lejis-host")
        self.assertEqual((run.returncode, run.stderr), (WRONG_USAGE, "build.sh: --lejis-host needs a host name\n"))


if __name__ == "__main__":
    unittest.main()
