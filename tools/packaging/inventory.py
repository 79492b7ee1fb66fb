"""The list of what the programs are made of, as an SPDX document."""
import hashlib
import json
import re
import subprocess
import time
from pathlib import Path
from typing import NamedTuple

NAME = "TVLejisCore.spdx.json"
COMPILERS = {"x86": "i686-w64-mingw32-g++-posix", "x64": "x86_64-w64-mingw32-g++-posix"}
JSON_HEADER = Path("/usr/include/nlohmann/detail/abi_macros.hpp")
# The macros that say a version, number by number.
GCC = ("__GNUC__", "__GNUC_MINOR__", "__GNUC_PATCHLEVEL__")
RUNTIME = tuple(f"__MINGW64_VERSION_{part}" for part in ("MAJOR", "MINOR", "BUGFIX"))
JSON = tuple(f"NLOHMANN_JSON_VERSION_{part}" for part in ("MAJOR", "MINOR", "PATCH"))
GCC_LICENCE = "GPL-3.0-or-later WITH GCC-exception-3.1"
BOTH = ("TVLejisCore.dll", "lejis.exe")


class Part(NamedTuple):
    name: str
    version: str
    licence: str
    programs: tuple  # those that it is linked into
    what: str


def _version(compiler, header, macros):
    """As the compiler reads the macros."""
    source = f"#include {header}\nversion {' '.join(macros)}\n"
    text = subprocess.run([compiler, "-x", "c++", "-E", "-P", "-"], input=source, capture_output=True, text=True,
                          check=True).stdout
    return ".".join(re.search(r"^version (\d+) (\d+) (\d+)$", text, re.MULTILINE).groups())


def parts(architecture):
    """What others made. The one place where it is listed."""
    compiler = COMPILERS[architecture]
    gcc, runtime = _version(compiler, "<_mingw.h>", GCC), _version(compiler, "<_mingw.h>", RUNTIME)
    return [
        Part("libstdc++", gcc, GCC_LICENCE, BOTH, "the C++ standard library of GCC"),
        Part("libgcc", gcc, GCC_LICENCE, BOTH, "the compiler's own run-time library"),
        Part("mingw-w64-runtime", runtime, "ZPL-2.1", BOTH, "start of the program, and the C library's additions"),
        Part("winpthreads", runtime, "MIT AND BSD-3-Clause", BOTH, "threads, for the C++ standard library"),
        Part("nlohmann-json", _version(compiler, f'"{JSON_HEADER}"', JSON), "MIT", ("lejis.exe",), "JSON"),
    ]


def _identifier(name):
    return "SPDXRef-" + re.sub(r"[^A-Za-z0-9.-]", "-", name)


def _package(name, version, licence, **more):
    return {"SPDXID": _identifier(name), "name": name, "versionInfo": version, "downloadLocation": "NOASSERTION",
            "filesAnalyzed": False, "licenseConcluded": licence, "licenseDeclared": licence,
            "copyrightText": "NOASSERTION", **more}


def _file(name, content):
    return {"SPDXID": _identifier(name), "fileName": f"./{name}", "fileTypes": ["BINARY"],
            "checksums": [{"algorithm": algorithm, "checksumValue": hashlib.new(algorithm, content).hexdigest()}
                          for algorithm in ("SHA1", "SHA256")],
            "licenseConcluded": "MIT", "copyrightText": "NOASSERTION"}


def _relation(one, kind, other):
    return {"spdxElementId": one, "relationshipType": kind, "relatedSpdxElement": other}


def document(architecture, version, programs, moment):
    """`programs`: their content by their names."""
    name = f"TVLejisCore-{version}-{architecture}"
    digest = hashlib.sha256(b"".join(programs[one] for one in BOTH)).hexdigest()
    others = parts(architecture)
    product = _identifier("TVLejisCore")
    relations = [_relation("SPDXRef-DOCUMENT", "DESCRIBES", product)]
    relations += [_relation(product, "CONTAINS", _identifier(program)) for program in BOTH]
    relations += [_relation(_identifier(program), "STATIC_LINK", _identifier(part.name))
                  for part in others for program in part.programs]
    content = {
        "spdxVersion": "SPDX-2.3", "dataLicense": "CC0-1.0", "SPDXID": "SPDXRef-DOCUMENT", "name": name,
        "documentNamespace": f"urn:talvex:spdx:{name}-{digest}",
        "creationInfo": {"created": time.strftime("%Y-%m-%dT%H:%M:%SZ", time.gmtime(moment)),
                         "creators": ["Organization: Talvex"]},
        "packages": [_package("TVLejisCore", version, "MIT", supplier="Organization: Talvex"),
                     *(_package(part.name, part.version, part.licence, summary=part.what) for part in others)],
        "files": [_file(program, programs[program]) for program in BOTH],
        "relationships": relations}
    return (json.dumps(content, indent=2) + "\n").replace("\n", "\r\n").encode()
