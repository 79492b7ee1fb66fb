#!/usr/bin/python3
"""Starts the LEJIS Interface simulator, or says what it lacks."""

import sys

_CANNOT_START = "The LEJIS Interface simulator cannot start: "


def _start():
    if sys.version_info < (3, 10):
        sys.exit(_CANNOT_START + "it needs Python 3.10 or later.")
    try:
        import lxml.etree  # noqa: F401
    except ImportError:
        sys.exit(_CANNOT_START + "this Python has no lxml; install it with "
                 "'apt install python3-lxml' on Debian, 'py -3 -m pip install lxml' on Windows.")
    import program
    return program.main()


if __name__ == "__main__":
    sys.exit(_start())
