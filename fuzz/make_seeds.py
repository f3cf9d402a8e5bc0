#!/usr/bin/env python3
"""Writes the first inputs of the fuzz targets: the examples below, and what is made from the corpus of messages.

    make_seeds.py OUTPUT        a folder for each target in OUTPUT/examples and OUTPUT/corpus
"""
import hashlib
import os
import random
import re
import sys

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
CORPUS = os.path.join(ROOT, 'tests', 'corpus')

# Values that traffic has few of: every lifted parameter, every form, and text that is refused a step later.
EXAMPLES = {
    'Via': ['SIP/2.0/UDP a:5060;ttl=1;maddr=m;received=192.0.2.1;rport=5;branch=z;x=y', 'SIP/2.0/UDP a;received=::1;x',
            'sip / 2.0 / udp  a : 5060 ; Branch = z', 'SIP/2.0/TCP [2001:db8::1]:5061;rport;ttl=300;ttl=2',
            'SIP/2.0/UDP xn--bcher-kva.example;maddr=[::1]'],
    'Contact': ['*', '<sip:a@b>;q=0.5;expires=60;rc=1.1;mp=1;np=1.2;+sip.instance="<urn:uuid:1>";+sip.src;+sip.srs;x=y',
                '"A, B" <sip:a>, sip:c;q=1', '"" <sip:host1> ; q = 0.5'],
    'Route': ['<sip:a;lr>,<sip:b>;x=1', '"x" <sip:a;lr> , Y <sip:b;lr>'],
    'P-Asserted-Identity': ['"Alice" <sip:a@b>, <tel:+1234>', 'sip:a@b'],
    'History-Info': ['<sip:a?Reason=SIP%3Bcause%3D302>;index=1,<sip:b>;index=1.1;rc=1', '"B" <sip:a>;index=1.2;mp=1.1;np=1'],
    'Diversion': ['<sip:a>;reason=user-busy;counter=3;limit=7;privacy=full;screen=yes;x="y"',
                  '"N" <tel:+1>;reason="Time of Day";counter=07'],
    'Accept': ['text/plain;q=0.7', '*/*', 'text/*;a=b', 'Text / HTML;q=1;level=1'],
    'Accept-Encoding': ['gzip;q=0.5, *;q=0', 'identity'],
    'Alert-Info': ['<http://a/b.wav>;a=1, <urn:alert:service:normal>'],
    'Call-Info': ['<http://a/b.jpg>;purpose=icon, <http://c> ;purpose="x";info=y'],
    'Reason': ['SIP;cause=200;text="Call completed elsewhere", Q.850;cause=016', 'SIP;text=x;cause=y'],
    'Warning': ['399 host1:5060 "x"', '301 isi.edu "Incompatible \\"x\\"", 007 [::1] ""'],
    'User-To-User': ['00aa11;encoding=hex;purpose=isdn;content=isdn-uui', '"abc";encoding=hex'],
    'Recv-Info': ['Foo;a=1, bar', 'foo'],
    'From': ['"A" <sip:a@b>;tag=1;epid=2;x=y', 'sip:a;tag=1', 'A B <sip:a>;TAG=x;tag="y"'],
    'Cseq': ['1 INVITE', '2147483647\tx'],
    'Rack': ['1 2 INVITE'],
    'Allow': ['INVITE, ACK,invite', 'presence.winfo,refer'],
    'Privacy': ['id;Header;id', 'none'],
    'Resource-Priority': ['wps.1, dsn.flash'],
    'Refer-To': ['sip:a;method=b?Replaces=c', '<sip:a?b=c>;d=e', 'sip:a;b?c'],
    'Referred-By': ['<sip:a>;cid="1.2@b.c";x', '"x" <sip:a>;cid=1'],
    'Session-Expires': ['1800;refresher=UAC;x=y', '90 x'],
    'Retry-After': ['120 (in a (nested) meeting);duration=60;x', '5;duration=99999999999999999999'],
    'Subscription-State': ['Active;expires=60;reason=Rejected;retry-after=5;x=y', 'terminated;reason=noresource'],
    'Replaces': ['a@b;to-tag=1;from-tag=2;early-only', 'a;EARLY-ONLY=1;from-tag="x"'],
    'Session-Id': ['0123456789abcdef0123456789abcdef;remote=00000000000000000000000000000000;x y'],
    'Event': ['presence.winfo;ID=1;x=y'],
    'Content-Disposition': ['Session;handling=Optional;x'],
    'Priority': ['emergency', 'Non-Urgent'],
    'Date': ['Thu, 21 Feb 2002 13:02:03 GMT', 'Tue, 31 Dec 2016 23:59:60 GMT'],
    'Timestamp': ['1.5 2.5', '54.'],
    'Server': ['a/1 b/2 (c (d) \\) e)'],
    'Rseq': ['4294967295'],
    'Subject': [' A \t B '],
}
# A field that is there, and a parameter of its name that does not fit it: the second does not go out.
for name, example in {
        'Via': 'SIP/2.0/UDP a;ttl=1;ttl="a";maddr=b;maddr;received=1.2.3.4;received=x;rport=1;rport="x";branch=z;branch="q"',
        'Contact': '<sip:a>;q=1;q=2;expires=1;expires=x;rc=1;rc=01;mp=1;mp=x;np=1;np=x;+sip.instance="<a>";+sip.instance=b',
        'History-Info': '<sip:a>;index=1;index=01;rc=1;rc=x;mp=x;np=x',
        'Diversion': '<sip:a>;reason=a;reason;counter=1;counter=x;limit=1;limit="x";privacy=a;privacy=[::1];screen=a;screen',
        'Accept': 'text/plain;q=1;q=2', 'Accept-Encoding': 'gzip;q=1;q=2', 'Call-Info': '<a:b>;purpose=x;purpose="y"',
        'Reason': 'SIP;cause=1;cause=x;text="a";text=b',
        'User-To-User': '00;encoding=a;encoding="b";purpose=a;purpose="b";content=a;content="b"',
        'From': '<sip:a>;tag=1;tag="x";epid=1;epid="x"', 'Referred-By': '<sip:a>;cid="1@b";cid=x',
        'Session-Expires': '90;refresher=uac;refresher="x"', 'Retry-After': '5;duration=1;duration="x"',
        'Subscription-State': 'active;reason=a;reason="b";expires=1;expires=x;retry-after=1;retry-after=x',
        'Session-Id': '%s;remote=%s;remote=x' % ('0' * 32, '1' * 32), 'Event': 'a;id=1;id="2"',
        'Content-Disposition': 'a;handling=b;handling="c"',
        'Replaces': 'a;from-tag=1;from-tag="x";to-tag=1;to-tag="x";early-only;early-only=1'}.items():
    EXAMPLES[name].append(example)

IRIS = ['sip:a', 'sips:bob@b\u00fccher.example:5061;x?y#z', 'sip:a@xn--bcher-kva.example', 'tel:+1-2', 'http://[::1]/%41%C3%BC',
        'sip:bob@[2001:db8::1]:5060', 'urn:a:%E2%80%8F', 'b\u00fccher.example', 'xn--bcher-kva.example', 'fa\u00df.de', '1.2.3.4',
        '::ffff:1.2.3.4', '2001:db8:0:0:1::1', '[::1]', 'a%41.b-', 'XN--BCHER-KVA.Example', '\u0628\u0627.example', 'x\u200dy',
        'sip:\U0001F600@\u4f8b\u3048.\u30c6\u30b9\u30c8', 'sip:a%40b@c', 'sip:a@b@c', 'sip:%62%C3%BCcher.example']
SCALARS = ['token', 'a.b', 'abc@def', '"a \\" b"', 'Bob  Smith', '0.5', '1.000', '255', '300', '-0', 'uac', 'wps.1', '0' * 32,
           'host.example', '[::1]', 'bu\u0308cher.de', '<urn:uuid:f81d4fae>', '1.2@a.b', 'a/1 (b) c', '007', '1.5 2.5', '100%',
           'Not%20found', '16charactersepid', 'Mon', 'Dec', 'text \t words ']


def messages():
    """The bytes of each corpus file."""
    for folder, _, files in sorted(os.walk(CORPUS)):
        for file in sorted(files):
            if file.endswith(('.sip', '.stream', '.dat')):
                with open(os.path.join(folder, file), 'rb') as f:
                    yield f.read()


def headers(message):
    head = message.split(b'\r\n\r\n')[0]
    for line in re.sub(rb'\r\n[ \t]+', b' ', head).split(b'\r\n')[1:]:
        name, colon, value = line.partition(b':')
        if colon:
            yield name.strip().lower(), value.strip(b' \t')


class Seeds:
    def __init__(self, output):
        self.output = output
        self.random = random.Random(1)

    def add(self, target, data, limit=2048):
        if isinstance(data, str):
            data = data.encode()
        if data and len(data) <= limit:
            folder = os.path.join(self.output, target)
            os.makedirs(folder, exist_ok=True)
            with open(os.path.join(folder, hashlib.sha1(data).hexdigest()[:16]), 'wb') as f:
                f.write(data)

    def choices(self, length):
        return bytes(self.random.choice(range(11, 256)) for _ in range(length))

    def lines(self, lines):
        """Header lines, alone and as what the targets with choices take."""
        for line in lines:
            self.add('value', line)
            self.add('skip', line)
            self.add('scalar', line)
            for item in line.split(b','):
                self.add('value', item.strip())
            behind = re.sub(rb'^[^;<]*(<[^>]*>)?', b'', line)
            if behind.startswith(b';'):
                self.add('params', self.choices(8) + b'\n' + behind + b'\n' + behind[1:].replace(b';', b'\n'))
            for iri in re.findall(rb'[a-z]+:[^>;, "]+', line):
                self.add('iri', iri)
        self.add('header', b'\n'.join(lines))
        for kind in (b'0', b'2'):
            self.add('mutator', kind + self.choices(24) + b'\n' + b'\n'.join(lines))


def examples(seeds):
    for name, lines in EXAMPLES.items():
        seeds.lines([line.encode() for line in lines])
        seeds.add('message', 'INVITE sip:a@b SIP/2.0\r\n' + ''.join('%s: %s\r\n' % (name, e) for e in lines) + '\r\n')
        seeds.add('mutator', b'1' + seeds.choices(24) + b'\n' + '\n'.join('%s: %s' % (name, e) for e in lines).encode())
    for text in IRIS + SCALARS:
        for target in ('iri', 'scalar', 'skip', 'value'):
            seeds.add(target, text)
        seeds.add('runtime', seeds.choices(40) + b'\n' + text.encode())
    for number in ('0', '-5', '9223372036854775807', '-9223372036854775808', '9223372036854775808', 'zz', '7fFFx'):
        seeds.add('runtime', seeds.choices(40) + b'\n' + number.encode())
    for text in ('\r\n\r\n', 'Via: x\r\n y\r\n\r\n', 'SIP/2.0 200\r\nl:3\r\n\r\nabcd', 'A sip:b C/1\r\nl: 0\r\n\r\n\r\nA sip:b C/1\r\nl:1\r\n\r\nx'):
        seeds.add('message', text)
        seeds.add('stream', text)


def traffic(seeds):
    by_name = {}
    framed = []
    for message in messages():
        seeds.add('message', message, 8192)
        seeds.add('stream', message, 8192)
        if re.search(rb'\r\n(Content-Length|l)[ \t]*:', message, re.I) and len(message) < 1500:
            framed.append(message)
        seeds.add('runtime', seeds.choices(32) + b'\n' + message[:200])
        for name, value in headers(message):
            by_name.setdefault(name, {})[value] = True
    for values in by_name.values():
        values = list(values)
        seeds.random.shuffle(values)
        for i in range(0, min(len(values), 60), 3):
            seeds.lines(values[i:i + 3])
    for i in range(0, len(framed) - 2, 7):
        seeds.add('stream', b'\r\n\r\n'.join(framed[i:i + 3]), 8192)


def main():
    if len(sys.argv) != 2:
        sys.stderr.write(__doc__)
        return 2
    examples(Seeds(os.path.join(sys.argv[1], 'examples')))
    traffic(Seeds(os.path.join(sys.argv[1], 'corpus')))
    return 0


if __name__ == '__main__':
    sys.exit(main())
