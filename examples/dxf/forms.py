"""The two forms of a drawing file, text and binary, written group by group.

A group is a pair of code and value. Values are str, float and int by the code; an int where the
code takes text is a handle.
"""

import functools
import struct

#: Stands in a group for a value that each use of a compiled record brings along.
FIELD = object()
#: Code of a field that takes groups already encoded.
ENCODED = -1

TEXT, HANDLE, REAL, INT16, INT32, INT64, FLAG = range(7)

_KINDS_BY_LAST_CODE = [
    (4, TEXT), (5, HANDLE), (9, TEXT), (59, REAL), (79, INT16), (99, INT32), (102, TEXT),
    (105, HANDLE), (149, REAL), (169, INT64), (179, INT16), (239, REAL), (289, INT16),
    (299, FLAG), (319, TEXT), (369, HANDLE), (389, INT16), (399, HANDLE), (409, INT16),
    (419, TEXT), (429, INT32), (439, TEXT), (459, INT32), (469, REAL), (479, TEXT),
    (481, HANDLE), (1004, TEXT), (1005, HANDLE), (1009, TEXT), (1059, REAL), (1070, INT16),
    (1071, INT32),
]


@functools.cache
def kind_of(code):
    return next(kind for last, kind in _KINDS_BY_LAST_CODE if code <= last)


class TextForm:
    """Lines of text: one with the code, one with the value."""

    opening = b""
    _FIELDS = {TEXT: b"%b", HANDLE: b"%X", REAL: b"%a"}

    def __init__(self, encoding):
        self.encoding = encoding

    def group(self, code, value):
        kind = kind_of(code)
        if value is FIELD:
            text = self._FIELDS.get(kind, b"%d")
        elif kind in (TEXT, HANDLE):
            text = b"%X" % value if isinstance(value, int) else value.encode(self.encoding)
        else:
            text = b"%a" % float(value) if kind == REAL else b"%d" % value
        return b"%3d\r\n%b\r\n" % (code, text)

    def groups(self, groups):
        return b"".join(self.group(code, value) for code, value in groups)

    def record(self, groups):
        """A function that makes the groups from a tuple of the fields' values, in their order.

        A text is given encoded already.
        """
        fixed_percents = [
            (code, value.replace("%", "%%") if isinstance(value, str) else value)
            for code, value in groups
        ]
        template = b"".join(
            b"%b" if code == ENCODED else self.group(code, value) for code, value in fixed_percents
        )
        return template.__mod__


class BinaryForm:
    """Codes of two bytes and values by kind, all little-endian."""

    opening = bytes.fromhex("41 75 74 6F 43 41 44 20 42 69 6E 61 72 79 20 44 58 46 0D 0A 1A 00")
    _PACKERS = {
        TEXT: lambda text: text + b"\0",
        HANDLE: lambda handle: b"%X\0" % handle,
        REAL: struct.Struct("<d").pack,
        INT16: struct.Struct("<h").pack,
        INT32: struct.Struct("<i").pack,
        INT64: struct.Struct("<q").pack,
        FLAG: struct.Struct("<B").pack,
    }

    def __init__(self, encoding):
        self.encoding = encoding

    def group(self, code, value):
        if isinstance(value, str):
            packed = value.encode(self.encoding) + b"\0"
        elif kind_of(code) in (TEXT, HANDLE):
            packed = b"%X\0" % value
        else:
            packed = self._PACKERS[kind_of(code)](value)
        return struct.pack("<H", code) + packed

    def groups(self, groups):
        return b"".join(self.group(code, value) for code, value in groups)

    def record(self, groups):
        """See `TextForm.record`."""
        template = b""
        packers = []
        for code, value in groups:
            if code == ENCODED:
                template += b"%b"
                packers.append(bytes)
            elif value is FIELD:
                template += struct.pack("<H", code).replace(b"%", b"%%") + b"%b"
                packers.append(self._PACKERS[kind_of(code)])
            else:
                template += self.group(code, value).replace(b"%", b"%%")
        return lambda values: template % tuple(
            pack(value) for pack, value in zip(packers, values, strict=True)
        )
