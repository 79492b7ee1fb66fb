"""Counts what test programs did.

    test_report.py record FOLDER ARCH RING KIND PROGRAM EXIT_CODE SECONDS [--filtered]
        reads FOLDER/ARCH-RING-PROGRAM.log (and .xml), prints what failed, adds the counts to FOLDER/rows.tsv
    test_report.py broke-off FOLDER LANE
        counts a lane of the suite that did not come to its end as a failed test
    test_report.py summary FOLDER
        prints a table and, as the last line, "N passed, M failed"; exit code 1 unless all is well

KIND is gtest, script (a VBScript that ends with code 7 after its end marker, which names the processor architecture
that the script saw) or unittest. A program that crashes, hangs or runs no test counts as one failed test. --filtered: a
program that runs no test is no failure.
"""
import re
import sys
import xml.etree.ElementTree as ElementTree
from pathlib import Path
from typing import NamedTuple

TIMED_OUT = (124, 137)
SCRIPT_SUCCEEDED = 7
# What %PROCESSOR_ARCHITECTURE% is in programs of each bitness. The coverage run is that of the 32-bit library.
PROCESSORS = {"x86": "x86", "coverage": "x86", "x64": "AMD64"}
SHOWN_LINES = 60


class Outcome(NamedTuple):
    passed: int
    skipped: int
    failures: list  # (name, output)


def ending(code):
    return "did not end within its time" if code in TIMED_OUT else f"ended with code {code}"


def last_lines(lines):
    return lines[-SHOWN_LINES:]


def output_of(test, log):
    """The lines of one GoogleTest test."""
    start = next((i for i, line in enumerate(log) if line == f"[ RUN      ] {test}"), None)
    if start is None:
        return last_lines(log)
    stop = next((i for i in range(start + 1, len(log)) if log[i].startswith(("[ RUN ", "[-----"))), len(log))
    return log[start:stop][:SHOWN_LINES]


def unfinished_gtest(code, log):
    """The program left no result file: the log tells how far it came."""
    passed = sum(line.startswith("[       OK ]") for line in log)
    failed = [match[1] for line in log if (match := re.match(r"\[  FAILED  \] ([^ ,]+).* \(\d+ ms\)$", line))]
    started = [line[13:] for line in log if line.startswith("[ RUN      ]")]
    finished = {match[1] for line in log if (match := re.match(r"\[ +(?:OK|FAILED|SKIPPED) +\] ([^ ,]+)", line))}
    culprit = next((test for test in reversed(started) if test not in finished), None)
    failures = [(test, output_of(test, log)) for test in failed]
    where = f" in {culprit}" if culprit else ""
    failures.append((f"the program {ending(code)}{where}", output_of(culprit, log) if culprit else last_lines(log)))
    return Outcome(passed, 0, failures)


def read_gtest(code, log, xml):
    try:
        cases = list(ElementTree.parse(xml).iter("testcase"))
    except (FileNotFoundError, ElementTree.ParseError):
        return unfinished_gtest(code, log)
    passed, skipped, failures = 0, 0, []
    for case in cases:
        name = f"{case.get('classname')}.{case.get('name')}"
        if case.find("failure") is not None:
            failures.append((name, output_of(name, log)))
        elif case.get("result") == "completed":
            passed += 1
        elif case.get("status") == "run":
            skipped += 1
    if code and not failures:
        failures.append((f"the program {ending(code)} after its tests", last_lines(log)))
    return Outcome(passed, skipped, failures)


def read_script(code, log, architecture):
    marker = re.fullmatch(r"END OF SCRIPT (\d+) checks on (\w+)", log[-1]) if log else None
    if not marker:
        reason = f"{ending(code)} without its end marker"
    elif not int(marker[1]):
        reason = "made no check"
    elif marker[2] != PROCESSORS[architecture]:
        reason = f"ran on {marker[2]}, not on {PROCESSORS[architecture]}"
    elif code == SCRIPT_SUCCEEDED:
        return Outcome(1, 0, [])
    else:
        reason = ending(code)
    return Outcome(0, 0, [(f"the script {reason}", last_lines(log))])


def read_unittest(code, log):
    text = "\n".join(log)
    ran = re.search(r"^Ran (\d+) tests? in ", text, re.MULTILINE)
    if not ran:
        return Outcome(0, 0, [(f"the program {ending(code)}", last_lines(log))])
    verdict = text[ran.end():]
    skipped = sum(map(int, re.findall(r"(?:skipped|expected failures)=(\d+)", verdict)))
    names = re.findall(r"^(?:FAIL|ERROR|UNEXPECTED SUCCESS): (.*)$", text, re.MULTILINE)
    failures = [(name, []) for name in names]
    if code and not failures:
        failures.append((f"the program {ending(code)}", []))
    if failures:
        failures[-1] = (failures[-1][0], last_lines(log))
    return Outcome(max(0, int(ran[1]) - skipped - len(names)), skipped, failures)


def read(kind, code, stem, architecture):
    log = Path(f"{stem}.log").read_text(encoding="utf-8", errors="replace").splitlines()
    log = [line.rstrip() for line in log if line.strip()]
    if kind == "gtest":
        return read_gtest(code, log, Path(f"{stem}.xml"))
    return read_script(code, log, architecture) if kind == "script" else read_unittest(code, log)


def record(folder, architecture, ring, kind, program, code, seconds, filtered):
    stem = f"{folder}/{architecture}-{ring}-{program}"
    outcome = read(kind, int(code), stem, architecture)
    if not (outcome.passed or outcome.failures or filtered):
        outcome.failures.append(("the program ran no test", []))
    for name, output in outcome.failures:
        print(f"FAILED {architecture} {ring} {program}: {name}")
        for line in output:
            print(f"    {line}")
    add_row(folder, architecture, ring, outcome.passed, len(outcome.failures), outcome.skipped, seconds)


def add_row(folder, *columns):
    with open(f"{folder}/rows.tsv", "a", encoding="utf-8") as rows:
        print(*columns, sep="\t", file=rows)


def broke_off(folder, lane):
    print(f"FAILED {lane}: the lane broke off before its end")
    add_row(folder, "-", f"lane of {lane}", 0, 1, 0, 0)


def summary(folder):
    rows = Path(folder, "rows.tsv")
    counts = {}
    for line in rows.read_text(encoding="utf-8").splitlines() if rows.exists() else []:
        architecture, ring, *numbers = line.split("\t")
        sums = counts.setdefault((architecture, ring), [0, 0, 0, 0])
        counts[architecture, ring] = [a + int(b) for a, b in zip(sums, numbers)]
    print(f"{'':5} {'':18} {'passed':>7} {'failed':>7} {'skipped':>7} {'seconds':>7}")
    # The lanes that write the rows run side by side.
    for (architecture, ring), numbers in sorted(counts.items(), key=lambda item: item[0][0], reverse=True):
        print(f"{architecture:5} {ring:18} " + " ".join(f"{number:7}" for number in numbers))
    passed, failed = (sum(numbers[i] for numbers in counts.values()) for i in (0, 1))
    if not passed and not failed:
        print("no test ran")
    print(f"{passed} passed, {failed} failed")
    return 0 if passed and not failed else 1


def main(arguments):
    if arguments[:1] == ["record"] and len(arguments) in (8, 9):
        return record(*arguments[1:8], filtered=arguments[8:] == ["--filtered"])
    if arguments[:1] == ["broke-off"] and len(arguments) == 3:
        return broke_off(*arguments[1:])
    if arguments[:1] == ["summary"] and len(arguments) == 2:
        return summary(arguments[1])
    print(__doc__, file=sys.stderr)
    return 64


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
