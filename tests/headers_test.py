#!/usr/bin/env python3
"""Compiles every public header by itself, as C11 and as C++17 with all warnings, and holds the umbrella header against
what there is.

    headers_test.py SOURCE
"""
import os
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor

source = sys.argv[1]
headers = sorted(folder + '/' + file
                 for folder in ('runtime', 'address', 'identifier', 'tolmo')
                 for file in os.listdir(os.path.join(source, folder)) if file.endswith('.h'))
warnings = ['-Wall', '-Wextra', '-Wpedantic', '-Wshadow', '-Wconversion', '-Werror', '-fsyntax-only', '-I' + source]


def compile(job):
    compiler, language, standard, header = job
    # Two inclusions: the guard is there too.
    text = '#include <%s>\n#include <%s>\n' % (header, header)
    run = subprocess.run([compiler, '-x', language, '-std=' + standard, *warnings, '-'], input=text, text=True,
                         capture_output=True)
    return None if run.returncode == 0 else '%s as %s:\n%s' % (header, standard, run.stderr)


jobs = [(compiler, language, standard, header) for header in headers
        for compiler, language, standard in (('cc', 'c', 'c11'), ('c++', 'c++', 'c++17'))
        if not (language == 'c' and header == 'runtime/ko_ref.h')]
with ThreadPoolExecutor() as pool:
    faults = [fault for fault in pool.map(compile, jobs) if fault]

with open(os.path.join(source, 'tolmo', 'tolmo.h'), encoding='utf-8') as f:
    umbrella = [line.split('<')[1].split('>')[0] for line in f if line.startswith('#include <tolmo/')]
own = [header for header in headers if header.startswith('tolmo/') and header != 'tolmo/tolmo.h']
if umbrella != own:
    faults.append('tolmo/tolmo.h: missing %s, too many or out of order %s'
                  % (sorted(set(own) - set(umbrella)), sorted(set(umbrella) - set(own))))
print('\n'.join(faults) if faults else '%d headers compile by themselves' % len(headers))
sys.exit(1 if faults else 0)
