#!/usr/bin/env python3
"""Looks for recursion in the libraries: cycles in the graph of calls, read from their disassembly.

    recursion.py BUILD

What a peer nests must not nest calls, so that no bytes can exhaust the stack. Direct calls and jumps are followed, into
the other libraries too. A function that calls through a pointer is taken to call every function of its library whose
address is taken in code and, where its own name tells the parameters of what it calls, which has such parameters. Left
out are the calls through the records of sorts (DISPATCHERS): to free, compare and print
what an object holds, and so on inwards, is as deep as objects are nested. What decoders make is nested as its types
are, whatever the bytes; only callers put containers into containers.

EXPECTED names the cycles that there are, with the reason. Another one is a fault, and so is one that is no more.
"""
import os
import re
import subprocess
import sys

build = sys.argv[1]
LIBRARIES = ['libko.so', 'libwen.so', 'libulm.so', 'libtolmo.so']
DISPATCHERS = {'ko___ObjFree', 'koObjCompare', 'koObjToString'}
EXPECTED = {
    # Modules that are started as a module needs them: as deep as the libraries depend on each other.
    frozenset(['koModuleStart']),
    frozenset(['koModuleStop', 'StopAll']),
}


def may_call(caller, called):
    """False where the mangled names tell that a function calls others than this one through its pointers."""
    kinds = set(re.findall(r'PF[a-z](\w+?)E', caller))  # pointers to functions with a basic result: their parameters
    return len(kinds) != 1 or not called.startswith('_Z') or called.endswith('E' + kinds.pop())


def read(library, calls, names, exported):
    """Adds the functions of a library, each known by its library and address, to the graph."""
    text = subprocess.run(['objdump', '-d', '--no-show-raw-insn', os.path.join(build, 'source', library)],
                          capture_output=True, text=True, check=True).stdout
    taken, through_pointer, here = set(), set(), None
    for line in text.split('\n'):
        if match := re.fullmatch(r'([0-9a-f]+) <(.+)>:', line):
            here = (library, int(match[1], 16))
            names[here] = match[2]
            calls[here] = set()
            continue
        if not here or names[here].endswith('@plt'):
            continue
        if match := re.search(r'\t(?:bnd |notrack )?(call|j[a-z]+) +([0-9a-f]+) <([^>]+)>', line):
            # A jump to the middle of a function stays inside it, or comes back from a part that was split off; a jump
            # to its own beginning is a loop.
            target = (library, int(match[2], 16))
            if match[3].endswith('@plt'):
                calls[here].add(match[3].removesuffix('@plt'))
            elif '+0x' not in match[3] and not (match[1] != 'call' and target == here):
                calls[here].add(target)
        elif match := re.search(r'\t(?:bnd |notrack )?(?:call|jmp) +\*.*# [0-9a-f]+ <([^>@+]+)@', line):
            calls[here].add(match[1])  # another library's function, through its slot in the global offset table
        elif re.search(r'\t(?:bnd |notrack )?call +\*', line):
            through_pointer.add(here)
        elif match := re.search(r'\tlea .*# ([0-9a-f]+) <([^>+]+)>', line):
            taken.add((library, int(match[1], 16)))
    for function in [f for f in calls if f[0] == library]:
        if not names[function].endswith('@plt'):
            exported.setdefault(names[function], function)
        if function in through_pointer and names[function] not in DISPATCHERS:
            calls[function] |= {f for f in taken if f in calls and may_call(names[function], names[f])}


def graph():
    calls, names, exported = {}, {}, {}
    for library in LIBRARIES:
        read(library, calls, names, exported)
    for function in calls:
        calls[function] = {exported.get(target) if isinstance(target, str) else target for target in calls[function]}
        calls[function] = {target for target in calls[function] if target in calls}
    return calls, names


def cycles(calls):
    """The sets of functions that call each other (Tarjan 1972, itself without recursion)."""
    number, low, stack, waiting, found = {}, {}, [], set(), []
    for root in calls:
        if root in number:
            continue
        work = []

        def enter(node):
            number[node] = low[node] = len(number)
            stack.append(node)
            waiting.add(node)
            work.append((node, iter(calls[node])))

        enter(root)
        while work:
            node, targets = work[-1]
            for target in targets:
                if target not in number:
                    enter(target)
                    break
                if target in waiting:
                    low[node] = min(low[node], number[target])
            else:
                work.pop()
                if work:
                    low[work[-1][0]] = min(low[work[-1][0]], low[node])
                if low[node] == number[node]:
                    group = set(stack[stack.index(node):])
                    del stack[-len(group):]
                    waiting -= group
                    if len(group) > 1 or node in calls[node]:
                        found.append(group)
    return found


def short(name):
    """The last part of a mangled name, which is enough to know a function by here."""
    parts = re.match(r'_ZN(?:12_GLOBAL__N_1)?((?:\d+\w+?)*?)(\d+)([A-Za-z_]\w*)E', name)
    return parts[3][:int(parts[2])] if parts else name.split('.')[0]


calls, names = graph()
found = {frozenset(short(names[function]) for function in group) for group in cycles(calls)}
edges = sum(len(targets) for targets in calls.values())
faults = ['recursion: ' + ', '.join(sorted(group)) for group in found - EXPECTED]
faults += ['no recursion any more: ' + ', '.join(sorted(group)) for group in EXPECTED - found]
if len(calls) < 2000 or edges < len(calls):
    faults.append('the graph is too small to be true: %d functions, %d calls' % (len(calls), edges))
print('\n'.join(sorted(faults)) if faults else
      '%d functions, %d calls: no recursion but %d known cycles' % (len(calls), edges, len(found)))
sys.exit(1 if faults else 0)
