#!/usr/bin/env python3
"""Instructions for each workload and message, by callgrind, against the baseline beside this script.

    instructions.py BUILD [--renew]

Counts do not depend on what else the machine does, so that the bound is narrow: 3 percent more fails. --renew writes the
baseline anew. They do depend on the compiler: the baseline names the one that it holds for, and another one is not
compared.
"""
import os
import subprocess
import sys
import tempfile

BOUND = 1.03
HERE = os.path.dirname(os.path.abspath(__file__))
BASELINE = os.path.join(HERE, 'instructions.tsv')


def compiler(build):
    with open(os.path.join(build, 'CMakeCache.txt'), encoding='utf-8') as f:
        cache = dict(line.strip().split('=', 1) for line in f if '=' in line and not line.startswith(('#', '//')))
    name = next(v for k, v in cache.items() if k.startswith('CMAKE_CXX_COMPILER:'))
    return subprocess.run([name, '--version'], capture_output=True, text=True, check=True).stdout.split('\n')[0]


def measure(build):
    bench = os.path.join(build, 'benchmarks')
    with tempfile.TemporaryDirectory() as folder:
        out = os.path.join(folder, 'inst.tsv')
        subprocess.run([os.path.join(HERE, 'peers', 'inst.sh'), out, os.path.join(bench, 'peers_bench'),
                        os.path.join(HERE, 'peers', 'messages'), os.path.join(bench, 'peer_tolmo.so')], check=True)
        with open(out, encoding='utf-8') as f:
            rows = [line.rstrip('\n').split('\t') for line in f][1:]
    return {(row[1], row[2]): int(row[3]) for row in rows}


def main():
    build = os.path.abspath(sys.argv[1])
    counts = measure(build)
    if not counts:
        sys.exit('nothing was counted')
    with_compiler = compiler(build)
    if '--renew' in sys.argv[2:]:
        with open(BASELINE, 'w', encoding='utf-8') as f:
            f.write('# %s\n' % with_compiler)
            for (work, message), count in sorted(counts.items()):
                f.write('%s\t%s\t%d\n' % (work, message, count))
        print('%d counts written' % len(counts))
        return 0
    with open(BASELINE, encoding='utf-8') as f:
        lines = f.read().splitlines()
    if lines[0] != '# ' + with_compiler:
        print('the baseline is of %s, this build of %s: not compared' % (lines[0][2:], with_compiler))
        return 0
    baseline = {tuple(line.split('\t')[:2]): int(line.split('\t')[2]) for line in lines[1:]}
    faults = sorted(set(baseline) ^ set(counts))
    for key in sorted(set(baseline) & set(counts)):
        ratio = counts[key] / baseline[key]
        mark = 'MORE' if ratio > BOUND else ''
        if mark:
            faults.append(key)
        if key[1] in ('mix', 'varied') or mark:
            print('%-6s %-20s %8d %8d  %5.3f %s' % (*key, baseline[key], counts[key], ratio, mark))
    if faults:
        print('more than %d %%, or not in both: %s' % (round(100 * BOUND - 100), faults))
    return 1 if faults else 0


if __name__ == '__main__':
    sys.exit(main())
