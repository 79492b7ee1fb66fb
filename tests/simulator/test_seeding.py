"""Cards that come into the index by control, and index files of other times."""

import json
import sqlite3
import unittest

from lxml import etree

import documents
import inquiries
from documents import NAMES, PREFIXES
from search_case import SearchCase

from lejis.incident_index import IncidentIndex
from lejis.inquiry import Inquiry


def only_card(element: etree._Element) -> bytes:
    """A card as a document."""
    return etree.tostring(element, with_tail=False)


class SeedingTest(SearchCase):
    """POST /control/index."""

    def post(self, body: bytes) -> tuple[int, bytes]:
        return self.call("POST", "/control/index", body)

    def test_one_card(self) -> None:
        status, answer = self.post(only_card(documents.card()))
        self.assertEqual((200, {"added": 1, "replaced": 0}), (status, json.loads(answer)))
        self.assertEqual(["2007-000123"], self.held())
        self.assertEqual(["2007-000123"], self.found(words="assault"))

    def test_several_cards(self) -> None:
        self.seed(documents.card("b"))
        self.assertEqual({"added": 2, "replaced": 1}, self.seed(
            documents.card("a"), documents.card("b"), documents.card("c")))
        self.assertEqual(["a", "b", "c"], self.held())

    def test_is_no_exchange(self) -> None:
        self.seed(documents.card())
        self.assertEqual([], self.control("GET", "exchanges"))

    def test_a_bare_card_is_added_too(self) -> None:
        self.seed(documents.bare_card())
        self.assertEqual(["2007-000123"], self.held())

    def test_cards_keep_their_namespaces(self) -> None:
        self.post(only_card(documents.card()))
        _, stored = self.call("GET", "/control/index/card?ori=PA0123400&id=2007-000123")
        self.assertEqual("PUBLIC", etree.fromstring(stored).findtext(
            ".//j:PersonSurName", namespaces=PREFIXES))

    def test_bodies_that_are_refused(self) -> None:
        invalid = documents.card("bad")
        documents.find(invalid, ".//j:PersonSexCode").text = "X"
        several = documents.payload(etree.fromstring(
            documents.submission(documents.card("good"), invalid)))
        system = documents.find(documents.payload(documents.envelope()), "lejis:ContributingSystem")
        for name, (body, sentence) in {
                "nothing": (b"", "not well-formed"), "envelope": (documents.FULL, "neither"),
                "doctype": (b"<!DOCTYPE x><x/>", "DOCTYPE"),
                "another element of the schemas": (only_card(system), "neither"),
                "invalid": (only_card(invalid), "Element 'j:PersonSexCode'"),
                "one of two invalid": (only_card(several), "Element 'j:PersonSexCode'")}.items():
            with self.subTest(name=name):
                status, answer = self.post(body)
                self.assertEqual(400, status)
                self.assertIn(sentence, answer.decode())
                self.assertEqual([], self.held())


class IndexFileTest(SearchCase):
    """What lies on the disk."""

    def test_searches_outlive_a_restart(self) -> None:
        self.seed(documents.card())
        again = IncidentIndex(self.data / "index.sqlite")
        self.addCleanup(again.close)
        element = inquiries.payload(etree.fromstring(inquiries.search(
            person={"j:PersonSurName": "PUBLIC"})))
        count, cards = again.find(Inquiry(element, NAMES), 9)
        self.assertEqual((1, 1), (count, len(cards)))

    def test_nothing_is_left_of_what_is_gone(self) -> None:
        self.seed(documents.card(), documents.card("b"))
        self.seed(documents.card())
        tables = ("incident", "person", "place", "property", "vehicle")
        with sqlite3.connect(self.data / "index.sqlite") as database:
            def counts() -> list[int]:
                return [database.execute(f"SELECT count(*) FROM {table}").fetchone()[0]
                        for table in tables]
            self.assertEqual([2, 2, 4, 2, 2], counts())
            self.control("DELETE", "index")
            self.assertEqual([0] * 5, counts())
        database.close()

    def test_files_of_another_version_are_refused(self) -> None:
        file = self.data / "old.sqlite"
        with sqlite3.connect(file) as database:
            database.execute("CREATE TABLE incident (ori TEXT, activity_id TEXT)")
        database.close()
        with self.assertRaisesRegex(ValueError, "old.sqlite is of another version"):
            IncidentIndex(file)


if __name__ == "__main__":
    unittest.main()
