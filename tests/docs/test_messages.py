"""docs/messages.md holds every message of the library.

Each text in the sources counts as a message unless a table below says why it is not one. So no new text is overlooked.
"""
import re
import unittest

from message_sources import PROJECT, library_texts, normalised, texts_of

GUIDE = PROJECT / "docs" / "messages.md"

# Texts without a blank that are no messages, by their form. (A text with a blank is looked at one by one.)
FORMS = {
    r"(?:\.//)?[a-z]+:[\w.]+(?:/@?(?:[a-z]+:)?[\w.]+)*": "a name or path in XML",
    r"https?://\S*": "a namespace, or the beginning of an address",
    r"/lejis/\S+": "the end of a namespace or of an action",
    r"TalvexSuite\.\w+": "the ProgID of a component of the host",
    r"Lejis\w+\.xml": "the file name of a debug dump",
    r"\\+\w+|\w+\\+": "a part of a registry key or a path",
    r"%\S+": "a format of numbers",
    r"&\w+;": "a reference to a character",
    r"</?a>": "a tag around a text that MSXML is asked for",
}
WORDS = {
    "a key or value of the registry": "ThreadingModel Apartment win32 win64 DebugLejis",
    "a member of the host's components": "ErrorNumber Yield Folders Diagnostics Interval Enabled "
        "Elapsed",
    "a name of the platform": "LOCALAPPDATA ntdll.dll wine_get_version .CRT$XLF",
    "a word of HTTP": "GET POST SOAPAction Content-Type text/xml;charset=utf-8 ?wsdl text/xml application/xml +xml "
        'charset=utf-8 charset="utf-8"',
    "a prefix or name in XML, or a value in it": "soap wsse lejis j ext card inq xml xmlns xmlns: targetNamespace ncic "
        "true false",
    "the beginning of a namespace": "urn:schemas-microsoft-com:",
    "the beginning of a reference to a character": "&#x",
    "digits": "0123456789abcdefABCDEF",
    "a byte order mark, as the test reads it": "xEFxBBxBF",
    "a property of MSXML": "SelectionLanguage XPath SelectionNamespaces",
    "a key of a table": "K",
    "a language of linkage": "C",
    "what the suite calls itself": "Talvex TalvexSuite",
    "a set of codes, or one": "ABIUW MFU U Y",
    "the name of a type, which stands for {type} in 'Cannot assign'":
        "Empty Null Integer Long Single Double Currency Date String Error Boolean Variant Decimal SByte Byte UShort "
        "ULong LongLong ULongLong Object Unknown Nothing",
}
TEXTS = {
    r"Software\VB and VBA Program Settings\TalvexSuite\Flags": "a registry key",
    "Still alive:": "what a debug build writes to the debugger",
    "<soap:Envelope xmlns:soap='": "the beginning of an envelope",
    "xmlns:wsse='": "a part of an envelope",
    "<soap:Body></soap:Body></soap:Envelope>": "the rest of an envelope",
    "<soap:Header><wsse:Security><wsse:UsernameToken><wsse:Username>": "a part of an envelope",
    "</wsse:Username></wsse:UsernameToken></wsse:Security></soap:Header>": "a part of an envelope",
    **{f"<?xml version={quote}1.0{quote}{encoding}?>": "a declaration that plain markup may have"
       for quote in "\"'"
       for encoding in ("", f" encoding={quote}UTF-8{quote}", f" encoding={quote}utf-8{quote}")},
    "<patterns xmlns:j='": "the beginning of a pattern of measures",
    "'/></patterns>": "the end of a pattern of measures",
    "xmlns:wsdl='http://schemas.xmlsoap.org/wsdl/' xmlns:xsd='http://www.w3.org/2001/XMLSchema'":
        "the prefixes of queries",
    "a name without a known prefix": "a mistake in the library, which does not compile",
    "a text field away from the others": "a mistake in the library: no object of the class can be made",
}
# How the guide writes the record that a message is about; the example is made up.
LABELS = "{record}: ", "JOHN Q PUBLIC (Victim): "


def pieces_of_the_guide():
    """The pieces between the placeholders of each text in backticks."""
    pieces = set()
    for span in re.findall(r"`([^`]+)`", GUIDE.read_text(encoding="utf-8")):
        for label in LABELS:
            span = span.removeprefix(label)
        pieces.update(normalised(piece) for piece in re.split(r"\{[^}]*\}", span))
    return pieces


def reason_to_leave_out(text):
    if text in TEXTS:
        return TEXTS[text]
    if " " in text:
        return None
    for reason, words in WORDS.items():
        if text in words.split():
            return reason
    return next((reason for form, reason in FORMS.items() if re.fullmatch(form, text)), None)


class MessagesTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.texts = library_texts()
        cls.pieces = pieces_of_the_guide()

    def test_the_guide_holds_every_message(self):
        missing = [f"{file}: {text}" for text, file in self.texts.items()
                   if text not in self.pieces and not reason_to_leave_out(text)]
        self.assertEqual(missing, [])

    def test_the_guide_holds_no_message_that_is_gone(self):
        sentences = {piece for piece in self.pieces if " " in piece and piece[-1] in ".:'("}
        self.assertEqual(sorted(sentences - set(self.texts)), [])
        self.assertGreater(len(sentences), 30)

    def test_no_reason_is_left_over(self):
        self.assertEqual(sorted(set(TEXTS) - set(self.texts)), [])
        words = {word for words in WORDS.values() for word in words.split()}
        self.assertEqual(sorted(words - set(self.texts)), [])
        for form in FORMS:
            self.assertTrue(any(re.fullmatch(form, text) for text in self.texts), form)

    def test_messages_are_many(self):
        self.assertGreater(sum(" " in text and text in self.pieces for text in self.texts), 60)

    def test_texts_are_read_as_the_compiler_reads_them(self):
        source = '''#include "a.h"
            // "no text"
            /* "none" */ f(L"one " L"two\\r\\n", 'x', '"', "th\\"ree" /* joined? */ "4", R"(raw "text")");'''
        self.assertEqual(texts_of(source), ["one two\r\n", 'th"ree', "4", 'raw "text"'])


if __name__ == "__main__":
    unittest.main()
