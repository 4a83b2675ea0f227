import fc from 'fast-check';
import { expect, test } from 'vitest';
import { rangeBetween } from './bitRange';
import { readNames, stackNames, withNames, writeNames } from './namedRanges';

const STATUS_CODE = 'severity 31:30\ncustomer 29\nfacility 27:16\ncode 15:0\n';

test('a table of a manual gives its names', () => {
  expect(readNames(STATUS_CODE, 32)).toEqual({
    ok: true,
    value: [
      { name: 'severity', hi: 31, lo: 30 },
      { name: 'customer', hi: 29, lo: 29 },
      { name: 'facility', hi: 27, lo: 16 },
      { name: 'code', hi: 15, lo: 0 },
    ],
  });
});

test.each([
  ['OPCODE\t[31:26]', 'OPCODE', 31, 26],
  ['OPCODE: 31:26', 'OPCODE', 31, 26],
  ['Source register 25-21\n', 'Source register', 25, 21],
  ['31:26  OPCODE', 'OPCODE', 31, 26],
  ['[26:31] OPCODE field', 'OPCODE field', 31, 26],
  ['R2 0x10+4\nx 1:0', 'R2', 19, 16],
])('a line may be written as %j', (text, name, hi, lo) => {
  const names = readNames(text, 32);
  expect(names?.ok && names.value[0]).toEqual({ name, hi, lo });
});

test.each([
  '0xdead_beef',
  'rax 0x12\nrbx 7',
  '00000000: 48 65 6c 6c',
  'de:ad:be:ef:00:01',
  '2001:db8::1',
  '12:30',
  'a = 5;',
  'severity 31:30\nnothing here',
  '',
])('what is no table is left to be read as a number: %j', (text) => {
  expect(readNames(text, 64)).toBeUndefined();
});

test('a line with bits that the sheet does not have is named', () => {
  expect(readNames('low 3:0\nhigh 40:33', 32)).toEqual({ ok: false, reason: 'high: Sheet has bits 0 to 31' });
});

test('too many names are refused', () => {
  const text = Array.from({ length: 257 }, (_, at) => `n${at} ${at}:${at}`).join('\n');
  expect(readNames(text, 1024)).toEqual({ ok: false, reason: '257 names, at most 256 are kept' });
});

const anyNames = fc
  .uniqueArray(fc.tuple(fc.stringMatching(/^[A-Za-z_][A-Za-z_ ]{0,8}[A-Za-z_]$/), fc.nat(1023), fc.nat(1023)), {
    minLength: 1,
    maxLength: 80,
    selector: ([name]) => name.replace(/\s+/g, ' '),
  })
  .map((list) => list.map(([name, a, b]) => ({ name: name.replace(/\s+/g, ' '), ...rangeBetween(a, b) })));

test('names that are copied are read again', () => {
  fc.assert(
    fc.property(anyNames, (names) => {
      const wide = { name: 'W', hi: 9, lo: 2 };
      expect(readNames(writeNames([wide, ...names]), 1024)).toEqual({ ok: true, value: [wide, ...names] });
    }),
  );
});

test('names beside each other lie in one lane, and what holds them above it', () => {
  const [word, high, low] = [
    { hi: 15, lo: 0 },
    { hi: 15, lo: 8 },
    { hi: 7, lo: 0 },
  ];
  const lanes = stackNames([word, high, low]);
  expect([word, high, low].map((each) => lanes.get(each))).toEqual([1, 0, 0]);
});

test('names that share a bit never share a lane, and each has one', () => {
  fc.assert(
    fc.property(anyNames, (names) => {
      const lanes = stackNames(names);
      for (const a of names) {
        expect(lanes.get(a)).toBeGreaterThanOrEqual(0);
        for (const b of names) if (a !== b && a.lo <= b.hi && b.lo <= a.hi) expect(lanes.get(a)).not.toBe(lanes.get(b));
      }
    }),
  );
});

test('a name that comes again takes its new bits', () => {
  const before = [{ name: 'A', hi: 3, lo: 0 }];
  expect(
    withNames(before, [
      { name: 'B', hi: 9, lo: 8 },
      { name: 'A', hi: 7, lo: 4 },
    ]),
  ).toEqual([
    { name: 'B', hi: 9, lo: 8 },
    { name: 'A', hi: 7, lo: 4 },
  ]);
});

test('a name comes before those that it holds', () => {
  const [flag, byte] = [
    { name: 'flag', hi: 7, lo: 7 },
    { name: 'byte', hi: 7, lo: 0 },
  ];
  expect(withNames([flag], [byte])).toEqual([byte, flag]);
});
