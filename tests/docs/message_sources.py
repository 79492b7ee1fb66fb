"""The texts in the library's sources."""
import re
from pathlib import Path

PROJECT = Path(__file__).resolve().parents[2]
LIBRARY = PROJECT / "Plugins" / "LEJIS" / "LEJIS Core Library"

TOKEN = re.compile(r"""
      //[^\n]*
    | /\*.*?\*/
    | ^[ ]*\#[ ]*include[^\n]*
    | '(?:[^'\\\n]|\\.)'
    | (?P<raw>(?:u8|[LuU])?R"(?P<mark>[^(\s]*)\((?P<verbatim>.*?)\)(?P=mark)")
    | (?P<text>(?:u8|[LuU])?"(?P<plain>(?:[^"\\\n]|\\.)*)")
    """, re.VERBOSE | re.DOTALL | re.MULTILINE)
ESCAPES = {"n": "\n", "r": "\r", "t": "\t", "0": "\0"}


def normalised(text):
    return " ".join(text.split())


def texts_of(source):
    """The texts of a C++ source, comments and includes apart; neighbours that the compiler joins are one text."""
    texts = []
    end = -1
    for token in TOKEN.finditer(source):
        if token["raw"]:
            text = token["verbatim"]
        elif token["text"] is not None:
            text = re.sub(r"\\(.)", lambda escaped: ESCAPES.get(escaped[1], escaped[1]), token["plain"])
        else:
            continue
        if texts and not source[end:token.start()].strip():
            texts[-1] += text
        else:
            texts.append(text)
        end = token.end()
    return texts


def library_texts():
    """Every text with a letter in it, white space evened out, with the file it stands in."""
    found = {}
    for path in sorted(LIBRARY.rglob("*")):
        # Texts of the version resource and of the type library are shown by Windows and by development tools only.
        if path.suffix not in (".cpp", ".h"):
            continue
        for text in texts_of(path.read_text(encoding="utf-8")):
            if re.search(r"[^\W\d_]", text):
                found.setdefault(normalised(text), path.relative_to(LIBRARY).as_posix())
    return found
