"""The tables of the installers, as Windows Installer reads them."""
import re
import struct
import subprocess
import unittest

from package_case import PackageCase, for_each_architecture, package

import icon
import installer_rows

BOTH_NAMES = re.compile(r"([A-Z0-9]{1,8}(?:\.[A-Z0-9]{1,3})?|[A-Z0-9]{1,6}~\d{1,2}(?:\.[A-Z0-9]{1,3})?)\|.+")
SHORT = re.compile(r"[A-Za-z0-9_-]{1,8}(\.[A-Za-z0-9_-]{1,3})?")


class TablesTest(PackageCase):
    def rows(self, architecture, table):
        return installer_rows.rows(package(architecture, ".msi"), table)

    @for_each_architecture
    def test_all_but_the_library_can_be_left_out(self, architecture):
        features = {row["Feature"]: int(row["Attributes"]) for row in self.rows(architecture, "Feature")}
        self.assertEqual(features, {"Library": 24, "Path": 8, "Documentation": 8})
        files = {row["Component_"] for row in self.rows(architecture, "File")}
        with_library = {row["Component_"] for row in self.rows(architecture, "FeatureComponents")
                        if row["Feature_"] == "Library"} & files
        self.assertEqual(with_library, {"TVLejisCore.dll", "lejis.exe", "README.txt", "LICENSE.txt",
                                        "TVLejisCore.spdx.json"})

    @for_each_architecture
    def test_the_older_version_goes_when_the_newer_one_is_in_place(self, architecture):
        order = {row["Action"]: int(row["Sequence"]) for row in self.rows(architecture, "InstallExecuteSequence")}
        actions = ("FindRelatedProducts", "InstallInitialize", "InstallFiles", "WriteEnvironmentStrings",
                   "InstallExecute", "RemoveExistingProducts", "InstallFinalize")
        self.assertEqual(sorted(actions, key=order.get), list(actions))

    @for_each_architecture
    def test_the_path_of_the_machine_is_added_to_and_restored(self, architecture):
        row, = self.rows(architecture, "Environment")
        self.assertEqual((row["Name"], row["Value"]), ("=-*PATH", "[~];[INSTALLDIR]"))

    @for_each_architecture
    def test_the_start_menu_leads_to_the_first_page(self, architecture):
        row, = self.rows(architecture, "Shortcut")
        self.assertEqual((row["Target"], row["Directory_"]), ("[#docs.index.html]", "MakerMenu"))
        self.assertIn("docs.index.html", {file["File"] for file in self.rows(architecture, "File")})

    @for_each_architecture
    def test_apps_and_features_has_help_licence_and_icon(self, architecture):
        properties = {row["Property"]: row["Value"] for row in self.rows(architecture, "Property")}
        self.assertIn("MIT licence", properties["ARPCOMMENTS"])
        icons = [row["Name"] for row in self.rows(architecture, "Icon")]
        self.assertEqual(icons, [properties["ARPPRODUCTICON"]])
        late = {row["Source"]: row["Target"] for row in self.rows(architecture, "CustomAction")}
        self.assertEqual(late["ARPHELPLINK"], "file:///[INSTALLDIR]docs/index.html")
        self.assertEqual(late["ARPREADME"], "[INSTALLDIR]README.txt")

    @for_each_architecture
    def test_every_name_has_a_short_one_that_is_its_folders_own(self, architecture):
        folders = {row["Component"]: row["Directory_"] for row in self.rows(architecture, "Component")}
        names = [(folders[row["Component_"]], row["FileName"]) for row in self.rows(architecture, "File")]
        names += [(row["Directory_Parent"], row["DefaultDir"]) for row in self.rows(architecture, "Directory")
                  if row["DefaultDir"] not in (".", "SourceDir")]
        short = [(folder, name.partition("|")[0].upper()) for folder, name in names]
        self.assertEqual(len(set(short)), len(short))
        for _, name in names:
            self.assertTrue(SHORT.fullmatch(name) or BOTH_NAMES.fullmatch(name), name)

    @for_each_architecture
    def test_the_icon_is_one_in_three_sizes(self, architecture):
        content = subprocess.run(["msiinfo", "extract", package(architecture, ".msi"), "Icon.product.ico"],
                                 capture_output=True, check=True).stdout
        self.assertEqual(content, icon.content())
        self.assertEqual(struct.unpack_from("<HHH", content), (0, 1, 3))
        entries = [struct.unpack_from("<BBBBHHII", content, 6 + 16 * number) for number in range(3)]
        self.assertEqual([(width, height, bits) for width, height, _, _, _, bits, _, _ in entries],
                         [(16, 16, 32), (32, 32, 32), (48, 48, 32)])


if __name__ == "__main__":
    unittest.main()
