"""Dialog layouts for resource libraries: files of Qt Designer whose texts have numbers.

A text of a layout is a <string> element with its number as comment. In a library it has the text of
that number; a <string> without a comment stays as it is.
"""

import xml.etree.ElementTree as ElementTree
from pathlib import Path


class LayoutError(Exception):
    """A fault of a layout file."""


def layout_of(file, texts):
    """The bytes of a layout with its texts replaced by those of `texts`, a map by number."""
    try:
        tree = ElementTree.fromstring(Path(file).read_text(encoding="utf-8"))
    except (ElementTree.ParseError, UnicodeDecodeError) as error:
        raise LayoutError(f"{file}: {error}") from error
    for element in tree.iter("string"):
        number = element.attrib.pop("comment", None)
        if number is None:
            continue
        if not number.isdecimal() or int(number) not in texts:
            raise LayoutError(f'{file}: there is no text of the number "{number}"')
        element.text = texts[int(number)]
    return ElementTree.tostring(tree, encoding="utf-8")


def literal(data):
    """A string literal of bytes, broken into lines; three-digit escapes end where they end."""
    escaped = []
    for byte in data:
        character = chr(byte)
        plain = " " <= character <= "~" and character not in '"\\?'
        escaped.append(character if plain else f"\\{byte:03o}")
    lines = [escaped[start:start + 72] for start in range(0, len(escaped), 72)]
    return "\n".join('    "' + "".join(line) + '"' for line in lines)
