"""The list of what the programs are made of."""
import hashlib
import json
import re
import subprocess
import unittest

from package_case import PackageCase, for_each_architecture, package
from test_content import content, project_version

COMPILERS = {"x86": "i686-w64-mingw32-g++-posix", "x64": "x86_64-w64-mingw32-g++-posix"}
# What each part says of itself in its headers. This GCC tells its first number alone.
RUNTIME = ("<_mingw.h>", ("__MINGW64_VERSION_MAJOR", "__MINGW64_VERSION_MINOR", "__MINGW64_VERSION_BUGFIX"))
GCC = ("<_mingw.h>", ("__GNUC__",))
JSON = ('"/usr/include/nlohmann/detail/abi_macros.hpp"',
        tuple(f"NLOHMANN_JSON_VERSION_{part}" for part in ("MAJOR", "MINOR", "PATCH")))
MACROS = {"libstdc++": GCC, "libgcc": GCC, "mingw-w64-runtime": RUNTIME, "winpthreads": RUNTIME, "nlohmann-json": JSON}


def version_in_header(architecture, header, macros):
    source = f"#include {header}\nversion {' '.join(macros)}\n"
    text = subprocess.run([COMPILERS[architecture], "-x", "c++", "-E", "-P", "-"], input=source, capture_output=True,
                          text=True, check=True).stdout
    return re.search(r"^version (.*)$", text, re.MULTILINE)[1].replace(" ", ".")


class InventoryTest(PackageCase):
    @for_each_architecture
    def test_it_lists_what_is_linked_into_the_programs_beside_it(self, architecture):
        files = content(package(architecture, ".zip"))
        document = json.loads(files["TVLejisCore.spdx.json"])
        self.assertEqual((document["spdxVersion"], document["dataLicense"]), ("SPDX-2.3", "CC0-1.0"))
        self.check_files(document, files)
        versions = {part["name"]: part["versionInfo"] for part in document["packages"]}
        self.assertEqual(versions.pop("TVLejisCore"), project_version())
        self.assertEqual(set(versions), set(MACROS))
        for name, version in versions.items():
            known = version_in_header(architecture, *MACROS[name])
            self.assertRegex(version, rf"^{re.escape(known)}\b", name)
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
