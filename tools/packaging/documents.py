"""The files for people, by their names in the packages: pages, samples, and what programs are built with."""
from pathlib import Path

import pages
from lejis_host import DEFAULT_LEJIS_HOST, MADE_FOR

PROJECT = Path(__file__).resolve().parents[2]
CORE = PROJECT / "Plugins" / "LEJIS" / "LEJIS Core Library"
TEXTS = Path(__file__).resolve().parent / "texts"
INSTALLED_GUIDE = "docs/installing.md"
# For those who build the library.
NOT_PACKED = {"docs/architecture.md", "docs/internals.md", "docs/pictures/architecture.dot",
              "docs/pictures/architecture.svg", "docs/fuzzing.md", "docs/getting-started.md", "samples/run.sh"}
FOLDERS = ("docs", "samples")
START_SOURCE = "tools/packaging/texts/start.md"
BITS = {"x86": "32", "x64": "64"}


def with_windows_lines(text):
    return text.replace("\n", "\r\n").encode()


def _in_project(path):
    return path.relative_to(PROJECT).as_posix()


def _sources():
    """The project's files that are packed, by their names in the project."""
    files = [PROJECT / "CHANGELOG.md",
             *(path for folder in FOLDERS for path in sorted((PROJECT / folder).rglob("*")) if path.is_file())]
    found = {_in_project(path): path for path in files if "__pycache__" not in path.parts}
    return {name: path for name, path in found.items() if name not in NOT_PACKED}


def _packed_name(name):
    return name[:-len(".md")] + ".html" if name.endswith(".md") else name


def _for_host(name, text, host):
    """The text of a file, naming the host of the library that it comes with."""
    if name == INSTALLED_GUIDE:
        sentence = MADE_FOR.format(DEFAULT_LEJIS_HOST)
        if text.count(sentence) != 1:
            raise RuntimeError(f"{name} does not say once what it is {sentence}")
        return text.replace(sentence, MADE_FOR.format(host))
    if name.startswith(("docs/incident-format", "samples/incidents/")):
        return text.replace(DEFAULT_LEJIS_HOST, host)
    return text


def for_people(version, host):
    """Pages and samples."""
    sources = _sources()
    names = {name: _packed_name(name) for name in sources} | {START_SOURCE: pages.START, "LICENSE": "LICENSE.txt"}
    texts = {name: path.read_text(encoding="utf-8") for name, path in sources.items()}
    texts[START_SOURCE] = (PROJECT / START_SOURCE).read_text(encoding="utf-8")
    members = {}
    for name, text in texts.items():
        text = _for_host(name, text, host)
        if name.endswith(".md"):
            text = pages.page(text, name, names[name], names, version)
        members[names[name]] = with_windows_lines(text)
    return members


def for_programmers(architecture):
    """The interface as compilers and other tools take it."""
    built = PROJECT / "build" / architecture / "core" / "type_library"
    members = {f"sdk/{path.relative_to(CORE).as_posix()}": with_windows_lines(path.read_text(encoding="utf-8"))
               for path in sorted(CORE.rglob("*.idl"))}
    # It says of which file it was made.
    header = (built / "TVLejisCore.h").read_text(encoding="utf-8").replace(f"{CORE}/", "")
    members["sdk/TVLejisCore.h"] = with_windows_lines(header)
    members["sdk/TVLejisCore.tlb"] = (built / "TVLejisCore.tlb").read_bytes()
    return members


def first_words(architecture, version, host):
    """What lies beside the library itself."""
    readme = (TEXTS / "README.txt").read_text(encoding="utf-8")
    for word, text in (("@VERSION@", version), ("@BITS@", BITS[architecture]), ("@HOST@", host)):
        readme = readme.replace(word, text)
    return {"README.txt": with_windows_lines(readme),
            "LICENSE.txt": with_windows_lines((PROJECT / "LICENSE").read_text(encoding="utf-8"))}
