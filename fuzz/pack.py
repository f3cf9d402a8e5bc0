#!/usr/bin/env python3
"""Packs a folder of inputs into one file, and unpacks it: a line with the length, the input, a line end.

    pack.py FOLDER FILE             writes FILE
    pack.py --unpack FILE FOLDER    writes an input a file into FOLDER
"""
import hashlib
import os
import sys


def pack(folder, file):
    inputs = set()
    for name in os.listdir(folder):
        with open(os.path.join(folder, name), 'rb') as f:
            inputs.add(f.read())
    with open(file, 'wb') as f:
        for data in sorted(inputs, key=lambda d: (len(d), d)):
            f.write(b'%d\n%s\n' % (len(data), data))
    print('%s: %d inputs, %d bytes' % (os.path.basename(file), len(inputs), os.path.getsize(file)))


def unpack(file, folder):
    os.makedirs(folder, exist_ok=True)
    with open(file, 'rb') as f:
        while line := f.readline():
            data = f.read(int(line))
            f.read(1)
            with open(os.path.join(folder, hashlib.sha1(data).hexdigest()), 'wb') as out:
                out.write(data)


def main():
    arguments = sys.argv[1:]
    if arguments[:1] == ['--unpack'] and len(arguments) == 3:
        unpack(*arguments[1:])
    elif len(arguments) == 2:
        pack(*arguments)
    else:
        sys.stderr.write(__doc__)
        return 2
    return 0


if __name__ == '__main__':
    sys.exit(main())
