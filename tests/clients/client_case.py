"""What the tests of the clients share: the steps that each client takes, and the record of those that it took."""
import json
import os
from pathlib import Path

from sample_case import PROJECT, SampleCase
from table import STEPS

ARCHITECTURE = os.environ["LEJIS_ARCHITECTURE"]
CLIENTS = PROJECT / "build" / "clients"
# Which service a step sends to.
SENDING = {"submit": "submission", "search": "search", "withdraw": "submission"}


class ClientCase(SampleCase):
    def takes_all_steps(self, client, run, without=()):
        """The client said so of each, in order, and the server saw what was sent."""
        said = [line for line in run.output.splitlines() if ": " in line]
        steps = [step for step in STEPS if step not in without]
        self.assertEqual(said, [f"{step}: ok" for step in steps], run.output)
        self.assertEqual(run.code, 0, run.output)
        exchanges = self.control("GET", "exchanges")
        self.assertEqual([exchange["path"].rpartition("/")[2] for exchange in exchanges],
                         [SENDING[step] for step in steps if step in SENDING])
        self.assertTrue(all(exchange["valid"] for exchange in exchanges), exchanges)
        self.assertEqual(self.indexed(), [], "what was submitted has been withdrawn")
        self._record(client, steps)

    @staticmethod
    def _record(client, steps):
        """For the table (table.py)."""
        folder = os.environ.get("LEJIS_CLIENT_RECORDS")
        if folder:
            path = Path(folder) / f"{client}, {ARCHITECTURE}.json".replace("/", "-")
            path.write_text(json.dumps({"client": client, "architecture": ARCHITECTURE, "steps": steps}))
