"""Gives the topics of a WinHelp file their context numbers, and its buttons other captions.

Halibut names topics in |CONTEXT, by a hash of the name, and leaves |CTXOMAP empty. A program that asks for a topic by
its context number, HELP_CONTEXT, needs |CTXOMAP; of the ways of asking it is the one that every help viewer knows.

A WinHelp file is a small file system. All numbers are little-endian.

    header     magic 0x00035F3F, offset of the directory, first free block, size of the whole file: 4 x int32
    file       reserved and used length, int32 each, the first with this header; flags, a byte; then the content
    directory  a B+ tree of file names, each ended by a zero byte, with the int32 offset of the file
    |CONTEXT   a B+ tree of hash, int32, and topic offset, int32
    |CTXOMAP   number of entries, uint16, and for each its context number and topic offset, int32 each
    |SYSTEM    magic, minor and major version: uint16; date of making, seconds since 1970, int32; flags, uint16; then
               records to its end: kind and length, uint16 each, and content. One of kind 4 is a macro, ended by a
               zero byte, that the viewer runs when it opens the file: it makes a button
    B+ tree    magic 0x293B, flags, page size: uint16; structure, 16 bytes; 0, splits, root page, -1, pages, levels:
               int16; entries, int32; then the pages. Leaf: unused bytes, entries, previous and next page (-1: none),
               int16 each. Index page: unused bytes, entries, leftmost page.
"""

import struct

MAGIC = 0x00035F3F
TREE_MAGIC = 0x293B
FILE_HEADER = struct.Struct("<iiB")
TREE_HEADER = struct.Struct("<HHH16shhhhhhi")
RECORD_HEADER = struct.Struct("<HH")
SYSTEM_HEADER_SIZE = 12
MACRO = 4
LEAF_HEADER = struct.Struct("<hhhh")


class HelpFileError(Exception):
    pass


def topic_hash(name):
    """The number under which |CONTEXT has a topic. Viewers differ for other characters than these."""
    value = 0
    for letter in name.upper():
        if "A" <= letter <= "Z":
            code = ord(letter) - ord("A") + 17
        elif "1" <= letter <= "9":
            code = ord(letter) - ord("0")
        elif letter in "0._":
            code = {"0": 10, ".": 12, "_": 13}[letter]
        else:
            raise HelpFileError(f"{name}: no letter for a topic name: {letter}")
        value = (value * 43 + code) & 0xFFFFFFFF
    return value - (1 << 32) if value >> 31 else value


class HelpFile:
    def __init__(self, content):
        self.content = bytearray(content)
        magic, directory, _, size = struct.unpack_from("<IiiI", self.content)
        if magic != MAGIC or size != len(self.content):
            raise HelpFileError("not a whole WinHelp file")
        # Name to (where its offset stands in the directory, offset).
        self.files = {}
        for at, end in self._leaves(directory):
            while at < end:
                zero = self.content.index(0, at)
                name = self.content[at:zero].decode("cp1252")
                self.files[name] = (zero + 1, struct.unpack_from("<i", self.content, zero + 1)[0])
                at = zero + 5

    def _leaves(self, offset):
        """The entries of each leaf page of a B+ tree, as ranges of the whole file."""
        tree = offset + FILE_HEADER.size
        magic, _, page_size, _, _, _, page, _, _, levels, _ = TREE_HEADER.unpack_from(self.content, tree)
        if magic != TREE_MAGIC:
            raise HelpFileError(f"no B+ tree at {offset}")
        pages = tree + TREE_HEADER.size
        for _ in range(levels - 1):
            page = struct.unpack_from("<hhh", self.content, pages + page * page_size)[2]
        while page >= 0:
            start = pages + page * page_size
            unused, _, _, next_page = LEAF_HEADER.unpack_from(self.content, start)
            yield start + LEAF_HEADER.size, start + page_size - unused
            page = next_page

    def topics(self):
        """Hash to topic offset."""
        found = {}
        for at, end in self._leaves(self.files["|CONTEXT"][1]):
            for entry in range(at, end - 7, 8):
                name, offset = struct.unpack_from("<ii", self.content, entry)
                found[name] = offset
        return found

    def set_date(self, seconds):
        """With a fixed date the same source gives the same file."""
        struct.pack_into("<i", self.content, self.files["|SYSTEM"][1] + FILE_HEADER.size + 6, seconds)

    def replace_macros(self, texts):
        """In the macros that run when the file is opened. `texts`: old to new; each old one must be there once."""
        start = self.files["|SYSTEM"][1]
        _, used, _ = FILE_HEADER.unpack_from(self.content, start)
        at, end = start + FILE_HEADER.size + SYSTEM_HEADER_SIZE, start + FILE_HEADER.size + used
        body = bytes(self.content[start + FILE_HEADER.size : at])
        left = dict(texts)
        while at < end:
            kind, length = RECORD_HEADER.unpack_from(self.content, at)
            at += RECORD_HEADER.size
            record = bytes(self.content[at : at + length])
            at += length
            for old in [old for old in left if kind == MACRO and old.encode("cp1252") in record]:
                record = record.replace(old.encode("cp1252"), left.pop(old).encode("cp1252"))
            body += RECORD_HEADER.pack(kind, len(record)) + record
        if left:
            raise HelpFileError(f"no macro with {', '.join(left)}")
        self._set_file("|SYSTEM", body)

    def _set_file(self, name, body):
        """Behind all others: where it stood it may be too long for its place."""
        place, _ = self.files[name]
        offset = len(self.content)
        self.content += FILE_HEADER.pack(FILE_HEADER.size + len(body), len(body), 0) + body
        struct.pack_into("<i", self.content, place, offset)
        struct.pack_into("<I", self.content, 12, len(self.content))
        self.files[name] = (place, offset)

    def set_context_numbers(self, topics):
        """`topics`: pairs of topic name and context number."""
        offsets = self.topics()
        rows = b""
        for name, number in sorted(topics, key=lambda topic: topic[1]):
            if topic_hash(name) not in offsets:
                raise HelpFileError(f"the help file has no topic {name}")
            rows += struct.pack("<ii", number, offsets[topic_hash(name)])
        body = struct.pack("<H", len(topics)) + rows
        self._set_file("|CTXOMAP", body)
