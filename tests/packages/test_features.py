"""What the installer brings beside the library, and how it is left out."""
import json
import re
import unittest

import wine_machine as machine
from package_case import ARCHITECTURES, BITS, PackageCase, installed_folder

ARCHITECTURE = ARCHITECTURES[-1]
UNINSTALL = r"HKLM\Software\Microsoft\Windows\CurrentVersion\Uninstall"
ENVIRONMENT = r"HKLM\System\CurrentControlSet\Control\Session Manager\Environment"
PATH = re.compile(r"PATH +REG_EXPAND_SZ +(.*?);*$", re.MULTILINE)
SHORTCUT = f"Start Menu/Programs/Talvex/TVLejisCore documentation ({BITS[ARCHITECTURE]}-bit).lnk"


class FeaturesTest(PackageCase):
    def version_in_new_console(self):
        return machine.run("cmd", "/c", "lejis", "--version", "--json")

    def setUp(self):
        # Uninstalling leaves a separator in the PATH under Wine, and its cmd finds nothing in a PATH with two of them.
        path = PATH.search(self.expect("reg", "query", ENVIRONMENT, "/v", "PATH"))[1]
        self.expect("reg", "add", ENVIRONMENT, "/v", "PATH", "/t", "REG_EXPAND_SZ", "/d", path, "/f")

    @staticmethod
    def shortcuts():
        """Of all users on Windows, of this one under Wine."""
        return list(machine.DISK.rglob(SHORTCUT))

    def test_a_new_console_finds_lejis_and_the_menu_the_pages_until_they_are_uninstalled(self):
        before = machine.picture()
        path = self.install(ARCHITECTURE)
        found = self.version_in_new_console()
        self.assertEqual(found.code, 0, found)
        self.assertEqual(json.loads(found.output)["library"]["file"].lower(),
                         machine.windows_path(installed_folder(ARCHITECTURE) / "TVLejisCore.dll").lower())
        shortcut, = (path.read_bytes() for path in self.shortcuts())
        start_page = machine.windows_path(installed_folder(ARCHITECTURE) / "docs" / "index.html")
        self.assertTrue(start_page.encode() in shortcut or start_page.encode("utf-16-le") in shortcut)
        self.assertTrue((installed_folder(ARCHITECTURE) / "samples" / "vbscript" / "submit.vbs").is_file())
        listed = self.expect("reg", "query", UNINSTALL, "/s", f"/reg:{BITS[ARCHITECTURE]}")
        self.assertRegex(listed, r"HelpLink +REG_(EXPAND_)?SZ +file:///C:\\Program Files.*\\docs/index\.html")
        self.msiexec("/x", machine.windows_path(path))
        self.expect_same(before)

    def test_what_is_not_wanted_is_left_out(self):
        self.install(ARCHITECTURE, "ADDLOCAL=Library")
        self.assertNotEqual(self.version_in_new_console().code, 0)
        self.assertEqual(self.shortcuts(), [])
        self.assertEqual({file.name for file in installed_folder(ARCHITECTURE).iterdir()},
                         {"TVLejisCore.dll", "lejis.exe", "README.txt", "LICENSE.txt", "TVLejisCore.spdx.json"})
        self.check_use(installed_folder(ARCHITECTURE))
        self.assertNotIn("index.html", self.expect("reg", "query", UNINSTALL, "/s", f"/reg:{BITS[ARCHITECTURE]}"))


if __name__ == "__main__":
    unittest.main()
