#!/usr/bin/env python3
"""Runs the example programs on requests of the corpus, and looks at what they write.

    examples_test.py PROXY_HOP ANSWER
"""
import subprocess
import sys

PROXY, ANSWER = sys.argv[1:]

REQUEST = '\r\n'.join([
    'INVITE sip:bob@biloxi.example.com SIP/2.0',
    'Via: SIP/2.0/UDP pc33.example.com;branch=z9hG4bK1',
    'Max-Forwards: {hops}',
    'Route: <sip:proxy.example.com;lr>, <sip:next.example.com;lr>',
    'From: Alice <sip:alice@example.com>;tag=1',
    'To: Bob <sip:bob@biloxi.example.com>',
    'Call-ID: a@b',
    'CSeq: 1 INVITE',
    '', ''])


def run(program, text):
    done = subprocess.run([program], input=text.encode(), capture_output=True)
    return done.returncode, done.stdout.decode(), done.stderr.decode()


def expect(what, got, wanted):
    if got != wanted:
        sys.exit('%s\n  got:    %r\n  wanted: %r' % (what, got, wanted))


expect('a hop', run(PROXY, REQUEST.format(hops=70)), (0, '\r\n'.join([
    'INVITE sip:bob@biloxi.example.com SIP/2.0',
    'Via: SIP/2.0/UDP proxy.example.com:5060;branch=z9hG4bKproxy1',
    'Via: SIP/2.0/UDP pc33.example.com;branch=z9hG4bK1',
    'Max-Forwards: 69',
    'Route: <sip:next.example.com;lr>',
    'From: Alice <sip:alice@example.com>;tag=1',
    'To: Bob <sip:bob@biloxi.example.com>',
    'Call-Id: a@b',
    'Cseq: 1 INVITE',
    'Content-Length: 0',
    '', '']), ''))
expect('no hop left', run(PROXY, REQUEST.format(hops=0)), (1, '', '483 Too many hops\n'))
expect('hops that are no number', run(PROXY, REQUEST.format(hops='x')), (1, '', '483 Too many hops\n'))
expect('an empty Route', run(PROXY, REQUEST.format(hops=70).replace('<sip:proxy.example.com;lr>, <sip:next.example.com;lr>', '')),
       (1, '', '400 Bad request\n'))
expect('no request', run(PROXY, 'SIP/2.0 200 OK\r\n\r\n'), (1, '', 'no request\n'))

expect('an answer', run(ANSWER, REQUEST.format(hops=70)), (0, '\r\n'.join([
    'SIP/2.0 200 OK',
    'Via: SIP/2.0/UDP pc33.example.com;branch=z9hG4bK1',
    'From: Alice <sip:alice@example.com>;tag=1',
    'To: "Bob" <sip:bob@biloxi.example.com>;tag=a6c85cf',
    'Call-Id: a@b',
    'Cseq: 1 INVITE',
    'Content-Length: 0',
    '', '']), ''))
expect('a To that does not decode', run(ANSWER, REQUEST.format(hops=70).replace('To: Bob <', 'To: <<')),
       (1, '', 'no request that can be answered\n'))
expect('nothing', run(ANSWER, ''), (1, '', 'no request that can be answered\n'))
print('examples: 8 runs')
