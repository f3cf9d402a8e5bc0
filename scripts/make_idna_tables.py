#!/usr/bin/env python3
"""Makes source/address/wen_idna_tables.hpp from the Unicode Character Database and the mapping table of UTS #46.

usage: make_idna_tables.py [--check] [--ucd DIRECTORY]

  --check          compare with the file in the repository instead of writing it
  --ucd DIRECTORY  where UnicodeData.txt and its neighbours are (default: /usr/share/unicode, of Debian's unicode-data)

Exit status: 0 written, or the same; 1 not the same; 77 the database is not there or is of another version.
"""
import argparse
import os
import sys

VERSION = '15.0.0'
ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
MAPPING = os.path.join(ROOT, 'scripts', 'data', 'idna-mapping-%s.txt' % VERSION)
OUTPUT = os.path.join(ROOT, 'source', 'address', 'wen_idna_tables.hpp')
CODE_POINTS = 0x110000
BLOCK_BITS = 7

# The statuses under UseSTD3ASCIIRules and non-transitional processing: deviations are valid.
STATUS = {
    'valid': 'Valid',
    'deviation': 'Valid',
    'ignored': 'Ignored',
    'mapped': 'Mapped',
    'disallowed': 'Disallowed',
    'disallowed_STD3_valid': 'Disallowed',
    'disallowed_STD3_mapped': 'Disallowed',
}


def rows(path):
    """The rows of a file of the database: the range of code points, then the other fields."""
    with open(path, encoding='utf-8') as lines:
        for line in lines:
            fields = [field.strip() for field in line.split('#')[0].split(';')]
            if fields != ['']:
                first, _, last = fields[0].partition('..')
                yield range(int(first, 16), int(last or first, 16) + 1), fields[1:]


def values(path):
    """A dictionary from code point to the first field."""
    return {ch: fields[0] for chs, fields in rows(path) for ch in chs}


def database(ucd):
    """The properties of every code point, the mappings, and the canonical decompositions that are used."""
    def extracted(name):
        return values(os.path.join(ucd, 'extracted', name))

    status, mappings = {}, {}
    for chs, fields in rows(MAPPING):
        for ch in chs:
            status[ch] = STATUS[fields[0]]
            if fields[0] == 'mapped':
                mappings[ch] = [int(target, 16) for target in fields[1].split()]
    assert len(status) == CODE_POINTS

    category = extracted('DerivedGeneralCategory.txt')
    combining = extracted('DerivedCombiningClass.txt')
    bidi = extracted('DerivedBidiClass.txt')
    joining = extracted('DerivedJoiningType.txt')
    unquick = set()
    for chs, fields in rows(os.path.join(ucd, 'DerivedNormalizationProps.txt')):
        if fields[0] == 'NFC_QC':
            unquick.update(chs)

    properties = []
    for ch in range(CODE_POINTS):
        if status[ch] == 'Valid':
            properties.append(('Valid', int(combining.get(ch, '0')), bidi.get(ch, 'L'), joining.get(ch, 'U'),
                               'true' if category[ch][0] == 'M' else 'false', 'false' if ch in unquick else 'true'))
        else:  # what is not valid has no properties that anybody asks for
            properties.append((status[ch], 0, 'L', 'U', 'false', 'true'))

    decompositions = {}
    for chs, fields in rows(os.path.join(ucd, 'UnicodeData.txt')):
        if fields[4] and '<' not in fields[4] and status[chs[0]] == 'Valid':
            decompositions[chs[0]] = tuple(int(part, 16) for part in fields[4].split())
    return properties, mappings, decompositions


def check_assumptions(properties, mappings, decompositions):
    """What the code that reads the tables relies on."""
    def valid(ch):
        return properties[ch][0] == 'Valid'

    def decompose(ch):
        return [last for part in decompositions.get(ch, ()) for last in decompose(part)] or [ch]

    # A mapping gives valid characters, and is applied once.
    assert all(valid(ch) for targets in mappings.values() for ch in targets)
    assert max(map(len, mappings.values())) <= 6
    # Each valid composite is a pair of valid characters and is composed again: normalisation stays among the valid.
    assert all(len(parts) == 2 and all(map(valid, parts)) for parts in decompositions.values())
    assert len(set(decompositions.values())) == len(decompositions)
    assert not any(second in decompositions for _, second in decompositions.values())
    assert max(len(decompose(ch)) for ch in decompositions) <= 4


def trie(properties):
    """Two stages of bytes, and the distinct records that the second leads to."""
    records = sorted(set(properties))
    number = {record: i for i, record in enumerate(records)}
    blocks, stage1, stage2 = {}, [], []
    for first in range(0, CODE_POINTS, 1 << BLOCK_BITS):
        block = bytes(number[record] for record in properties[first:first + (1 << BLOCK_BITS)])
        if block not in blocks:
            blocks[block] = len(blocks)
            stage2 += block
        stage1.append(blocks[block])
    assert len(blocks) <= 256 and len(records) <= 256
    return records, stage1, stage2


def mapping_table(mappings):
    """Where the mapping changes: the first code point, the length of its target, and the distance to a single target
    or the place of a longer one. It holds for every mapped code point up to the next row."""
    table = []
    pool = []
    for ch, targets in sorted(mappings.items()):
        if len(targets) == 1:
            row = (1, targets[0] - ch)
        else:
            place = next((i for i in range(len(pool)) if pool[i:i + len(targets)] == targets), None)
            if place is None:
                place = len(pool)
                pool += targets
            row = (len(targets), place)
        if not table or table[-1][1:] != row:
            table.append((ch,) + row)
    return table, pool


def lines(items, width=116):
    """Items with commas between them, in lines."""
    out, line = [], ''
    for item in items:
        if len(line) + len(item) + 2 > width:
            out.append(line)
            line = ''
        line += (' ' if line else '') + item + ','
    return ''.join('    %s\n' % text for text in out + [line])


def array(comment, declaration, items):
    return '/** %s */\ninline constexpr %s[] = {\n%s};\n\n' % (comment, declaration, lines(items))


def text(ucd):
    properties, mappings, decompositions = database(ucd)
    check_assumptions(properties, mappings, decompositions)
    records, stage1, stage2 = trie(properties)
    table, pool = mapping_table(mappings)
    composites = sorted((parts, ch) for ch, parts in decompositions.items())
    order = sorted(range(len(composites)), key=lambda i: composites[i][1])
    out = '''/* Made by scripts/make_idna_tables.py from Unicode %s and UTS #46 revision 29. Do not edit. */
// clang-format off
#ifndef WEN_IDNA_TABLES_HPP
#define WEN_IDNA_TABLES_HPP

#include <address/wen_unicode.hpp>

namespace wen::tables {

inline constexpr unsigned blockBits = %d;

''' % (VERSION, BLOCK_BITS)
    out += array('The distinct properties of code points.', 'Properties properties',
                 ['{ Status::%s, %d, Bidi::%s, Joining::%s, %s, %s }' % record for record in records])
    out += array('The number of the block of 2^blockBits code points.', 'uint8_t blocks', map(str, stage1))
    out += array('The blocks: indexes of properties.', 'uint8_t blockProperties', map(str, stage2))
    out += array('The mappings, by first code point.', 'Mapping mappings',
                 ['{ 0x%X, %d, %d }' % row for row in table])
    out += array('What mappings of several characters lead to.', 'KoChar mappingTargets',
                 ['0x%X' % unit for unit in pool])
    out += array('The canonical composites that are valid, by their parts.', 'Composite composites',
                 ['{ 0x%X, 0x%X, 0x%X }' % (first, second, ch) for (first, second), ch in composites])
    out += array('The same by composite: indexes of composites.', 'uint16_t decompositions', map(str, order))
    return out + '} // namespace wen::tables\n\n#endif\n'


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument('--check', action='store_true')
    parser.add_argument('--ucd', default='/usr/share/unicode')
    arguments = parser.parse_args()
    try:
        with open(os.path.join(arguments.ucd, 'DerivedAge.txt'), encoding='utf-8') as f:
            found = f.readline().strip()
    except OSError as error:
        found = str(error)
    if found != '# DerivedAge-%s.txt' % VERSION:
        sys.stderr.write('make_idna_tables: no Unicode %s in %s (%s)\n' % (VERSION, arguments.ucd, found))
        return 77
    made = text(arguments.ucd)
    if not arguments.check:
        with open(OUTPUT, 'w', encoding='utf-8') as f:
            f.write(made)
        return 0
    with open(OUTPUT, encoding='utf-8') as f:
        same = f.read() == made
    if not same:
        sys.stderr.write('make_idna_tables: %s is not what the database gives; run the script\n' % OUTPUT)
    return 0 if same else 1


if __name__ == '__main__':
    sys.exit(main())
