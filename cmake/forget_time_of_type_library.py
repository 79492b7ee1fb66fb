"""Takes the time of making out of a type library, so that the same interface gives the same file.

    forget_time_of_type_library.py FILE

widl, which is started in UTC, asks for the time twice and writes it in a sentence of fixed width and as a number.
"""
import calendar
import re
import struct
import sys
import time
from pathlib import Path

SENTENCE = re.compile(rb"Created by WIDL version \S+ at (.{24})")
NO_TIME = 0


def without_time(content):
    sentences = list(SENTENCE.finditer(content))
    if len(sentences) != 1:
        raise ValueError(f"the time of making was found in {len(sentences)} sentences")
    written = sentences[0][1]
    second = calendar.timegm(time.strptime(written.decode()))
    # A second may end between the two.
    numbers = [number for number in (struct.pack("<I", second + late) for late in (-1, 0, 1)) if number in content]
    if len(numbers) != 1 or content.count(numbers[0]) != 1:
        raise ValueError(f"the time of making was found as {len(numbers)} numbers")
    return content.replace(written, time.asctime(time.gmtime(NO_TIME)).encode()).replace(
        numbers[0], struct.pack("<I", NO_TIME))


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    path = Path(sys.argv[1])
    path.write_bytes(without_time(path.read_bytes()))
