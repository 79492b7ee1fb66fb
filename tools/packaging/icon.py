"""The product's icon: a white L on blue, drawn here in the three sizes that Windows asks for first."""
import struct

SIZES = (16, 32, 48)
BLUE, WHITE, CLEAR = b"\x8a\x4a\x1b\xff", b"\xff\xff\xff\xff", b"\x00\x00\x00\x00"  # blue, green, red, opacity
HEADER_SIZE, ENTRY_SIZE, BITMAP_HEADER_SIZE = 6, 16, 40


def _colour(x, y):
    """The colour of a point, given in sixteenths of the width from the left and of the height from the top."""
    if min(x, 16 - x) + min(y, 16 - y) < 1.5:
        return CLEAR  # the corners
    is_upright = 5 <= x < 7.5 and 3 <= y < 13
    is_foot = 5 <= x < 12 and 10.5 <= y < 13
    return WHITE if is_upright or is_foot else BLUE


def _image(size):
    middles = [(number + 0.5) * 16 / size for number in range(size)]
    # From the bottom row to the top one, then a mask, which the opacity makes superfluous.
    pixels = b"".join(_colour(x, y) for y in reversed(middles) for x in middles)
    mask = bytes((size + 31) // 32 * 4 * size)
    header = struct.pack("<IiiHHIIiiII", BITMAP_HEADER_SIZE, size, 2 * size, 1, 32, 0, len(pixels + mask), 0, 0, 0, 0)
    return header + pixels + mask


def content():
    images = [_image(size) for size in SIZES]
    offset = HEADER_SIZE + ENTRY_SIZE * len(images)
    entries = b""
    for size, image in zip(SIZES, images):
        entries += struct.pack("<BBBBHHII", size, size, 0, 0, 1, 32, len(image), offset)
        offset += len(image)
    return struct.pack("<HHH", 0, 1, len(images)) + entries + b"".join(images)
