#!/usr/bin/env python3
"""The table of all typed headers, docs/header-table.md, from the sources: names from tolmo_headers.def, references from the
program, families from the macros of the units, what is odd from the list below.

    header_table.py --write      writes the document
    header_table.py --check      compares it
"""
import os
import re
import sys

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
DOCUMENT = os.path.join(ROOT, 'docs', 'header-table.md')

# What a caller would not expect. A name that is no header is a fault.
ODDITIES = {
    'Accept': 'decodes empty lines only: its decoder refuses what its own encoder prints',
    'Contact': '`*` on the first line is the star form; an empty list and the star form compare equal',
    'Content-Encoding': 'a header with a line gives null; only one without lines decodes, to an empty list',
    'Cseq': 'leading zeros are read and not written',
    'Date': 'one format, exact in width and case; the weekday has to be right',
    'Diversion': 'words that came in quotes go out without them',
    'History-Info': '`rc`, `mp` and `np` share one slot, which goes out as `rc`',
    'Info-Package': 'a single value: the last line, one package',
    'Privacy': 'its words are separated by semicolons',
    'Rack': 'compares its method by handle: two decodes of one line are not equal',
    'Refer-To': 'a bare address is read a second time, with its semicolons, where the first reading fails',
    'Replaces': 'a header without lines ends the process; parameters of the generic list are printed beside the fields',
    'Retry-After': 'its comment is lost; text that no semicolon opens is ignored',
    'Session-Expires': 'text that no semicolon opens is ignored',
    'Min-Se': 'text that no semicolon opens is ignored',
    'Session-Id': 'text that no semicolon opens is ignored; letters up to z, no capitals',
    'Server': 'nothing may follow a comment that has whitespace behind it',
    'User-Agent': 'nothing may follow a comment that has whitespace behind it',
    'Subscription-State': 'a copy loses its generic parameters, and so does what is changed while it is shared',
    'User-To-User': 'a quoted value is cut as an item that does not decode; data that is no token is not written',
    'Via': 'two that differ in `rport` alone are equal; a name that begins with `rport` fails the item',
    'Warning': 'text behind the quoted text is ignored in an item by itself',
}

FAMILIES = [
    (r'TOLMO_VALUE_LIST|TOLMO_IDENTITY|tolmoHeader\w+TryDecode\w+At\(', 'list of values'),
    (r'TOLMO_TOKEN_SET', 'set of words'),
    (r'TOLMO_TOKEN_LIST|ContentCodingAt\(', 'list of words'),
]


def unit(kind):
    words = re.sub(r'(?<!^)(?=[A-Z])', '_', kind).lower()
    for spelling in (words, words.replace('p_', 'p_', 1)):
        path = os.path.join(ROOT, 'source', 'tolmo', 'tolmo_header_%s.cpp' % spelling)
        if os.path.exists(path):
            with open(path, encoding='utf-8') as f:
                return f.read()
    raise SystemExit('no unit of ' + kind)


def family(text):
    for pattern, name in FAMILIES:
        if re.search(pattern, text):
            return name
    if 'DecodeLastLine' in text or 'Replaces' in text:
        return 'single value'
    raise SystemExit('no family: ' + text[:80])


def table():
    with open(os.path.join(ROOT, 'source', 'tolmo', 'tolmo_headers.def'), encoding='utf-8') as f:
        headers = re.findall(r'^TOLMO_HEADER\( (\w+), "([\w-]+)" \)', f.read(), flags=re.M)
    with open(os.path.join(ROOT, 'tools', 'typed.cpp'), encoding='utf-8') as f:
        references = dict(re.findall(r'\( \w+, "([\w-]+)",[^;]*?"([^"]*)" \)', f.read()))
    rows = []
    for kind, literal in sorted(headers, key=lambda h: h[1].lower()):
        name = 'User-To-User' if literal == 'User-to-User' else literal
        rows.append('| %s | `TolmoHeader%s` | %s | %s | %s |'
                    % (name, kind, family(unit(kind)), references[name], ODDITIES.get(name, '')))
    names = {row.split(' | ')[0][2:] for row in rows}
    unknown = set(ODDITIES) - names
    if unknown or len(rows) != 60:
        raise SystemExit('%d headers; told and not there: %s' % (len(rows), sorted(unknown)))
    return '\n'.join([
        '# All typed headers',
        '',
        'A single value is read from the last line of a header; lists and sets are read from all lines. The grammar of each',
        'stands in its header file and in `source/tolmo/tolmo_skip.h`; what all of them share is in [Headers](headers.md).',
        'Made by `scripts/header_table.py`.',
        '',
        '| Header | Type | Family | Defined in | What is odd |',
        '|---|---|---|---|---|',
        *rows, ''])


def main():
    if sys.argv[1:] == ['--write']:
        with open(DOCUMENT, 'w', encoding='utf-8') as f:
            f.write(table())
        return 0
    if sys.argv[1:] != ['--check']:
        sys.stderr.write(__doc__)
        return 2
    with open(DOCUMENT, encoding='utf-8') as f:
        same = f.read() == table()
    print('docs/header-table.md is current' if same else 'docs/header-table.md is not what the sources say: --write')
    return 0 if same else 1


if __name__ == '__main__':
    sys.exit(main())
