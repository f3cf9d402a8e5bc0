#!/usr/bin/env python3
"""Holds the documents against the code: compiles and runs their examples, and finds their excerpts in the sources.

    docs_test.py SOURCE BUILD CC CXX

A comment in front of a fenced block says what is done with it:

    <!-- test -->               a program, or statements of one; a following ```text block is what it prints
    <!-- test: prelude -->      stands in front of the later examples of its language in the document
    <!-- test: abort -->        the same as an example, but the process ends; the ```text block is the line it writes
    <!-- test: excerpt FILE --> the lines stand in the file; a line `...` leaves lines out
    <!-- test: output ARG... --> what the tolmo program prints, run in the source tree; `...` as above

A block of code (c, cpp) without such a comment is a fault, so that none is forgotten.
"""
import glob
import os
import re
import signal
import subprocess
import sys
import tempfile
from concurrent.futures import ThreadPoolExecutor

source, build, cc, cxx = sys.argv[1:]
documents = ['README.md', 'CONTRIBUTING.md'] + sorted(
    os.path.relpath(path, source) for path in glob.glob(os.path.join(source, 'docs', '*.md')))
warnings = ['-Wall', '-Wextra', '-Wpedantic', '-Wshadow', '-Wconversion', '-Werror']
libraries = ['-L' + os.path.join(build, 'source'), '-Wl,-rpath,' + os.path.join(build, 'source'),
             '-ltolmo', '-lulm', '-lwen', '-lko', '-lpthread']
languages = {'c': ([cc, '-std=c11'], '.c'), 'cpp': ([cxx, '-std=c++17'], '.cpp')}
frames = {'c': '#include <tolmo/tolmo.h>\n#include <stdio.h>\n#include <string.h>\n%s\n%s\n'
               'int main( void )\n{\nkoModuleStart( tolmoModule() );\n%s\nkoModuleStop( tolmoModule() );\nreturn 0;\n}\n',
          'cpp': '#include <tolmo/tolmo.h>\n#include <cstdio>\n#include <string>\n#include <thread>\n%s\n%s\n'
                 'int main()\n{\nconst KoModuleScope scope( tolmoModule() );\n%s\n}\n'}


class Block:
    def __init__(self, document, line, language, lines, mark):
        self.place = '%s:%d' % (document, line)
        self.language, self.lines, self.mark = language, lines, mark
        self.text = '\n'.join(lines) + '\n'
        self.prelude = ''
        self.expected = None


def blocks_of(document):
    """The marked blocks of a document, with the texts that belong to them, and what is wrong with the marks."""
    blocks, faults, mark, fence = [], [], None, None
    preludes = {language: '' for language in languages}
    with open(os.path.join(source, document), encoding='utf-8') as f:
        lines = f.read().split('\n')
    for number, line in enumerate(lines, 1):
        if fence is not None:
            if line != '```':
                fence.append(line)
                continue
            block = Block(document, start, language, fence, mark)
            fence, mark = None, None
            if block.mark is None:
                if language == 'text' and blocks and blocks[-1].expected is None and blocks[-1].open:
                    blocks[-1].expected = block.text
                elif language in languages:
                    faults.append('%s: code that is not tested' % block.place)
                if blocks:
                    blocks[-1].open = False
            elif block.mark == 'prelude':
                preludes[language] += block.text
            else:
                if block.mark.startswith('output'):
                    block.expected = block.text
                block.prelude = preludes.get(language, '')
                block.open = True
                blocks.append(block)
        elif line.startswith('```'):
            fence, start, language = [], number, line[3:].strip()
        elif match := re.fullmatch(r'<!-- test(?:: (.*))? -->', line):
            mark = match.group(1) or ''
        elif line.startswith('#') and blocks:
            blocks[-1].open = False
    return blocks, faults


def holds(lines, excerpt):
    """True when the excerpt's runs of lines, between `...`, stand in `lines` one after the other."""
    runs, at = [[]], 0
    for line in excerpt:
        if line.strip() == '...':
            runs.append([])
        else:
            runs[-1].append(line.rstrip())
    for run in runs:
        while run and lines[at:at + len(run)] != run:
            at += 1
            if at + len(run) > len(lines):
                return False
        at += len(run)
    return True


def test(block):
    if block.mark.startswith('excerpt '):
        with open(os.path.join(source, block.mark.split()[1]), encoding='utf-8') as f:
            lines = [line.rstrip() for line in f]
        return None if holds(lines, block.lines) else '%s: is not in %s' % (block.place, block.mark.split()[1])
    if block.mark.startswith('output '):
        run = subprocess.run([os.path.join(build, 'tools', 'tolmo'), *block.mark.split()[1:]], cwd=source,
                             capture_output=True, text=True)
        lines = run.stdout.split('\n')
        return None if holds(lines, block.lines) else '%s: the program prints\n%s' % (block.place, run.stdout)

    command, suffix = languages[block.language]
    text = block.text
    if 'int main' not in text:
        includes = re.findall(r'^#include.*$', text, re.M)
        text = frames[block.language] % ('\n'.join(includes), block.prelude, re.sub(r'^#include.*$', '', text, flags=re.M))
    with tempfile.TemporaryDirectory() as folder:
        file, program = os.path.join(folder, 'example' + suffix), os.path.join(folder, 'example')
        with open(file, 'w', encoding='utf-8') as f:
            f.write(text)
        # A helper of the document that an example has no use for is no fault.
        made = subprocess.run([*command, *warnings, '-Wno-unused-function', '-I' + os.path.join(source, 'source'), file,
                               '-o', program, *libraries], capture_output=True, text=True)
        if made.returncode != 0:
            return '%s: does not compile\n%s' % (block.place, made.stderr)
        run = subprocess.run(['sh', '-c', 'ulimit -c 0; exec "$0"', program], capture_output=True, text=True)
    if block.mark == 'abort':
        written = re.sub(r':\d+:', ':N:', run.stderr)
        if run.returncode != -signal.SIGABRT or written != re.sub(r':\d+:', ':N:', block.expected or ''):
            return '%s: ends with %d and writes\n%s' % (block.place, run.returncode, run.stderr)
        return None
    if run.returncode != 0 or run.stderr:
        return '%s: ends with %d and writes\n%s' % (block.place, run.returncode, run.stderr)
    printed = run.stdout.replace('\r\n', '\n')
    if printed.rstrip('\n') != (block.expected or '').rstrip('\n'):
        return '%s: prints\n%s' % (block.place, printed)
    return None


blocks, faults = [], []
for document in documents:
    found, wrong = blocks_of(document)
    blocks += found
    faults += wrong
with ThreadPoolExecutor(2) as pool:
    faults += [fault for fault in pool.map(test, blocks) if fault]
print('\n'.join(faults) if faults else '%d blocks of %d documents hold' % (len(blocks), len(documents)))
sys.exit(1 if faults or not blocks else 0)
