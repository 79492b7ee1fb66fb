"""The list of what the programs are made of, as an SPDX document."""
import hashlib
import json
import re
import subprocess
import time
from typing import NamedTuple

NAME = "TVLejisCore.spdx.json"
# The names of the processors in the names of Debian's packages.
PROCESSORS = {"x86": "i686", "x64": "x86-64"}
GCC_LICENCE = "GPL-3.0-or-later WITH GCC-exception-3.1"
BOTH = ("TVLejisCore.dll", "lejis.exe")


class Part(NamedTuple):
    name: str
    version: str
    licence: str
    programs: tuple  # those that it is linked into
    what: str


def _version(debian_package):
    """Debian's, which names its own changes too. The compiler itself tells no more than 12."""
    return subprocess.run(["dpkg-query", "--show", "--showformat=${Version}", debian_package], capture_output=True,
                          text=True, check=True).stdout


def parts(architecture):
    """What others made. The one place where it is listed."""
    processor = PROCESSORS[architecture]
    gcc, runtime = _version(f"gcc-mingw-w64-{processor}-posix-runtime"), _version(f"mingw-w64-{processor}-dev")
    return [
        Part("libstdc++", gcc, GCC_LICENCE, BOTH, "the C++ standard library of GCC"),
        Part("libgcc", gcc, GCC_LICENCE, BOTH, "the compiler's own run-time library"),
        Part("mingw-w64-runtime", runtime, "ZPL-2.1", BOTH, "start of the program, and the C library's additions"),
        Part("winpthreads", runtime, "MIT AND BSD-3-Clause", BOTH, "threads, for the C++ standard library"),
        Part("nlohmann-json", _version("nlohmann-json3-dev"), "MIT", ("lejis.exe",), "JSON"),
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
