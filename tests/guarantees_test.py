#!/usr/bin/env python3
"""Holds docs/guarantees.md against the tests: each that it names exists.

    guarantees_test.py SOURCE [NAME OF A TEST]...
"""
import glob
import os
import re
import subprocess
import sys

source, registered = sys.argv[1], set(sys.argv[2:])
with open(os.path.join(source, 'docs', 'guarantees.md'), encoding='utf-8') as f:
    lines = [line for line in f if line.startswith('| ') and not line.startswith('| Promise')]

tests = set()
for path in glob.glob(os.path.join(source, 'tests', '*', '*_test.cpp')):
    with open(path, encoding='utf-8') as f:
        program = os.path.basename(path).removesuffix('.cpp')
        tests |= {'%s: %s.%s' % (program, suite, name)
                  for suite, name in re.findall(r'^TEST(?:_F|_P)?\( (\w+), (\w+) \)', f.read(), re.M)}
words = set(re.findall(r'^  (\w+)', subprocess.run([os.path.join(source, 'dev'), 'help'], capture_output=True, text=True,
                                                  check=True).stdout, re.M))

faults, named = [], 0
for line in lines:
    proofs = re.findall(r'`([^`]+)`', line.split('|')[2])
    if not proofs:
        faults.append('no proof: ' + line)
    for proof in proofs:
        named += 1
        if proof.startswith('./dev '):
            known = proof.split()[1] in words
        elif '/' in proof:
            known = os.path.exists(os.path.join(source, proof))
        else:
            known = proof in tests or proof in registered
        if not known:
            faults.append('there is no ' + proof)
print('\n'.join(faults) if faults else '%d proofs of %d promises are there' % (named, len(lines)))
sys.exit(1 if faults or not lines else 0)
