"""The list of what the programs are made of."""
import hashlib
import json
import re
import subprocess
import unittest

from package_case import PackageCase, for_each_architecture, package
from test_content import content, project_version

# Debian's packages of what is linked in: what the list says was read from the headers.
DEBIAN_PACKAGES = {"libstdc++": "g++-mingw-w64-{}-posix", "libgcc": "gcc-mingw-w64-{}-posix-runtime",
                   "mingw-w64-runtime": "mingw-w64-{}-dev", "winpthreads": "mingw-w64-{}-dev",
                   "nlohmann-json": "nlohmann-json3-dev"}
NAMES = {"x86": "i686", "x64": "x86-64"}


def debian_version(name):
    return subprocess.run(["dpkg-query", "--show", "--showformat=${Version}", name], capture_output=True, text=True,
                          check=True).stdout


class InventoryTest(PackageCase):
    @for_each_architecture
    def test_it_lists_what_is_linked_into_the_programs_beside_it(self, architecture):
        files = content(package(architecture, ".zip"))
        document = json.loads(files["TVLejisCore.spdx.json"])
        self.assertEqual((document["spdxVersion"], document["dataLicense"]), ("SPDX-2.3", "CC0-1.0"))
        self.check_files(document, files)
        versions = {part["name"]: part["versionInfo"] for part in document["packages"]}
        self.assertEqual(versions.pop("TVLejisCore"), project_version())
        self.assertEqual(set(versions), set(DEBIAN_PACKAGES))
        for name, version in versions.items():
            installed = debian_version(DEBIAN_PACKAGES[name].format(NAMES[architecture]))
            self.assertRegex(installed, rf"^{re.escape(version)}\b", name)
        self.assertTrue(all(part["licenseDeclared"] for part in document["packages"]))
        self.check_relations(document)

    def check_files(self, document, files):
        self.assertEqual({file["fileName"] for file in document["files"]}, {"./TVLejisCore.dll", "./lejis.exe"})
        for file in document["files"]:
            for sum_ in file["checksums"]:
                known = hashlib.new(sum_["algorithm"], files[file["fileName"][2:]]).hexdigest()
                self.assertEqual(sum_["checksumValue"], known, file)

    def check_relations(self, document):
        known = {one["SPDXID"] for one in (document, *document["packages"], *document["files"])}
        self.assertEqual(len(known), 1 + len(document["packages"]) + len(document["files"]))
        for relation in document["relationships"]:
            self.assertLessEqual({relation["spdxElementId"], relation["relatedSpdxElement"]}, known)
        with_json = {relation["spdxElementId"] for relation in document["relationships"]
                     if relation["relatedSpdxElement"] == "SPDXRef-nlohmann-json"}
        self.assertEqual(with_json, {"SPDXRef-lejis.exe"})


if __name__ == "__main__":
    unittest.main()
