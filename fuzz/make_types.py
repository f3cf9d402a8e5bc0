#!/usr/bin/env python3
"""Writes the tables of the fuzz targets: a row for each skip function, scalar, value type and typed header, with its
getters and mutators.

    make_types.py OUTPUT [REST]

What there is comes from the lists of exported names (tests/exports), which are tested to be what the libraries export,
so that no type is forgotten; how it is called comes from the declarations in the public headers. A function of a shape
that the targets do not know is an error here. REST is a file for the names of types that are listed and not declared.
"""
import os
import re
import sys

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))

# The message model and the parameters have targets that know them; they are no tables.
MODEL = {'Message', 'MessageFragment', 'MessageHeader', 'MessageStreamDecoder'}
PARAMS = {'GenericParam', 'GenericParams'}

# Functions of one object that are no getters.
STANDARD = {'Obj', 'Retain', 'Release', 'ToString', 'CreateFrom', 'Encode', 'Store'}

# Mutators with a shape of their own, and what they are called with.
ARGUMENTS = {'tolmoHeaderContactSetStarForm': ['KO_TRUE', 'KO_FALSE'],
             'tolmoWarningValueSetWarnCode': ['301, KO_TRUE', '302, KO_FALSE']}

# Scalars whose validator is more, or other, than its skip function over the whole string: scalar.cpp has their laws.
OWN_LAW = {'DisplayName', 'Host', 'Organization', 'Subject', 'ReasonText', 'WarnText'}


def fail(text):
    sys.exit('make_types.py: ' + text)


def listed(library):
    with open(os.path.join(ROOT, 'tests', 'exports', library + '.exports'), encoding='utf-8') as f:
        return f.read().split()


def declared(folder):
    """The functions of the public headers: name -> (result, arguments)."""
    functions = {}
    path = os.path.join(ROOT, 'source', folder)
    for file in sorted(os.listdir(path)):
        if file.endswith('.h'):
            with open(os.path.join(path, file), encoding='utf-8') as f:
                text = re.sub(r'/\*.*?\*/|//[^\n]*', '', f.read(), flags=re.S)
            for result, name, arguments in re.findall(r'^KO_API ([\w \*]*?)(\w+)\(([^;]*?)\)', text, flags=re.M):
                types = []
                for argument in re.sub(r'\s+', ' ', arguments).split(','):
                    words = argument.strip()
                    if words != 'void':
                        types.append(re.sub(r'\w+$', '', words).strip().replace(' *', '*'))
                functions[name] = (result.strip().replace(' *', '*'), types)
    return functions


CHARS = ['const KoChar*', 'KoInt']
SKIPS = {tuple(CHARS): 'SKIP', tuple(CHARS + ['KoChar']): 'SKIP_CHAR', tuple(CHARS + CHARS): 'SKIP_CHARS',
         tuple(CHARS + ['KoInt*']): 'SKIP_WORD'}


class Tables:
    def __init__(self):
        self.names = listed('tolmo')
        self.functions = declared('tolmo')
        self.rest = []
        self.rows = []

    def has(self, name):
        return name in self.functions

    def skips(self):
        functions = dict(declared('identifier'))
        functions.update(self.functions)
        for name in [n for n in listed('ulm') + self.names if re.match(r'(ulm|tolmo)___Skip', n)]:
            if name not in functions:
                self.rest.append(name)
            elif tuple(functions[name][1]) not in SKIPS:
                fail('skip function of a shape that is not known: %s( %s )' % (name, ', '.join(functions[name][1])))
            else:
                self.rows.append('%s( %s )' % (SKIPS[tuple(functions[name][1])], name))

    def scalars(self):
        for name in self.names:
            match = re.fullmatch(r'tolmo(\w+)Ok', name)
            if not match or not self.has(name):
                continue
            scalar = match.group(1)
            if self.functions[name][1] == ['KoString'] and 'tolmo___Skip' + scalar in self.names:
                if scalar not in OWN_LAW:
                    self.rows.append('VALIDATOR( %s )' % scalar)
                if 'tolmo%sNormalize' % scalar in self.names:
                    self.rows.append('NORMALIZER( %s )' % scalar)

    def fields(self, type_name, skipped):
        """The rows of the getters and mutators of a type."""
        handle, prefix = 'Tolmo' + type_name, 'tolmo' + type_name
        own = {n[len(prefix):]: self.functions[n] for n in self.names if n.startswith(prefix) and self.has(n)}
        getters = {n: f[0] for n, f in own.items() if f[1] == [handle] and n not in STANDARD}
        mutators = {n: f[1][1:] for n, f in own.items() if f[1][:1] == [handle + '*']}
        done = set()
        for field, result in getters.items():
            set_it = 'SET( %s, %s )' % (type_name, field) if mutators.get('Set' + field) == [result] else 'nullptr'
            del_it = 'DEL( %s, %s )' % (type_name, field) if mutators.get('Del' + field) == [] else 'nullptr'
            done.update(['Set' + field] * (set_it != 'nullptr') + ['Del' + field] * (del_it != 'nullptr'))
            self.rows.append('    FIELD( %s, %s, %s, %s )' % (type_name, field, set_it, del_it))
        for name, arguments in mutators.items():
            if name in done or name in skipped or re.search(r'(Cstr|Wcstr)$', name):
                continue
            for values in ARGUMENTS.get(prefix + name, []):
                self.rows.append('    ACT_WITH( %s, %s, %s )' % (type_name, name, values))
            if prefix + name in ARGUMENTS:
                continue
            if arguments or name == 'RemoveFromMessage':
                fail('mutator of a shape that is not known: %s%s( %s )' % (prefix, name, ', '.join(arguments)))
            self.rows.append('    ACT( %s, %s )' % (type_name, name))

    def values(self):
        for name in self.names:
            match = re.fullmatch(r'tolmo___(\w+)TryDecode', name)
            if not match or 'tolmo%sSort' % match.group(1) not in self.names:
                continue
            value = match.group(1)
            if not self.has(name):
                self.rest.append('Tolmo' + value)
                continue
            self.rows.append('BEGIN_VALUE( %s )' % value)
            if value not in PARAMS:
                self.fields(value, set())
            self.rows.append('END_VALUE( %s )' % value)

    def headers(self):
        with open(os.path.join(ROOT, 'source', 'tolmo', 'tolmo_headers.def'), encoding='utf-8') as f:
            literals = dict(re.findall(r'TOLMO_HEADER\( (\w+), "([^"]*)" \)', f.read()))
        for name in self.names:
            match = re.fullmatch(r'tolmoHeader(\w+)TryDecodeFromMessage', name)
            if not match:
                continue
            header = match.group(1)
            if header not in literals:
                fail('%s is not in tolmo_headers.def' % header)
            if not self.has(name):
                self.rest.append('TolmoHeader' + header)
                continue
            self.rows.append('BEGIN_HEADER( Header%s, "%s" )' % (header, literals[header]))
            self.items(header)
            self.rows.append('END_HEADER( Header%s )' % header)

    def items(self, header):
        """The rows of a header's fields, and of its items if it is a list or a set."""
        prefix = 'tolmoHeader' + header
        words = [n[len(prefix) + 6:] for n in self.names if n.startswith(prefix + 'Append')]
        if words:
            word = words[0]
            decode = '%sTryDecode%sAt' % (prefix, word)
            clears = [n for n in ('%sClear%ss' % (prefix, word), prefix + 'Clear', '%s%ssClear' % (prefix, word))
                      if n in self.names]
            value = self.functions[decode][0][len('Tolmo'):] if decode in self.names else None
            operations = {'Set%sAt', 'Insert%s', 'Prepend%s', 'Append%s', 'Del%sAt', 'Set%ssVector'}
            self.fields('Header' + header, {o % word for o in operations} | {clears[0][len(prefix):]})
            if value:
                self.rows.append('    VALUE_LIST( Header%s, %s, %s, %s )' % (header, word, value, clears[0]))
            else:
                self.rows.append('    TOKEN_LIST( Header%s, %s, %s )' % (header, word, clears[0]))
            return
        words = [n[len(prefix):-2] for n in self.names if n.startswith(prefix) and n.endswith('At') and
                 self.functions[n][1] == ['TolmoHeader' + header, 'KoInt']]
        if words:
            word = words[0]
            self.fields('Header' + header, {'Set' + word, 'Del' + word, 'Clear%ss' % word, 'Set%ssVector' % word})
            self.rows.append('    TOKEN_SET( Header%s, %s )' % (header, word))
            return
        self.fields('Header' + header, set())


def main():
    if len(sys.argv) not in (2, 3):
        sys.stderr.write(__doc__)
        return 2
    tables = Tables()
    tables.skips()
    tables.scalars()
    tables.values()
    tables.headers()
    with open(sys.argv[1], 'w', encoding='utf-8') as f:
        f.write('/* Made by fuzz/make_types.py. */\n' + '\n'.join(tables.rows) + '\n')
    if len(sys.argv) == 3:
        with open(sys.argv[2], 'w', encoding='utf-8') as f:
            f.writelines(name + '\n' for name in tables.rest)
    return 0


if __name__ == '__main__':
    sys.exit(main())
