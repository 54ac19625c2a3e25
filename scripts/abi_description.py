"""Describes the binary interface of one built library: exported symbols, required host functions, virtual tables and
layouts. Runs inside gdb, which reads the layouts from the debug information:

    gdb -batch -nx -x scripts/abi_description.py LIBRARY

A library of another architecture needs gdb-multiarch, and its nm in the environment variable NM.
The text is compared line by line, so it depends neither on addresses nor on where the tree was built.
"""

import os
import re
import subprocess

import gdb

# The base dialog's private class is not part of the interface.
OWN = re.compile(r"\b(Zudunmaf::|Tvx[A-Z])(?!.*::Private\b)")
# The version that exported symbols carry is printed once.
OWN_VERSION = re.compile(r"@+(ZUDUNMAF_QT\d)\b")
TYPES = [
    "DmlAttrDef", "DmlAttrValue", "DmlAttrType", "Zudunmaf::DmlAttrRole", "Zudunmaf::EntityMask",
    "Zudunmaf::DmlAttrLWI", "Zudunmaf::DmlAttrLWI::ItemType_Enum",
    "Zudunmaf::AttrFilterLWI", "Zudunmaf::FeatureAttrLWI",
    "Zudunmaf::AttributesFilterDialog", "Zudunmaf::FeatureAttributesDialog",
    "Zudunmaf::AttrCondition", "Zudunmaf::AttrAssignment", "Zudunmaf::ConditionMatcher",
    "Zudunmaf::RestoreStatus", "Zudunmaf::RestoreResult",
    "Zudunmaf::LineLabels", "Zudunmaf::LineStatus", "Zudunmaf::LineResult", "Zudunmaf::DocumentProblem",
    "TvxDataItem", "TvxAttributesSelectionDialog", "TvxAttributesSelectionDialog::Buttons_Enum",
]  # fmt: skip


def run(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout.splitlines()


def symbols(library, *options):
    """Yields the lines of nm as (value, size, kind, name)."""
    for line in run(os.environ.get("NM", "nm"), "-DCS", *options, library):
        match = re.match(r"([0-9a-f]+)? ?([0-9a-f]+)? *([A-Za-z]) (.+)", OWN_VERSION.sub("", line.strip()))
        if match:
            yield match.groups()


def print_symbols(library):
    print("== exported symbols")
    # The kind is left out: whether a symbol is weak depends on optimisation.
    for name in sorted({name for _, _, _, name in symbols(library, "--defined-only") if OWN.search(name)}):
        print(name)
    print("== host functions")
    for name in sorted({name for _, _, _, name in symbols(library, "--undefined-only")}):
        if re.match(r"(gen|dml)__", name):
            print(name)


def print_vtables(library):
    """Prints the slots in order: a function that moves breaks every derived class of a host."""
    # The compiler merges functions with equal code: then both names are printed.
    named = {}
    for value, _, _, name in symbols(library, "--defined-only"):
        if value:
            named.setdefault(int(value, 16), set()).add(name)
    entries = {}
    for line in run("readelf", "-rCW", library):
        words = line.split(None, 4)
        if len(words) == 5 and words[2] in ("R_X86_64_64", "R_AARCH64_ABS64"):
            entries[int(words[0], 16)] = re.sub(r" \+ 0$", "", OWN_VERSION.sub("", words[4]))
        elif len(words) == 4 and re.match(r"R_[A-Z0-9_]+_RELATIV", words[2]):
            # With -fno-semantic-interposition, the library refers to its functions by address.
            entries[int(words[0], 16)] = " = ".join(sorted(named.get(int(words[3], 16), "-")))
    for value, size, _, name in sorted(symbols(library, "--defined-only"), key=lambda symbol: symbol[3]):
        if name.startswith("vtable for ") and OWN.search(name):
            print(f"== {name}")
            start = int(value, 16)
            for offset in range(0, int(size, 16), 8):
                print(offset, entries.get(start + offset, "-"))


def print_fields(fields, base, indent):
    for field in fields:
        if not hasattr(field, "bitpos"):
            continue  # a static member
        offset = base + field.bitpos // 8
        size = field.type.sizeof
        if field.name and not field.is_base_class:
            print(f"{indent}{offset} {size} {field.type} {field.name}")
        elif field.is_base_class:
            print(f"{indent}{offset} base {field.type}")
        else:
            kind = "union" if field.type.strip_typedefs().code == gdb.TYPE_CODE_UNION else "struct"
            print(f"{indent}{offset} {size} {kind}")
            print_fields(field.type.fields(), offset, indent + "  ")


def print_types():
    for name in TYPES:
        try:
            kind = gdb.lookup_type(name)
        except gdb.error:
            continue  # another library's
        if not kind.fields():
            continue
        print(f"== {name}: {kind.sizeof} bytes")
        if kind.code == gdb.TYPE_CODE_ENUM:
            for field in kind.fields():
                print(field.name, field.enumval)
        else:
            print_fields(kind.fields(), 0, "")


def main():
    library = gdb.current_progspace().filename
    dynamic = run("readelf", "-dW", library)
    print(*(re.sub(r".*\[(.*)\].*", r"soname \1", line) for line in dynamic if "(SONAME)" in line))
    print(*(f"symbol version {name}" for _, _, kind, name in symbols(library, "--defined-only") if kind == "A"))
    print_symbols(library)
    print_vtables(library)
    print_types()


main()
