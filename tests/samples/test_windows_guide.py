"""The Windows half of docs/getting-started.md, word for word, but for the name of the server."""
import re
import unittest

from sample_case import BUILD, DONE, PROJECT, SAMPLES, SERVICES, SYSTEM, SampleCase, windows_path

GUIDE = PROJECT / "docs" / "getting-started.md"
STEP = re.compile(r"^```bat\n(.*?)\n```\n(?:\n```text\n(.*?)\n```\n)?", re.MULTILINE | re.DOTALL)
SERVER = "http://lejis-interface:8080/lejis-core-Rev01/services"


class WindowsGuideTest(SampleCase):
    def test_every_command_does_what_the_guide_says(self):
        steps = STEP.findall(GUIDE.read_text(encoding="utf-8"))
        self.assertEqual(len(steps), 4)
        for command, answer in steps:
            with self.subTest(command):
                # As the guide says for the 64-bit library.
                command = command.replace(SERVER, SERVICES).replace("SysWOW64", SYSTEM)
                run = self.wine("cmd", "/c", command, folder=SAMPLES,
                                environment={"WINEPATH": windows_path(BUILD / "bin")})
                self.assertEqual(run.code, DONE, run)
                for line in answer.splitlines():
                    self.assertIn(line, run.output)
        self.assertEqual(sorted(self.indexed()), ["2007-000123", "2024-001873"])


if __name__ == "__main__":
    unittest.main()
