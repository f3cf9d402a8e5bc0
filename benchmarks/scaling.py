#!/usr/bin/env python3
"""Counts the instructions of hostile shapes at two sizes, and fails where twice the size takes more than 2.3 times as many.

    scaling.py BUILD [--all] [PATTERN]

Prints the shapes that are worst, with --all every one.
"""
import glob
import os
import re
import subprocess
import sys
import tempfile

LIMIT = 2.3
# Shapes with fewer instructions than this at the larger size do not depend on the size (a type that refuses at once).
LEAST = 100_000
SHAPES = 30

build, arguments = sys.argv[1], sys.argv[2:]
show_all = '--all' in arguments
pattern = [argument for argument in arguments if argument != '--all']

with tempfile.TemporaryDirectory() as folder:
    out = os.path.join(folder, 'out')
    run = subprocess.run(['valgrind', '--tool=callgrind', '--instr-atstart=no', '--callgrind-out-file=' + out,
                          os.path.join(build, 'benchmarks', 'scaling'), *pattern], capture_output=True, text=True)
    if run.returncode != 0:
        sys.exit('%s\nscaling ended with %d' % (run.stderr, run.returncode))
    counts = {}
    for name in glob.glob(out + '.*'):
        with open(name, encoding='utf-8') as f:
            text = f.read()
        label = re.search(r'^desc: Trigger: Client Request: (.*) = (\d+)$', text, re.M)
        total = re.search(r'^totals: (\d+)', text, re.M)
        if label:
            counts.setdefault(label[1], {})[int(label[2])] = int(total[1])

rows = []
for name, sizes in counts.items():
    small, large = sorted(sizes)
    if sizes[large] >= LEAST:
        rows.append((sizes[large] / max(sizes[small], 1), name, large, sizes[large]))
rows.sort(reverse=True)
failed = [row for row in rows if row[0] > LIMIT]
for growth, name, size, count in rows if show_all else rows[:max(12, len(failed))]:
    print('%6.3f  %-62s %7d  %12s' % (growth, name, size, format(count, ',')))
print('%d of %d pieces of work depend on the size; %d of them grow by more than %.1f times' %
      (len(rows), len(counts), len(failed), LIMIT))
if not pattern and len(rows) < SHAPES:
    sys.exit('too few pieces of work')
sys.exit(1 if failed else 0)
