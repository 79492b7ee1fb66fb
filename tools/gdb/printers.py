"""Shows gdb the texts of cards. A card holds its texts in one block of memory, so a field alone is a length.

In gdb: source tools/gdb/printers.py
"""
import gdb
import gdb.printing

ENCODINGS = {2: "utf-16-le", 4: "utf-32-le"}


class TextField:
    """Finds the block before the first field, and the characters after those of the fields before this one."""

    def __init__(self, value):
        self.field = value.address

    def to_string(self):
        first, begin = self.field, 0
        while not first["isFirst_"]:
            first -= 1
            begin += int(first["length_"])
        block = first.reinterpret_cast(gdb.lookup_type("platform::TextBlock").pointer()) - 1
        # A unique_ptr is its pointer. In a program for Windows, a gdb of Linux takes "wchar_t" for its own, which has
        # four bytes.
        character = block["characters_"].type.template_argument(0).target()
        characters = block["characters_"].address.reinterpret_cast(character.pointer().pointer()).dereference()
        length = int(self.field["length_"])
        if length == 0:
            return ""
        memory = gdb.selected_inferior().read_memory(int(characters + begin), length * character.sizeof)
        return memory.tobytes().decode(ENCODINGS[character.sizeof], "replace")

    def display_hint(self):
        return "string"


def printers():
    collection = gdb.printing.RegexpCollectionPrettyPrinter("lejis")
    collection.add_printer("TextField", "^platform::TextField$", TextField)
    return collection


gdb.printing.register_pretty_printer(gdb.current_objfile(), printers(), replace=True)
