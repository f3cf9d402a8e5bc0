#!/usr/bin/env python3
"""Write source/runtime/ko_unicode_tables.inc from the Unicode Character Database 15.0.0.

usage: make_unicode_tables.py [--check] [--ucd FOLDER]

  --check       write nothing; fail when the file is not what would be written
  --ucd FOLDER  where UnicodeData.txt and SpecialCasing.txt are
                (default: where the Debian package unicode-data has them)

Exit status: 0 done, or the same; 1 different; 77 no database of this version in the folder.
"""
import argparse
import pathlib
import sys

VERSION = '15.0.0'
BLOCK_BITS = 7
BLOCK = 1 << BLOCK_BITS
TARGET = pathlib.Path(__file__).resolve().parent.parent / 'source/runtime/ko_unicode_tables.inc'


def rows(path):
    """The fields of each line of a file of the database, without comments."""
    with open(path, encoding='utf-8') as file:
        for line in file:
            line = line.split('#')[0].strip()
            if line:
                yield [field.strip() for field in line.split(';')]


def read(ucd):
    """The simple mappings {character: character} to lower and upper case, and the full ones to upper case {character:
    (characters)}."""
    lower, upper, full = {}, {}, {}
    for fields in rows(ucd / 'UnicodeData.txt'):
        ch = int(fields[0], 16)
        if fields[12]:
            upper[ch] = int(fields[12], 16)
            full[ch] = (upper[ch],)
        if fields[13]:
            lower[ch] = int(fields[13], 16)
    for fields in rows(ucd / 'SpecialCasing.txt'):
        conditional = len(fields) > 5  # code; lower; title; upper; then conditions and an empty field
        ch = int(fields[0], 16)
        mapping = tuple(int(part, 16) for part in fields[3].split())
        if not conditional and mapping != (ch,):
            full[ch] = mapping
    return lower, upper, full


def numbers(values, form):
    """Numbers in lines of a table."""
    lines, line = [], '   '
    for value in values:
        text = ' ' + form(value) + ','
        if len(line) + len(text) > 120:
            lines.append(line)
            line = '   '
        line += text
    return '\n'.join(lines + [line])


def table(type_, name, values, form=str):
    return 'constexpr %s %s[] = {\n%s\n};\n' % (type_, name, numbers(values, form))


def make(ucd):
    lower, upper, full = read(ucd)

    # Simple mappings: character -> block -> kind of character -> what to add.
    kinds, blocks, index = [(0, 0)], [], []
    last = max(*lower, *upper)
    for start in range(0, last + 1, BLOCK):
        block = []
        for ch in range(start, start + BLOCK):
            kind = (lower.get(ch, ch) - ch, upper.get(ch, ch) - ch)
            if kind not in kinds:
                kinds.append(kind)
            block.append(kinds.index(kind))
        if block not in blocks:
            blocks.append(block)
        index.append(blocks.index(block))
    assert len(kinds) <= 256 and len(blocks) <= 256

    # Full mappings: sorted characters, and where the mapping of each begins.
    sources = sorted(full)
    starts, targets = [], []
    for ch in sources:
        starts.append(len(targets))
        targets += full[ch]
    starts.append(len(targets))
    assert sources[:26] == list(range(ord('a'), ord('z') + 1)) and starts[26] == 26

    return ''.join([
        '// Made by scripts/make_unicode_tables.py from the Unicode Character Database %s.\n' % VERSION,
        '// clang-format off\n\n',
        'constexpr int blockBits = %d;\n\n' % BLOCK_BITS,
        '// Simple mappings: the kind of a character is kindBlocks[blockIndex[ch >> blockBits]][ch & mask].\n',
        'constexpr CaseKind caseKinds[] = {\n%s\n};\n' % numbers(kinds, lambda kind: '{ %d, %d }' % kind),
        table('uint8_t', 'blockIndex', index),
        'constexpr uint8_t kindBlocks[][%d] = {\n' % BLOCK,
        ''.join('    {\n%s\n    },\n' % numbers(block, str) for block in blocks),
        '};\n\n',
        '// Full mappings to upper case: those of upperSources[i] begin at upperStarts[i] and end at upperStarts[i + 1].\n',
        '// The letters a to z stand first.\n',
        table('KoChar', 'upperSources', sources, lambda ch: '0x%X' % ch),
        table('uint16_t', 'upperStarts', starts),
        table('KoChar', 'upperTargets', targets, lambda ch: '0x%X' % ch),
    ])


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument('--check', action='store_true')
    parser.add_argument('--ucd', type=pathlib.Path, default=pathlib.Path('/usr/share/unicode'))
    arguments = parser.parse_args()

    special = arguments.ucd / 'SpecialCasing.txt'
    if not special.exists() or 'SpecialCasing-%s.txt' % VERSION not in special.read_text(encoding='utf-8')[:80]:
        print('no Unicode Character Database %s in %s' % (VERSION, arguments.ucd))
        return 77
    text = make(arguments.ucd)
    if not arguments.check:
        TARGET.write_text(text, encoding='utf-8')
    elif TARGET.read_text(encoding='utf-8') != text:
        print('%s is not what the database gives: run %s' % (TARGET.name, sys.argv[0]))
        return 1
    return 0


if __name__ == '__main__':
    sys.exit(main())
