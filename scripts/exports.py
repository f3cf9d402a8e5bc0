#!/usr/bin/env python3
"""Holds three things against each other: what the public headers declare, what the libraries export, and the lists in
tests/exports.

    exports.py --write              writes the lists anew from the headers
    exports.py BUILD                compares all three, and looks at what libtolmo imports

Exit status: 0 all agree; 1 they do not, with a line for each name; 2 bad usage.
"""
import os
import re
import subprocess
import sys

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
LIBRARIES = {'ko': 'runtime', 'wen': 'address', 'ulm': 'identifier', 'tolmo': 'tolmo'}
LINKER = {'_init', '_fini', '_edata', '_end', '__bss_start'}

# What the compiler itself calls, and what the linker and the C library put into every shared library.
COMPILER = {'memcmp', 'memcpy', 'memmove', 'memset', '__cxa_finalize', '__gmon_start__',
            '_ITM_deregisterTMCloneTable', '_ITM_registerTMCloneTable', '__stack_chk_fail'}


def declared(folder):
    names = set()
    path = os.path.join(ROOT, 'source', folder)
    for file in sorted(os.listdir(path)):
        if file.endswith('.h'):
            with open(os.path.join(path, file), encoding='utf-8') as f:
                text = re.sub(r'/\*.*?\*/|//[^\n]*', '', f.read(), flags=re.S)
            for words in re.findall(r'^(?:extern )?KO_API ([^(;]*)[(;]', text, flags=re.M):
                names.add(re.findall(r'\w+', words)[-1])
    return names


def symbols(library, *options):
    """The dynamic symbols of a library, each with its type."""
    out = subprocess.run(['nm', '-D', '-P', *options, library], check=True, capture_output=True, text=True).stdout
    return {line.split()[0].split('@')[0]: line.split()[1] for line in out.splitlines() if line.strip()}


def listed(name):
    with open(os.path.join(ROOT, 'tests', 'exports', name + '.exports'), encoding='utf-8') as f:
        return set(f.read().split())


def write():
    for name, folder in LIBRARIES.items():
        with open(os.path.join(ROOT, 'tests', 'exports', name + '.exports'), 'w', encoding='utf-8') as f:
            f.writelines(entry + '\n' for entry in sorted(declared(folder)))


def check(build):
    faults = []
    exports = {}
    for name, folder in LIBRARIES.items():
        library = os.path.join(build, 'source', 'lib%s.so' % name)
        exports[name] = {s: t for s, t in symbols(library, '--defined-only').items() if s not in LINKER}
        three = {'declared': declared(folder), 'exported': set(exports[name]), 'listed': listed(name)}
        for entry in sorted(set.union(*three.values())):
            missing = [what for what, names in three.items() if entry not in names]
            if missing:
                faults.append('%s: %s is not %s' % (name, entry, ' and not '.join(missing)))
        print('lib%s: %d names' % (name, len(three['listed'])))
    lower = {s: t for name in ('ko', 'wen', 'ulm') for s, t in exports[name].items()}
    for entry in sorted(symbols(os.path.join(build, 'source', 'libtolmo.so'), '--undefined-only')):
        if entry not in COMPILER and lower.get(entry) != 'T':
            faults.append('tolmo: imports %s, which is no function of the lower libraries' % entry)
    print('\n'.join(faults) if faults else 'declared, exported and listed names agree')
    return 1 if faults else 0


def main():
    if sys.argv[1:] == ['--write']:
        write()
        return 0
    if len(sys.argv) != 2:
        sys.stderr.write(__doc__)
        return 2
    return check(sys.argv[1])


if __name__ == '__main__':
    sys.exit(main())
