"""Code that would use memory after its end, or drop a failure, does not compile.

Each row has a correct twin that compiles. So the row is refused for its mistake, and not for a name that has changed.
"""
import json
import os
import re
import shlex
import subprocess
import unittest
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path
from typing import NamedTuple

BUILD = Path(os.environ["LEJIS_BUILD"])
# Sources of the tests of the library's inside, compiled as one piece. The snippets are compiled as it is.
MODEL = "tests_foundation_cxx.cxx"

DELETED = "use of deleted function"
DROPPED = "ignoring return value"
NO_CONSTANT = "is not a constant expression"


class Row(NamedTuple):
    name: str
    wrong: str
    right: str
    complaint: str


ROWS = (
    Row("a view of a text that nobody holds",
        "std::wstring_view text = msxml::Text(element); Use(text);",
        "const platform::OutText held = msxml::Text(element); std::wstring_view text = held; Use(text);", DELETED),
    Row("the same by name",
        "const auto text = msxml::Text(element).View(); Use(text);",
        "const auto held = msxml::Text(element); const auto text = held.View(); Use(text);", DELETED),
    Row("the same of a text that may be missing",
        "std::wstring_view text = *msxml::LeafText(element, child); Use(text);",
        "const auto held = msxml::LeafText(element, child); std::wstring_view text = *held; Use(text);", DELETED),
    Row("a view of a card's text, which another field of the card moves",
        "std::wstring_view text = card.SurName; card.GivenName = text; Use(text);",
        "const std::wstring text = card.SurName; card.GivenName = text; Use(text);", "conversion from"),
    Row("a field of its own",
        "auto text = card.SurName; Use(text);",
        "const auto& text = card.SurName; Use(text);", DELETED),
    Row("a field of a block that is kept as a view",
        "std::wstring_view text = block.SurName; Use(text);",
        "const std::wstring text = block.SurName; Use(text);", "conversion from"),
    Row("a copy that is not asked for",
        "std::wstring text = msxml::Text(element); Use(text);",
        "std::wstring text(msxml::Text(element)); Use(text);", "conversion from|use of deleted function"),
    Row("a text of a reader that has ended",
        'const auto text = ElementReader(element).Text(L"j:ID"); Use(text);',
        'const ElementReader reader(element); const auto text = reader.Text(L"j:ID"); Use(text);', DELETED),
    Row("the text of its element",
        "const auto text = ElementReader(element).Text(); Use(text);",
        "const ElementReader reader(element); const auto text = reader.Text(); Use(text);", DELETED),
    Row("a text of it that may be missing",
        'const auto text = ElementReader(element).TextIfAny(L"j:ID"); Use(*text);',
        'const ElementReader reader(element); const auto text = reader.TextIfAny(L"j:ID"); Use(*text);', DELETED),
    Row("a text of its child",
        'const auto text = ElementReader(element).Child(L"j:ID")->Text(); Use(text);',
        'const ElementReader reader(element); const auto text = reader.Child(L"j:ID")->Text(); Use(text);', DELETED),
    Row("a text of one of its children",
        'const auto text = ElementReader(element).Children(L"j:ID").front().Text(); Use(text);',
        'const ElementReader reader(element); const auto text = reader.Children(L"j:ID").front().Text(); Use(text);',
        DELETED),
    Row("the reading of a tree that is not seen",
        "card.Read(element);",
        "card.Read(ElementReader(element));", "cannot convert"),
    Row("the client's method for the card's own",
        "card.FromXmlElement(nullptr);",
        "card.Read(ElementReader(element));", DROPPED),
    Row("nothing to be read",
        "card.Read(nullptr);",
        "card.Read(ElementReader(msxml::Element()));", "cannot convert"),
    Row("the client's method for the service's own",
        "service.DeleteIncident(nullptr);",
        "service.Withdraw(incident);", DROPPED),
    Row("a document that has ended",
        "const msxml::Document& document = OutputDocument::Create(); Use(document);",
        "const OutputDocument own = OutputDocument::Create(); const msxml::Document& document = own; Use(document);",
        DELETED),
    Row("the same by name",
        "const msxml::Document& document = OutputDocument::Create().Get(); Use(document);",
        "const OutputDocument own = OutputDocument::Create(); "
        "const msxml::Document& document = own.Get(); Use(document);",
        DELETED),
    Row("the element of a writer that has ended",
        'const auto& written = ElementWriter(target, L"j:ID").Element(); Use(written);',
        'const ElementWriter writer(target, L"j:ID"); const auto& written = writer.Element(); Use(written);', DELETED),
    Row("an element to be written with a prefix that is not known",
        'const ElementWriter writer(target, L"xsd:ID"); Use(writer);',
        'const ElementWriter writer(target, L"j:ID"); Use(writer);', NO_CONSTANT),
    Row("a child to be written without a prefix",
        'ElementWriter writer(target, L"j:ID"); writer.Text(L"ID", L"1");',
        'ElementWriter writer(target, L"j:ID"); writer.Text(L"j:ID", L"1");', NO_CONSTANT),
    Row("an element to be written whose name may end before it",
        'std::wstring name = L"j:ID"; const ElementWriter writer(target, name); Use(writer);',
        'const ElementWriter writer(target, L"j:ID"); Use(writer);', "no matching function"),
    Row("a path to be read with a prefix that is not known",
        'const ElementReader reader(element); Use(reader.Text(L"j:ID/xsd:ID"));',
        'const ElementReader reader(element); Use(reader.Text(L"j:ID/j:ID"));', NO_CONSTANT),
    Row("a reference to nothing",
        "const platform::Ref<LejisPersonIndexCard> person(nullptr); Use(person);",
        "const platform::Ref<LejisPersonIndexCard> person(card); Use(person);", "no matching function"),
    Row("a reference that ends with nothing in it",
        "platform::Ref<LejisPersonIndexCard> person(card); person = nullptr;",
        "platform::Ref<LejisPersonIndexCard> person(card); person = platform::Create<LejisPersonIndexCard>();",
        "no match for|cannot convert"),
)

PROLOGUE = """
#include "foundation/ElementReader.h"
#include "foundation/ElementWriter.h"
#include "inquiry/PersonInquiryArguments.h"
#include "model/LejisIncidentIndexCard.h"
#include "model/LejisPersonIndexCard.h"
#include "platform/msxml/ElementText.h"
#include "platform/msxml/Node.h"
#include "platform/com/UnknownObject.h"
#include "platform/Text.h"
#include "services/LejisSubmissionWebService.h"

namespace lejis {

template <typename Value>
void Use(const Value&);

"""
PARAMETERS = ("[[maybe_unused]] const msxml::Element& element, [[maybe_unused]] const msxml::Node& child, "
              "[[maybe_unused]] const OutputDocument& target, [[maybe_unused]] LejisPersonIndexCard& card, "
              "[[maybe_unused]] const LejisIncidentIndexCard& incident, "
              "[[maybe_unused]] PersonInquiryArguments& block, [[maybe_unused]] LejisSubmissionWebService& service")


def source(bodies):
    functions = (f"void Snippet{number}({PARAMETERS});\nvoid Snippet{number}({PARAMETERS}) {{\n{body}\n}}\n"
                 for number, body in enumerate(bodies))
    return PROLOGUE + "\n".join(functions) + "\n}  // namespace lejis\n"


def compiler():
    """The command of MODEL for a source on the standard input, and its folder."""
    entries = json.loads((BUILD / "compile_commands.json").read_text(encoding="utf-8"))
    entry = next(entry for entry in entries
                 if entry["file"].endswith(MODEL) and "unit_tests" in entry["command"])
    command, words = [], iter(shlex.split(entry["command"]))
    for word in words:
        if word in ("-o", "-MT", "-MF"):
            next(words)
        elif word not in ("-c", "-MD", entry["file"]):
            command.append(word)
    return [*command, "-fsyntax-only", "-x", "c++", "-"], entry["directory"]


class RefusalTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.command, cls.folder = compiler()

    def compile(self, *bodies):
        run = subprocess.run(self.command, cwd=self.folder, input=source(bodies), text=True, capture_output=True,
                             timeout=120, env={**os.environ, "LC_ALL": "C"}, check=False)
        return run.returncode, run.stderr

    def test_what_is_right_compiles(self):
        self.assertEqual(self.compile(*(row.right for row in ROWS)), (0, ""))

    def test_what_is_wrong_does_not(self):
        with ThreadPoolExecutor(2) as pool:
            outcomes = list(pool.map(lambda row: self.compile(row.wrong), ROWS))
        for row, (code, complaints) in zip(ROWS, outcomes):
            with self.subTest(row.name, wrong=row.wrong):
                self.assertEqual(code, 1, complaints)
                errors = re.findall(r"error: (.*)", complaints)
                self.assertTrue(any(re.search(row.complaint, error) for error in errors), complaints)


if __name__ == "__main__":
    unittest.main()
