#!/usr/bin/env python3
"""Tests of the program: tools_test.py PROGRAM CORPUS."""
import os
import random
import subprocess
import sys
import tempfile
import unittest

PROGRAM = os.path.abspath(sys.argv[1])
CORPUS = sys.argv[2]

OK = b"SIP/2.0 200 OK\r\nl: 0\r\n\r\n"
REQUEST = b"MESSAGE sip:a@b SIP/2.0\r\nTo: <sip:x@y>\r\nv: SIP/2.0/UDP h\r\nContent-Length: 4\r\n\r\nbody"


def corpus():
    """All files of the corpus but the list of them."""
    return [os.path.join(folder, name) for folder, _, names in sorted(os.walk(CORPUS)) for name in sorted(names)
            if name != "MANIFEST.tsv"]


def run(*arguments, stdin=b""):
    done = subprocess.run([PROGRAM, *arguments], input=stdin, capture_output=True, timeout=300)
    return done.returncode, done.stdout, done.stderr


class Case(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)

    def file(self, name, data):
        path = os.path.join(self.folder.name, name)
        with open(path, "wb") as to:
            to.write(data)
        return path

    def expect(self, status, arguments, stdin=b"", out=None, err=None):
        """All pieces of `out` and `err` stand in what is written, in this order; without `err` nothing is."""
        got = run(*arguments, stdin=stdin)
        self.assertEqual(got[0], status, got)
        for pieces, text in ((out or [], got[1]), (err or [], got[2])):
            at = 0
            for piece in pieces:
                found = text.find(piece, at)
                self.assertGreaterEqual(found, 0, (piece, text))
                at = found + len(piece)
        if not err:
            self.assertEqual(got[2], b"")
        return got[1]


class Usage(Case):
    def test_bad(self):
        self.expect(2, [], err=[b"a word is missing", b"usage:"])
        self.expect(2, ["encode"], err=[b"unknown word encode", b"usage:"])
        self.expect(2, ["decode", "--loud"], err=[b"unknown option --loud", b"usage:"])
        self.expect(2, ["decode", "-x"], err=[b"unknown option -x"])
        self.expect(2, ["decode", "--color=red"], err=[b"--color takes auto, always or never"])
        self.expect(2, ["decode", "--color"], err=[b"unknown option --color"])

    def test_good(self):
        for option in ("--help", "-h"):
            self.expect(0, [option], out=[b"usage: tolmo decode", b"normalize", b"--datagram", b"exit status"])
        self.expect(0, ["--version"], out=[b"tolmo "])
        names = [line.split()[0] for line in self.expect(0, ["headers"]).decode().splitlines()]
        self.assertEqual(len(names), 60)
        self.assertEqual(names, sorted(names))
        self.assertIn("User-To-User", names)

    def test_two_dashes_end_the_options(self):
        path = self.file("--quiet", OK)
        done = subprocess.run([PROGRAM, "decode", "--", "--quiet"], cwd=os.path.dirname(path), capture_output=True)
        self.assertEqual(done.returncode, 0)
        self.assertIn(b"response  SIP/2.0 200 OK", done.stdout)


class Decode(Case):
    def test_tree(self):
        out = self.expect(0, ["decode", self.file("a", REQUEST)])
        shown = out.split(b", byte 0\n")[1]
        self.assertEqual(shown, b"  request   MESSAGE sip:a@b SIP/2.0\n"
                                b"  To: <sip:x@y>\n    = <sip:x@y>\n"
                                b"  Via: SIP/2.0/UDP h\n    = SIP/2.0/UDP h\n"
                                b"  Content-Length: 4\n"
                                b"  body      4 bytes\n    | body\n")

    def test_standard_input(self):
        for arguments in (["decode"], ["decode", "-"]):
            self.expect(0, arguments, stdin=OK, out=[b"standard input, byte 0", b"response  SIP/2.0 200 OK"])
        self.expect(0, ["decode"], stdin=b"")  # an empty stream holds no message, and nothing bad
        self.expect(1, ["decode", "--datagram"], stdin=b"", err=[b"standard input, byte 0: \"\" is no start line"])

    def test_framing(self):
        two = OK + b"\r\n\r\n" + REQUEST
        # The offset is that of the message, not of the line ends in front of it.
        self.expect(0, ["decode"], stdin=two, out=[b"byte 0\n", b"200 OK", b"byte 28\n", b"MESSAGE"])
        self.expect(0, ["decode", "--stream"], stdin=two, out=[b"byte 0\n", b"byte 28\n"])
        self.expect(0, ["decode"], stdin=b"\r\n\r\n" + OK + b"\r\n", out=[b"byte 4\n"])
        out = self.expect(0, ["decode", "--datagram"], stdin=two)  # what stands behind is dropped
        self.assertEqual(out.count(b"byte "), 1)
        # Without Content-Length it is a datagram, and no stream.
        alone = b"SIP/2.0 200 OK\r\nTo: a\r\n\r\nbody"
        self.expect(0, ["decode"], stdin=alone, out=[b"body      4 bytes"])
        self.expect(1, ["decode", "--stream"], stdin=alone,
                    err=[b"byte 0: \"SIP/2.0 200 OK\" begins a message without Content-Length"])
        # A stream that is cut off is still a stream: what is good is shown, the rest is told.
        self.expect(1, ["decode"], stdin=OK + OK + REQUEST[:-1], out=[b"byte 0\n", b"byte 24\n"],
                    err=[b"byte 48: \"MESSAGE sip:a@b SIP/2.0\" begins a message that ends too early"])
        self.expect(1, ["decode"], stdin=OK + OK + b"x\r\n\r\n", out=[b"byte 0\n", b"byte 24\n"],
                    err=[b"byte 48: \"x\" does not decode"])

    def test_refusals(self):
        for data, message in (
            (b"SIP/2.0 200 OK\r\nTo: a\r\nbad line\r\nl: 0\r\n\r\n", b"byte 23: \"bad line\" does not decode"),
            (b"SIP/2.0 99 OK\r\nl: 0\r\n\r\n", b"byte 0: \"SIP/2.0 99 OK\" does not decode"),
            (b"SIP/2.0 200 OK\r\nTo\r\n : a\r\n: x\r\nl: 0\r\n\r\n", b"byte 26: \": x\" does not decode"),
            (b"SIP/2.0 200 OK\r\nTo: \xff\r\nl: 0\r\n\r\n", b"byte 16: \"To: \\xFF\" does not decode"),
            (b"SIP/2.0 200 OK\r\nTo: a\r\nl: x\r\nv: b\r\n\r\n", b"byte 23: \"l: x\" is no length"),
            (b"SIP/2.0 200 OK\r\nl: 9\r\n\r\nbody", b"byte 0: \"SIP/2.0 200 OK\" begins a message with less body"),
            (b"SIP/2.0 200 OK\r\nl: 9", b"byte 0: \"SIP/2.0 200 OK\" begins a message with less body"),
            (b"To: a\r\nl: 0\r\n\r\n", b"byte 0: \"To: a\" is no start line"),
            (b"To: a\r\nl: 0", b"byte 0: \"To: a\" is no start line"),
            (b"\x1b[31mx\r\n\r\n", b"byte 0: \"\\x1B[31mx\" does not decode"),
        ):
            self.expect(1, ["decode", "--datagram"], stdin=data, err=[b"tolmo: standard input, " + message])
        path = self.file("bad", b"x" * 1000)
        self.expect(1, ["decode", path], err=[path.encode() + b", byte 0: \"" + b"x" * 60 + b"\" does not decode"])

    def test_goes_on_with_the_next_file(self):
        good, bad = self.file("good", OK), self.file("bad", b"x")
        missing = os.path.join(self.folder.name, "missing")
        self.expect(1, ["decode", bad, good], out=[b"200 OK"], err=[b"bad, byte 0"])
        self.expect(3, ["decode", missing, good], out=[b"200 OK"], err=[b"missing: cannot be read: No such file"])
        self.expect(3, ["decode", self.folder.name, good], out=[b"200 OK"], err=[b": cannot be read: Is a directory"])
        # Whatever comes first, what could not be read weighs more.
        self.expect(3, ["decode", missing, bad, good], out=[b"200 OK"], err=[b"cannot be read", b"bad, byte 0"])
        self.expect(3, ["decode", bad, missing, good], out=[b"200 OK"], err=[b"bad, byte 0", b"cannot be read"])

    def test_output_that_cannot_be_written(self):
        if not os.path.exists("/dev/full"):
            self.skipTest("no /dev/full")
        with open("/dev/full", "wb") as full:
            done = subprocess.run([PROGRAM, "decode"], input=OK, stdout=full, stderr=subprocess.PIPE)
        self.assertEqual(done.returncode, 3)
        self.assertIn(b"standard output cannot be written", done.stderr)

    def test_quiet(self):
        self.assertEqual(self.expect(0, ["decode", "--quiet"], stdin=OK), b"")
        self.assertEqual(self.expect(0, ["normalize", "--quiet"], stdin=OK), b"")
        self.assertEqual(self.expect(1, ["decode", "--quiet"], stdin=b"x", err=[b"does not decode"]), b"")

    def test_color(self):
        plain = self.expect(0, ["decode"], stdin=REQUEST)
        self.assertNotIn(b"\x1b", plain)  # not on a terminal
        self.assertEqual(self.expect(0, ["decode", "--color=never"], stdin=REQUEST), plain)
        self.assertEqual(self.expect(0, ["decode", "--color=auto"], stdin=REQUEST), plain)
        colored = self.expect(0, ["decode", "--color=always"], stdin=REQUEST)
        self.assertIn(b"\x1b[36mTo\x1b[0m: <sip:x@y>", colored)
        self.assertEqual(colored.count(b"\x1b[") % 2, 0)

    def test_nothing_reaches_the_terminal_unseen(self):
        data = ("SIP/2.0 200 a%1B[0m\r\nSubject: \x1b[2J \x7f \u009b31m \u202egnp \u00e9\u4e2d\r\nl: 13\r\n\r\n"
                "a\tb\r\nc\u009b1m d\n").encode()
        out = self.expect(0, ["decode", "--color=never"], stdin=data,
                          out=[b"200 a\\x1B[0m\n", b"\\x1B[2J \\x7F \\u009B31m \\u202Egnp \xc3\xa9\xe4\xb8\xad\n",
                               b"| a\\x09b\n", b"| c\\u009B1m d\n"])
        self.assertNotIn(b"\x1b", out)
        self.assertNotIn("\u009b".encode(), out)
        # A body that is no text is not shown.
        out = self.expect(0, ["decode"], stdin=b"SIP/2.0 200 OK\r\nl: 3\r\n\r\na\0b", out=[b"body      3 bytes\n"])
        self.assertNotIn(b"|", out)

    def test_a_stream_of_many_blocks(self):
        count = 20000
        out = self.expect(0, ["decode", "--stream"], stdin=(OK + b"\r\n") * count)
        self.assertEqual(out.count(b"200 OK"), count)
        self.assertIn(b"byte %d\n" % (26 * (count - 1)), out)
        big = b"SIP/2.0 200 OK\r\nl: 1000000\r\n\r\n" + b"x" * 1000000
        self.assertEqual(self.expect(0, ["normalize"], stdin=big + OK).count(b"SIP/2.0 200 OK"), 2)


class Normalize(Case):
    def test_normal_form(self):
        self.assertEqual(self.expect(0, ["normalize"], stdin=b"sip/2.0 200\r\nv:1\r\nT : a\r\n b\r\nVIA: 2\r\nl:04\r\n\r\nbody"),
                         b"SIP/2.0 200 \r\nVia: 1\r\nVia: 2\r\nTo: a b\r\nContent-Length: 4\r\n\r\nbody")

    def test_round_trip(self):
        once = self.expect(0, ["normalize"], stdin=OK + REQUEST)
        self.assertEqual(self.expect(0, ["normalize"], stdin=once), once)

    def test_corpus(self):
        """Whatever the captured messages hold: shown, or written in a form that stays as it is."""
        files = corpus()
        self.assertGreater(len(files), 1000)
        status, out, err = run("decode", *files)
        self.assertEqual(status, 1)
        self.assertGreater(out.count(b", byte 0\n"), 900)
        for line in err.splitlines():
            self.assertRegex(line, rb'^tolmo: .*, byte \d+: ".*" ')
        status, once, _ = run("normalize", "--datagram", *files)
        self.assertEqual(status, 1)
        self.assertEqual(self.expect(0, ["normalize", "--stream"], stdin=once), once)

    def test_changed_messages(self):
        """No input ends the program in another way than by its exit status."""
        chance = random.Random(7)
        sources = corpus()
        pieces = [b"\r\n", b" ", b"\t", b";", b",", b"\"", b"<", b">", b"=", b":", b"/", b"(", b"\\", b"%", b"\0", b"\xff",
                  b"\xc3\xa9", b"99999999999999999999", b"-1", b"", b"[::1]", b"*"]
        files = []
        for number in range(3000):
            with open(chance.choice(sources), "rb") as source:
                data = bytearray(source.read())
            for _ in range(chance.randint(1, 6)):
                at = chance.randrange(len(data) + 1)
                data[at:at + chance.randrange(3)] = chance.choice(pieces)
            files.append(self.file(str(number), bytes(data)))
        for start in range(0, len(files), 500):
            status, _, err = run("decode", "--datagram", *files[start:start + 500])
            self.assertIn(status, (0, 1), err[-300:])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
