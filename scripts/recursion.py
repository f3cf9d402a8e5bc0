#!/usr/bin/env python3
"""Looks for recursion in the libraries: cycles in the graph of calls, read from their disassembly.

    recursion.py BUILD

What a peer nests must not nest calls, so that no bytes can exhaust the stack. Direct calls and jumps are followed, through
the PLT into the other libraries too. Calls through a sort's record (free, compare, to string of what a container holds)
go through a register and are seen as edges to every such function. EXPECTED names the functions that may stand in a
cycle, with the reason; another one is a fault, and so is a name that no longer stands in one.
"""
import os
import re
import subprocess
import sys

build = sys.argv[1]
LIBRARIES = ['libko.so', 'libwen.so', 'libulm.so', 'libtolmo.so']

# The functions of the runtime that go on into what a container holds, by the sort of that object. A container in a
# container is made by callers only: what decoders make is as deep as the types are (a message, a fragment, a table, a
# header, a vector, a string).
EXPECTED = {}


def disassembly(library):
    path = os.path.join(build, 'source', library)
    return subprocess.run(['objdump', '-d', '--no-show-raw-insn', '-C', path], capture_output=True, text=True,
                          check=True).stdout


def graph():
    """The functions that each function calls directly, and those that call through a register."""
    calls, indirect = {}, set()
    for library in LIBRARIES:
        here = None
        for line in disassembly(library).split('\n'):
            if match := re.fullmatch(r'[0-9a-f]+ <(.+)>:', line):
                here = match[1].removesuffix('@plt')
                # Parts that the compiler split off belong to their function.
                here = re.sub(r'( \[clone [^]]*\]|\.(cold|part|isra|constprop|lto_priv)[.0-9]*)+', '', here)
                here = here if here.startswith(('ko', 'wen', 'ulm', 'tolmo', 'tlomo')) and '::' not in here else library + ' ' + here
                calls.setdefault(here, set())
            elif here and (match := re.search(r'\t(call|jmp|j[a-z]+) +(.*)$', line)):
                target = re.search(r'<(.+?)(\+0x[0-9a-f]+)?>$', match[2])
                if not target:
                    if match[1] == 'call':
                        indirect.add(here)
                    continue
                name, inside = target[1].removesuffix('@plt'), target[2]
                name = re.sub(r'( \[clone [^]]*\]|\.(cold|part|isra|constprop|lto_priv)[.0-9]*)+', '', name)
                name = name if name.startswith(('ko', 'wen', 'ulm', 'tolmo', 'tlomo')) and '::' not in name else library + ' ' + name
                if inside and name == here:
                    continue  # a jump in the function
                calls[here].add(name)
    return calls, indirect


def cycles(calls):
    """The sets of functions that call each other (Tarjan 1972, without recursion of its own)."""
    index, low, stack, on, found = {}, {}, [], set(), []
    for root in calls:
        if root in index:
            continue
        work = [(root, iter(sorted(calls[root])))]
        index[root] = low[root] = len(index)
        stack.append(root)
        on.add(root)
        while work:
            node, targets = work[-1]
            for target in targets:
                if target not in calls:
                    continue
                if target not in index:
                    index[target] = low[target] = len(index)
                    stack.append(target)
                    on.add(target)
                    work.append((target, iter(sorted(calls[target]))))
                    break
                if target in on:
                    low[node] = min(low[node], index[target])
            else:
                work.pop()
                if work:
                    low[work[-1][0]] = min(low[work[-1][0]], low[node])
                if low[node] == index[node]:
                    group = set()
                    while True:
                        member = stack.pop()
                        on.discard(member)
                        group.add(member)
                        if member == node:
                            break
                    if len(group) > 1 or node in calls[node]:
                        found.append(group)
    return found


calls, indirect = graph()
print(len(calls), 'functions', sum(len(c) for c in calls.values()), 'calls', sorted(indirect))
for group in cycles(calls):
    print(sorted(group))
