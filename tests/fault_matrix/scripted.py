"""The rows that the tests of the services play with scripted requests."""

from __future__ import annotations

import subprocess
import xml.etree.ElementTree as ElementTree
from pathlib import Path

from fault_client import unescaped
from windows_program import RUNNER

_TIME_LIMIT_SECONDS = 120


def outcomes(program: str, folder: Path) -> dict[tuple[str, str], str]:
    """What the tests have recorded, by their rows and operations. Nothing of a test that fails."""
    results = folder / "scripted.xml"
    windows_path = "Z:" + str(results).replace("/", "\\")
    subprocess.run([RUNNER, program, "--gtest_filter=*ScriptedFault*", f"--gtest_output=xml:{windows_path}"],
                   stdin=subprocess.DEVNULL, capture_output=True, timeout=_TIME_LIMIT_SECONDS, check=False)
    return {(case.get("name").partition("/")[2], each.get("name")): unescaped(each.get("value"))
            for case in ElementTree.parse(results).iter("testcase") if case.find("failure") is None
            for each in case.iter("property")}
