"""docs/getting-started-windows.md, word for word, but for the name of the server: what it does in the folder of the
samples. Packages and simulator are installed and started by tests/packages."""
import re
import unittest

from sample_case import BUILD, DONE, PROJECT, SAMPLES, SERVICES, SYSTEM, SampleCase, windows_path

GUIDE = PROJECT / "docs" / "getting-started-windows.md"
STEP = re.compile(r"^```bat\n(.*?)\n```\n(?:\n```text\n(.*?)\n```\n)?", re.MULTILINE | re.DOTALL)
SETTING = re.compile(r"^set (\w+)=(.*)$", re.MULTILINE)
SERVER = "http://localhost:8080/lejis-core-Rev01/services"


class WindowsGuideTest(SampleCase):
    def test_every_command_does_what_the_guide_says(self):
        steps = STEP.findall(GUIDE.read_text(encoding="utf-8"))
        settings = {"WINEPATH": windows_path(BUILD / "bin")}
        answers = 0
        for command, answer in steps:
            with self.subTest(command):
                command = command.replace(SERVER, SERVICES)
                found = dict(SETTING.findall(command))
                settings |= found
                if not found:
                    self.check_step(command, answer, settings)
                    answers += 1
        self.assertEqual((len(steps), answers), (7, 6))
        self.assertEqual(self.indexed(), ["2007-000123"], "the other incident was withdrawn")

    def check_step(self, command, answer, settings):
        # The commands are the guide's for the 64-bit library.
        run = self.wine("cmd", "/c", command.replace("SysWOW64", SYSTEM), folder=SAMPLES, environment=settings)
        self.assertEqual(run.code, DONE, run)
        self.assertTrue(answer)
        for line in answer.splitlines():
            self.assertIn(line, run.output)

    def test_every_command_is_one_of_cmd(self):
        text = GUIDE.read_text(encoding="utf-8")
        self.assertEqual(set(re.findall(r"^```(\w+)$", text, re.MULTILINE)), {"bat", "cmd", "text"})
        for command in re.findall(r"^```(?:bat|cmd)\n(.*?)\n```$", text, re.MULTILINE | re.DOTALL):
            self.assertNotIn(str(PROJECT), command)
            self.assertNotRegex(command, r"(?m)\$|^\s*#|'|\\$")


if __name__ == "__main__":
    unittest.main()
