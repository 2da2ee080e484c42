#!/usr/bin/env python3
"""Writes the case variants in tests/data/case-variants/ from three kept files of tests/data.

    tests/data/make-case-variants.py           # (re)write the variants
    tests/data/make-case-variants.py --check   # exit 1 if a committed variant is not what it writes

The game finds a section or a line of CustomKeys.txt whatever the case of its name, and players'
files are written that way: all in lower case, or (as a popular generator writes them) in lower
case except the sections of hero abilities. Each variant is its original with only names changed:

- a section name: what is between the brackets of a header line ("[AHfs]");
- a line name: what comes before the first "=" of a line inside or outside a section ("Hotkey",
  "Researchtip", and "Tip" of "Tip=|cffffcc00R|resurrectionHotkey=R", whose "Hotkey=R" is tip
  text and stays).

Everything else stays byte for byte: the byte-order mark, the line ends, blanks, "//" comment
lines, and every value (key letters and tip texts). Only ASCII letters change case (Python's
bytes.lower() and bytes.upper()).

For each original NAME.txt it writes three variants:

- NAME.lower.txt: every name in lower case;
- NAME.upper.txt: every name in upper case;
- NAME.mixed.txt: the sections of hero abilities (header and line names) as in the original,
  every other section and every line before the first header in lower case.

A hero ability is told from the catalogue: tools/catalogue/abilities.tsv, the list the
catalogue's tables are made from, names for each ability its sections and its hotkey lines, and
the abilities whose lines include "Researchhotkey" are the ones a hero learns (units' abilities
have no research key in the game's entries). Every section of such an ability is a hero
section, 90 in all; the file's sections the catalogue does not write are not.
"""

import pathlib
import re
import sys

HERE = pathlib.Path(__file__).resolve().parent
ROOT = HERE.parent.parent
OUT = HERE / "case-variants"
ORIGINALS = ("game-default-CustomKeys.txt", "export-grid-layout.txt", "export-hand-set.txt")
BOM = b"\xef\xbb\xbf"
HEADER = re.compile(rb"^([ \t]*\[)(.*)(\][ \t]*)$")


def hero_sections():
    sections = set()
    lines = (ROOT / "tools" / "catalogue" / "abilities.tsv").read_text(encoding="utf-8")
    for row in lines.splitlines():
        if not row or row.startswith("#"):
            continue
        _const, _name, _owner, _key, ids, hotkey_lines, _table = row.split("\t")
        if "Researchhotkey" in hotkey_lines.split():
            sections.update(ids.lower().split())
    return sections


def variant(text, change, keep_section):
    """`text` with every name passed through `change`, except in sections keep_section keeps."""
    bom = BOM if text.startswith(BOM) else b""
    out = []
    keep = False  # lines before the first header belong to no section
    for line in text[len(bom):].split(b"\n"):
        end = b"\r" if line.endswith(b"\r") else b""
        body = line[: len(line) - len(end)]
        header = HEADER.match(body)
        if header:
            keep = keep_section(header.group(2))
            if not keep:
                body = header.group(1) + change(header.group(2)) + header.group(3)
        elif not keep and not body.lstrip(b" \t").startswith(b"//") and b"=" in body:
            name, rest = body.split(b"=", 1)
            body = change(name) + b"=" + rest
        out.append(body + end)
    return bom + b"\n".join(out)


def variants_of(text, heroes):
    return {
        "lower": variant(text, bytes.lower, lambda _id: False),
        "upper": variant(text, bytes.upper, lambda _id: False),
        "mixed": variant(text, bytes.lower, lambda id_: id_.decode("ascii", "replace").lower()
                         in heroes),
    }


def main():
    check = sys.argv[1:] == ["--check"]
    if sys.argv[1:] and not check:
        sys.exit(__doc__)
    heroes = hero_sections()
    stale = []
    if not check:
        OUT.mkdir(exist_ok=True)
    for original in ORIGINALS:
        text = (HERE / original).read_bytes()
        for kind, data in variants_of(text, heroes).items():
            path = OUT / original.replace(".txt", f".{kind}.txt")
            if check:
                if not path.exists() or path.read_bytes() != data:
                    stale.append(path)
            else:
                path.write_bytes(data)
    for path in stale:
        print(f"{path.relative_to(ROOT)} is not what {pathlib.Path(__file__).name} writes",
              file=sys.stderr)
    sys.exit(1 if stale else 0)


if __name__ == "__main__":
    main()
