"""The column "lejis" of docs/messages.md is what tools/lejis makes of each message of a submission."""
import re
import unittest
from typing import NamedTuple

from message_sources import PROJECT, normalised

GUIDE = PROJECT / "docs" / "messages.md"
SOURCE = PROJECT / "tools" / "lejis" / "submission" / "MessageOutcome.cpp"
SEARCH_SOURCE = PROJECT / "tools" / "lejis" / "search" / "SearchFailure.cpp"

WORDS = {"Refused": "refused", "NotSent": "not sent", "Unknown": "unknown"}
AGAIN = {"true": ", try again", "false": ""}
# The sections of the guide whose tables have the column.
SECTIONS = ("The request does not get through", "LEJIS answers, and does not take it", "Internal errors")
INTERNAL, STEP = "Internal error ", "Error in DoSubmit (line "


class Row(NamedTuple):
    speaker: str
    reachability: str
    begin: str
    outcome: str


def rows_of_the_tool():
    """Its table: who speaks of which reachability, how the message begins, and the words for its outcome."""
    source = SOURCE.read_text(encoding="utf-8")
    body = re.search(r"constexpr Row kRows\[\] = \{\n(.*?)\n\};", source, re.DOTALL)[1]
    rows = re.findall(r'\{Speaker::(\w+), Reachability::(\w+), L"([^"]*)",\s+Result::(\w+), (\w+),\s+\w+\}', body)
    assert len(rows) == body.count("Result::"), body
    return [Row(speaker, reachability, begin, WORDS[result] + AGAIN[again])
            for speaker, reachability, begin, result, again in rows]


def rows_of_the_guide():
    """Message, how it shows, and the column, of every row of the sections."""
    rows = []
    for section in GUIDE.read_text(encoding="utf-8").split("\n## ")[1:]:
        if section.splitlines()[0] not in SECTIONS:
            continue
        for table in re.findall(r"(?:^\|.*\n)+", section, re.MULTILINE):
            header, _, *lines = [[cell.strip() for cell in re.split(r"(?<!\\)\|", line)[1:-1]]
                                 for line in table.splitlines()]
            if "`lejis`" in header:
                rows += [(line[0].strip("`"), line[header.index("Shows as")], line[header.index("`lejis`")])
                         for line in lines]
    return rows


def outcome_of_a_search(message, shows):
    passing = re.findall(r'^    L"([^"]+)",$', SEARCH_SOURCE.read_text(encoding="utf-8"), re.MULTILINE)
    assert len(passing) == 2, passing
    if shows == "`ServiceError`" and any(message.startswith(begin.strip()) for begin in passing):
        return "try again"
    return "try again" if shows == "`NetworkError`" else "refused"


def outcome_of(message, shows):
    """The rule of the tool, in a few words of another language."""
    if "tv" not in shows:
        return outcome_of_a_search(message, shows)
    speaker = "Lejis" if shows.startswith("`tvFatalError`") else "Network"
    outcomes = []
    for row in rows_of_the_tool():
        if row.speaker == speaker and message.startswith(row.begin):
            outcomes.append(row.outcome)
            if row.reachability == "Reachable":
                break
    if len({outcome.removesuffix(AGAIN["true"]) for outcome in outcomes}) == 1:
        return outcomes[0]
    first, last = outcomes
    # What both have in common is said once.
    return f"{first.removesuffix(AGAIN['true'])} or {last}" if first.endswith(AGAIN["true"]) else f"{first}, or {last}"


class OutcomesTest(unittest.TestCase):
    maxDiff = None

    def test_every_message_of_a_submission_has_the_outcome_that_the_tool_tells(self):
        rows = rows_of_the_guide()
        self.assertGreater(len(rows), 20)
        for message, shows, column in rows:
            with self.subTest(message):
                if message.startswith(INTERNAL) and "tv" in shows:
                    self.assertIn(column, ("by the step", "unknown, try again"))
                elif message.startswith("Error in DoSubmit"):
                    self.assertEqual(column, "by the step")
                else:
                    self.assertEqual(column, outcome_of(normalised(message), shows))

    def test_the_guide_names_the_outcome_of_each_step(self):
        text = " ".join(GUIDE.read_text(encoding="utf-8").split())
        listed = re.search(r"`lejis` tells the steps apart: (.*?)\.", text)[1]
        told = dict(re.findall(r"step (\d) is `([^`]+)`", listed))
        steps = [row for row in rows_of_the_tool() if row.speaker == "Library"]
        self.assertEqual(steps.pop()[2:], ("", "unknown, try again"))
        for _, _, begin, outcome in steps:
            step = re.match(re.escape(STEP) + r"(\d)", begin)[1]
            if begin.endswith("Schema validation error: "):
                self.assertIn(f"a schema validation error is `{outcome}`", listed)
            else:
                self.assertEqual(told[step], outcome)
        self.assertIn("every later one is `unknown, try again`", listed)

    def test_the_rows_of_the_tool_are_messages_of_the_library(self):
        messages = [normalised(message) for message, _, _ in rows_of_the_guide()]
        for row in rows_of_the_tool():
            if row.speaker == "Network":
                self.assertTrue(any(message.startswith(row.begin.strip()) for message in messages), row)


if __name__ == "__main__":
    unittest.main()
