"""Finding and reading incident files."""
import os
import unittest

from lejis_case import DONE, NAMESPACES, REFUSED, LejisCase, card

LARGE_ENTITY = '<!ENTITY e "' + "x" * 100_000 + '">'

PERSON = """
  <card:RMSPersonIndexCards><j:PersonBirthDate>1990-02-28</j:PersonBirthDate></card:RMSPersonIndexCards>
  <card:RMSPersonIndexCards><j:PersonBirthDate>{}</j:PersonBirthDate></card:RMSPersonIndexCards>
"""
STREET = "<j:LocationStreet><j:StreetNumberText>99999999999</j:StreetNumberText></j:LocationStreet>"

# What is written, and how its report begins.
BAD_FILES = {
    "empty": ("", "The file is empty."),
    "words": ("Burglary at Main Street\n", "Line 1: "),
    "mismatch": (card().replace("</card:LejisIndexUid>", "</card:LejisIndexUId>"), "Line 8: "),
    "ampersand": (card().replace("Millbrook", "Smith & Sons"), "Line 11: "),
    "ampersand after lines of text": (card().replace("2202", "\none\ntwo\nthree & four\nfive\n"), "Line 19: "),
    "fault after a comment": (card().replace("</card:LejisIndexUid>", "<!--\n\n\n-->\n</card:Lejis>"), "Line 12: "),
    "fault with Windows line ends": (card().replace("Millbrook", "Smith & Sons").replace("\n", "\r\n"), "Line 11: "),
    "fault in UTF-16": (card().replace("Millbrook", "Smith & Sons").encode("utf-16"), "Line 11: "),
    "truncated": (card()[:500], "Line "),
    "wrong encoding": (card().replace("Millbrook", "Montr\u00e9al").encode("latin-1"), "Line 11: "),
    "two roots": ("<a/>\n<b/>\n", "Line "),
    "doctype": (f"<!DOCTYPE a>\n{card()}", "Line 1: Incident files must not have a DOCTYPE."),
    "doctype after a comment": (f"<!-- <!DOCTYPE a> -->\n\n<?x <!DOCTYPE?>\n<!DOCTYPE a [\n]>\n{card()}",
                                "Line 4: Incident files must not have a DOCTYPE."),
    "doctype in UTF-16": (f"\n<!DOCTYPE a>\n{card()}".encode("utf-16"),
                          "Line 2: Incident files must not have a DOCTYPE."),
    "huge entities": (f"<!DOCTYPE a [\n{LARGE_ENTITY}\n]>\n" + card().replace("2202", "&e;" * 2000),
                      "Line 1: Incident files must not have a DOCTYPE."),
    "foreign": ("<recipe/>\n", "This is no incident card: its root element is 'recipe' of no namespace, not "
                "'RMSIncidentIndexCard' of 'http://lejis.example/lejis/jxdm/1.0/service'."),
    "other namespace": (card().replace("jxdm/1.0/service", "jxdm/2.0/service"),
                        "This is no incident card: its root element is 'RMSIncidentIndexCard' of "
                        "'http://lejis.example/lejis/jxdm/2.0/service', not "),
    "no identifiers": (f"<lejis:RMSIncidentIndexCard {NAMESPACES}/>\n",
                       "The incident card lacks the agency's ORI (card:LejisIndexUid/j:OrganizationORIID/j:ID); "
                       "the incident number (card:LejisIndexUid/j:ActivityID/j:ID); "
                       "the agency's name (j:SubmissionSubmitter.Organization/j:OrganizationName)."),
    "no ORI": (card().replace("j:OrganizationORIID", "j:Other"),
               "The incident card lacks the agency's ORI (card:LejisIndexUid/j:OrganizationORIID/j:ID)."),
    "no number": (card().replace("j:ActivityID", "j:Other"),
                  "The incident card lacks the incident number (card:LejisIndexUid/j:ActivityID/j:ID)."),
    "bad birth date": (card().replace("</lejis:", PERSON.format("1990-02-30") + "</lejis:"),
                       "Line 19: j:PersonBirthDate '1990-02-30' cannot be read: it is not a date."),
    "huge street number": (card().replace("<j:LocationPostal", STREET + "<j:LocationPostal"),
                           "Line 14: j:StreetNumberText '99999999999' cannot be read: it is too large a number."),
    "no agency": (card().replace("Submitter.Org", "Org"),
                  "The incident card lacks the agency's name (j:SubmissionSubmitter.Organization/j:OrganizationName)."),
}


class BadFileTest(LejisCase):
    def test_every_bad_file_is_named_with_line_and_reason(self):
        names = {f"{number:02}.xml": case for number, case in enumerate(BAD_FILES)}
        for name, case in names.items():
            self.write(name, BAD_FILES[case][0])
        lines = self.expect(REFUSED, "check", *names).splitlines()
        for number, (name, case) in enumerate(names.items(), 1):
            with self.subTest(case):
                place = lines.index(f"[{number:2}/{len(names)}] {name}  unreadable")
                prefix = "  ! " + BAD_FILES[case][1]
                self.assertTrue(lines[place + 1].startswith(prefix), lines[place + 1])
                self.assertGreater(len(lines[place + 1]), len("  ! Line 1: "))
        self.assertEqual(lines[-1], f"{len(names)} files: 0 fit for submission, {len(names)} unreadable.")

    def test_what_is_no_file(self):
        (self.folder / "folder.xml").mkdir()
        for name, reason in {"missing.xml": "There is no such file.",
                             "folder.xml": "This is a folder, not a file; --recurse takes the files in it.",
                             "nowhere/x.xml": "There is no such folder.",
                             "nothing*.xml": "No file matches this pattern."}.items():
            self.assertEqual(self.expect(REFUSED, "check", name), f"{name}  unreadable\n  ! {reason}\n")

    @unittest.skipIf(os.getuid() == 0, "nothing is denied to root")
    def test_a_file_that_may_not_be_read(self):
        self.write("secret.xml", card()).chmod(0)
        self.assertIn("Access to the file is denied.", self.expect(REFUSED, "check", "secret.xml"))

    def test_a_bad_file_does_not_stop_the_others(self):
        self.write("a.xml", "<a>")
        self.write("b.xml", card())
        output = self.expect(REFUSED, "check", "a.xml", "b.xml", "c.xml")
        self.assertIn("a.xml  unreadable\n", output)
        self.assertIn("b.xml  fit for submission\n", output)
        self.assertIn("c.xml  unreadable\n", output)
        self.assertTrue(output.endswith("\n\n3 files: 1 fit for submission, 2 unreadable.\n"), output)


class GoodFileTest(LejisCase):
    def test_patterns_are_expanded_in_alphabetical_order(self):
        for name in ("b2.xml", "b10.xml", "a.xml", "b.txt"):
            self.write(name, card())
        (self.folder / "bfolder.xml").mkdir()
        output = self.expect(DONE, "check", "b*.xml")
        self.assertEqual(output, "b10.xml  fit for submission\nb2.xml   fit for submission\n\n"
                                 "2 files: 2 fit for submission.\n")
        self.assertEqual(self.expect(DONE, "check", "?.xml"), "a.xml  fit for submission\n")

    def test_patterns_with_folders_windows_and_unix(self):
        self.write("a.xml", card())
        unix = str(self.folder)
        self.assertEqual(self.expect(DONE, "check", f"{unix}/*.xml"), f"{unix}/a.xml  fit for submission\n")
        windows = f"Z:{self.folder}".replace("/", "\\")
        self.assertEqual(self.expect(DONE, "check", f"{windows}\\*.xml"), f"{windows}\\a.xml  fit for submission\n")

    def test_unix_paths_do_not_depend_on_the_current_drive(self):
        path = self.write("a.xml", card())
        system = os.path.join(os.environ["WINEPREFIX"], "drive_c", "windows")
        for given in (path, f"{self.folder}/*.xml"):
            self.assertEqual(self.expect(DONE, "check", given, folder=system), f"{path}  fit for submission\n")

    def test_names_with_characters_that_mean_something_in_addresses(self):
        for name in ("a b.xml", "50%25.xml", "case#4.xml", "[x].xml", "a&b=c.xml",
                     "Müller \u65e5\u672c \U00020bb7.xml"):
            self.write(name, card())
            self.assertEqual(self.expect(DONE, "check", name), f"{name}  fit for submission\n")

    def test_encodings_and_line_ends(self):
        text = card().replace("Millbrook", "Montr\u00e9al")
        declared = '<?xml version="1.0" encoding="{}"?>\n'
        for content in (text.encode(), text.encode("utf-8-sig"), text.encode("utf-16"),
                        b"\xfe\xff" + text.encode("utf-16-be"), (declared.format("UTF-16") + text).encode("utf-16"),
                        text.replace("\n", "\r\n").encode(),
                        (declared.format("UTF-8") + text).encode(),
                        (declared.format("ISO-8859-1") + text).encode("latin-1"),
                        b"<!-- no <!DOCTYPE here -->\n" + text.encode()):
            self.write("a.xml", content)
            self.assertEqual(self.expect(DONE, "check", "a.xml"), "a.xml  fit for submission\n")


if __name__ == "__main__":
    unittest.main()
