#!/usr/bin/env python3
"""Writes the ability tables of src/core/catalogue/tables/ and, for the tests, the named record
accessors of tests/support/catalogue/.

Run once by hand, then review and commit what it wrote: the program compiles the committed
tables and never reads the game's file.

    tools/catalogue/generate_tables.py tests/data/game-default-CustomKeys.txt

abilities.tsv beside this script lists the 160 abilities in catalogue order. Each regular block
is the game's own entry for the ability's sections: the game's comment line of each section
(trailing blanks dropped), the header, the tip lines and the listed hotkey lines, in the game's
order. The few abilities whose catalogue text differs from the game's are handled by name below.
"""

import pathlib
import re
import sys

HERE = pathlib.Path(__file__).resolve().parent
ROOT = HERE.parent.parent
OUT = ROOT / "src" / "core" / "catalogue"
# The records by name serve only the tests.
TEST_OUT = ROOT / "tests" / "support" / "catalogue"
MARK = "\u2714\ufe0e"

HOTKEY_KEYS = ("Hotkey", "Unhotkey", "Researchhotkey")
TIP_KEYS = ("Tip", "Untip", "Researchtip")

# Blocks that open with an empty line instead of a comment.
EMPTY_LINE_BLOCKS = {
    "repair_", "calltoArms_", "renew_", "phase_shift_", "mana_flare_", "root_", "gold_mine_",
    "replenish_", "vengeance_", "spiritvengeance_", "burrowscarab_", "blinkbear_", "cargoload_",
    "cargounload_",
}

TABLES = [
    ("general", "GeneralCommandTable", "generalCommandEntries",
     "The six general unit commands and Repair, which belong to no owner."),
    ("human", "HumanTable", "humanEntries", "Abilities of the human units and heroes."),
    ("orc", "OrcTable", "orcEntries", "Abilities of the orc units and heroes."),
    ("nightelf", "NightElfTable", "nightElfEntries",
     "Abilities of the night elf units, buildings and heroes."),
    ("undead", "UndeadTable", "undeadEntries", "Abilities of the undead units and heroes."),
    ("neutral", "NeutralHeroTable", "neutralHeroEntries",
     "Abilities of the tavern heroes from the Sea Witch to the Dark Ranger."),
    ("tinker", "TinkerAlchemistFirelordTable", "tinkerAlchemistFirelordEntries",
     "Abilities of the Tinker, the Alchemist and the Firelord."),
    ("goblin", "GoblinUnitTable", "goblinUnitEntries",
     "Abilities of the goblin units: the Zeppelin and the Clockwerk Goblin."),
]

# Why an irregular record is kept as it is, written above it in its table.
NOTES = {
    "calltoArms_": "Both sections switch off with W, not C; a chosen key replaces all four.",
    "resurrection_": "The game's own entry joins the tip and the hotkey on one line.",
    "berserk_": "Its template is Resurrection's: a key chosen for Berserk writes that entry.",
    "ensnare_": "The default key shown is T although the game's entry casts with E.",
    "mirror_image_": "Its texts are Wind Walk's, while its default key is R.",
    "frostarrows_": "The switch-off tip and the hotkey stand on one line.",
    "blackarrow_": "The switch-off tip and the hotkey stand on one line.",
    "robogoblin_": "The revert key T stays T in the template; the [ANg2] tip has no hyphen.",
    "summonlavaspawn_": "The comment keeps the game's spelling.",
    "lifedrain_": "The comment keeps the game's two blanks.",
    "cargoload_": "The default key shown is V although the game's entry loads with L.",
    "kaboom_": "One comment for the three levels: three slashes in the default, two in the "
               "template.",
    "water_elemental_": "The tip line ends in a blank, as in the game's file.",
    "repair_": "The second switch-off tip lacks its closing colour code, as in the game's file.",
}


def read_game_sections(path):
    text = path.read_bytes().decode("utf-8-sig").replace("\r\n", "\n")
    lines = text.split("\n")
    sections = {}
    for i, line in enumerate(lines):
        stripped = line.rstrip(" \t")
        m = re.fullmatch(r"\[(\w+)\]", stripped)
        if not m:
            continue
        body = []
        j = i + 1
        while j < len(lines) and lines[j].strip() and not lines[j].startswith(("[", "//")):
            body.append(lines[j])
            j += 1
        comment = lines[i - 1].rstrip(" \t") if lines[i - 1].startswith("//") else None
        sections[m.group(1)] = (comment, stripped, body)
    return sections


def read_rows():
    rows = []
    for line in (HERE / "abilities.tsv").read_text(encoding="utf-8").splitlines():
        if not line or line.startswith("#"):
            continue
        const, name, owner, key, secs, hotkeys, table = line.split("\t")
        rows.append(dict(const=const, name=name, owner=None if owner == "-" else owner, key=key,
                         sections=secs.split(), hotkeys=hotkeys.split(), table=table))
    return rows


def mark_hotkeys(block):
    out = []
    for line in block.split("\n"):
        key, eq, _ = line.partition("=")
        out.append(key + "=" + MARK if eq and key in HOTKEY_KEYS else line)
    return "\n".join(out)


def game_block(row, sections):
    lines = [] if row["const"] not in EMPTY_LINE_BLOCKS else [""]
    for sid in row["sections"]:
        comment, header, body = sections[sid]
        if row["const"] not in EMPTY_LINE_BLOCKS:
            lines.append(comment)
        lines.append(header)
        for line in body:
            key = line.partition("=")[0]
            if key in TIP_KEYS or key in row["hotkeys"]:
                lines.append(line)
            elif key == "Hotkey" and row["const"] in ("frostarrows_", "blackarrow_"):
                lines[-1] += line  # the catalogue joins it onto the switch-off tip
    return "\n".join(lines)


def texts(row, sections):
    """("default", explicit "for edit" or None) of one row."""
    const = row["const"]
    default = game_block(row, sections)
    for_edit = None
    if const == "resurrection_":
        for_edit = mark_hotkeys(default).replace("resurrectionHotkey=R", "resurrectionHotkey=" + MARK)
    elif const in ("frostarrows_", "blackarrow_"):
        marked = mark_hotkeys(default)
        for_edit = re.sub(r'"Hotkey=\w$', '"Hotkey=' + MARK, marked, flags=re.M)
    elif const == "robogoblin_":
        tip = 'Tip="Ro|cffffcc00b|ro-Goblin"'
        head = "[ANg2]\n" + tip
        assert head in default
        default = default.replace(head, '[ANg2]\nTip="Ro|cffffcc00b|roGoblin"')
        for_edit = "\n".join(line if line.startswith("Unhotkey=") else mark_hotkeys(line)
                             for line in default.split("\n"))
    elif const == "kaboom_":
        body = [line for line in default.split("\n") if not line.startswith("//")]
        default = "\n".join(["///Kaboom"] + body)
        for_edit = "\n".join(["//Kaboom"] + mark_hotkeys("\n".join(body)).split("\n"))
    return default, for_edit


def cpp_string(text):
    assert ')"' not in text
    return 'R"(' + text + ')"'


def entry_source(row, default, for_edit):
    out = []
    if row["const"] in NOTES:
        out.append("    // " + NOTES[row["const"]])
    out.append("    {")
    out.append(f'        .name = "{row["name"]}",')
    if row["owner"] is not None:
        out.append(f'        .parent = "{row["owner"]}",')
    out.append(f'        .defHotkey = "{row["key"]}",')
    if row["const"] in ("wind_walk_", "mirror_image_"):
        out.append("        .defaultText = windWalkBlock,")
    elif row["const"] == "resurrection_":
        out.append("        .defaultText = " + cpp_string(default) + ",")
        out.append("        .forEdit = resurrectionForEdit,")
    else:
        out.append("        .defaultText = " + cpp_string(default) + ",")
    if row["const"] == "berserk_":
        out.append("        .forEdit = resurrectionForEdit,")
    elif for_edit is not None and row["const"] != "resurrection_":
        out.append("        .forEdit = " + cpp_string(for_edit) + ",")
    out.append("    },")
    return "\n".join(out)


def write_table(table, rows, sections):
    key, file_name, function, about = table
    mine = [r for r in rows if r["table"] == key]
    body = []
    for row in mine:
        default, for_edit = texts(row, sections)
        if row["const"] == "wind_walk_":
            body.insert(0, "constexpr std::string_view windWalkBlock = " + cpp_string(default)
                        + ";\n")
        body.append(entry_source(row, default, for_edit))
    first = body[0] if body[0].startswith("constexpr") else ""
    entries = [b for b in body if not b.startswith("constexpr")]
    includes = '#include "core/catalogue/tables/AbilityTables.h"\n'
    if any(r["const"] in ("resurrection_", "berserk_") for r in mine):
        includes += '#include "core/catalogue/tables/SharedTexts.h"\n'
    text = f"""// {about}
// Each block is the game's own default entry for the ability's sections, in catalogue order.
{includes}
namespace tarnic::catalogue {{
namespace {{

{first}
constexpr AbilityEntry entries[] = {{
{chr(10).join(entries)}
}};

}} // namespace

std::span<const AbilityEntry> {function}() {{
    return entries;
}}

}} // namespace tarnic::catalogue
"""
    (OUT / "tables" / (file_name + ".cpp")).write_text(text.replace("\n\n\n", "\n\n"),
                                                       encoding="utf-8")


def write_shared(rows, sections):
    row = next(r for r in rows if r["const"] == "resurrection_")
    _, for_edit = texts(row, sections)
    text = f"""#pragma once

#include <string_view>

namespace tarnic::catalogue {{

// Resurrection's template, which Berserk's record shares.
inline constexpr std::string_view resurrectionForEdit = {cpp_string(for_edit)};

}} // namespace tarnic::catalogue
"""
    (OUT / "tables" / "SharedTexts.h").write_text(text, encoding="utf-8")


def write_accessors(rows):
    decls = "\n".join(f"const AbilityRecord& {r['const']}();" for r in rows)
    defs = "\n".join(f"const AbilityRecord& {r['const']}() {{\n    return all_data()[{i}];\n}}"
                     for i, r in enumerate(rows))
    names = "\n".join(f"        {{\"{r['const']}\", &{r['const']}}}," for r in rows)
    TEST_OUT.mkdir(parents=True, exist_ok=True)
    (TEST_OUT / "CatalogueRecords.h").write_text(f"""#pragma once

#include "core/catalogue/Catalogue.h"

#include <span>
#include <string_view>

namespace tarnic {{

// Every record of the catalogue by its own name, in catalogue order, for the tests. Each is the
// element of all_data() at its row, so it is built on first use like the rest of the catalogue.
{decls}

// A record's name beside its accessor.
struct NamedRecord {{
    std::string_view name;
    const AbilityRecord& (*record)();
}};

// All 160, in catalogue order.
std::span<const NamedRecord> namedRecords();

}} // namespace tarnic
""", encoding="utf-8")
    (TEST_OUT / "CatalogueRecords.cpp").write_text(f"""#include "support/catalogue/CatalogueRecords.h"

#include <array>

namespace tarnic {{

{defs}

std::span<const NamedRecord> namedRecords() {{
    static constexpr std::array<NamedRecord, {len(rows)}> records = {{{{
{names}
    }}}};
    return records;
}}

}} // namespace tarnic
""", encoding="utf-8")


def main():
    if len(sys.argv) != 2:
        sys.exit("usage: generate_tables.py <game default CustomKeys.txt>")
    sections = read_game_sections(pathlib.Path(sys.argv[1]))
    rows = read_rows()
    assert len(rows) == 160
    (OUT / "tables").mkdir(exist_ok=True)
    for table in TABLES:
        write_table(table, rows, sections)
    write_shared(rows, sections)
    write_accessors(rows)


if __name__ == "__main__":
    main()
