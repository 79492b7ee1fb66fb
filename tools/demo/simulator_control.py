"""Looks into a running simulator and makes it misbehave, for the demo.

    simulator_control.py URL show-index N          a table; code 1 unless it has N incidents
    simulator_control.py URL play-fault JSON       for the next submission
    simulator_control.py URL forget-exchanges
    simulator_control.py URL exchanges-are N       code 1 unless the simulator was called N times since
    simulator_control.py URL wsdl-was-read         code 1 unless one of the calls asked for the WSDL
    simulator_control.py URL all-calls-were-valid  code 1 unless the simulator found every call to be so
"""
import json
import sys
import urllib.request

COLUMNS = {
    "ori": "Agency",
    "id": "Incident",
    "submitted": "Submitted",
    "organization": "Organization",
    "persons": "Persons",
    "vehicles": "Vehicles",
    "property": "Property",
    "caution": "Caution",
}


def call(url, method, path, body=None):
    data = None if body is None else body.encode()
    request = urllib.request.Request(f"{url}/control/{path}", data, method=method)
    with urllib.request.urlopen(request, timeout=20) as answer:
        return json.load(answer)


def cell(value):
    return {True: "yes", False: ""}[value] if isinstance(value, bool) else str(value)


def table(incidents):
    rows = [list(COLUMNS.values())] + [[cell(incident[key]) for key in COLUMNS] for incident in incidents]
    widths = [max(map(len, column)) for column in zip(*rows)]
    lines = ["  ".join(text.ljust(width) for text, width in zip(row, widths)).rstrip() for row in rows]
    return [lines[0], "  ".join("-" * width for width in widths), *lines[1:]]


def show_index(url, expected):
    incidents = call(url, "GET", "index")
    for line in table(incidents):
        print(f"    {line}")
    return len(incidents) == int(expected)


def play_fault(url, fault):
    call(url, "POST", "faults", fault)
    return True


def forget_exchanges(url):
    call(url, "DELETE", "exchanges")
    return True


def exchanges_are(url, expected):
    count = len(call(url, "GET", "exchanges"))
    print(f"    (the LEJIS Interface was called {count} times)")
    return count == int(expected)


def wsdl_was_read(url):
    return any(exchange["path"].lower().endswith("?wsdl") for exchange in call(url, "GET", "exchanges"))


def all_calls_were_valid(url):
    # A call that has nothing to check, such as that for the WSDL, is neither valid nor invalid.
    verdicts = [exchange["valid"] for exchange in call(url, "GET", "exchanges") if exchange["valid"] is not None]
    print(f"    (the LEJIS Interface found {sum(verdicts)} of {len(verdicts)} submissions valid)")
    return bool(verdicts) and all(verdicts)


COMMANDS = {
    "show-index": show_index,
    "play-fault": play_fault,
    "forget-exchanges": forget_exchanges,
    "exchanges-are": exchanges_are,
    "wsdl-was-read": wsdl_was_read,
    "all-calls-were-valid": all_calls_were_valid,
}


def main(url, command, *arguments):
    return 0 if COMMANDS[command](url, *arguments) else 1


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
