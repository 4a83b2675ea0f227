import fc from 'fast-check';
import { describe, expect, test } from 'vitest';
import { integerWidths } from '../sheet/resolutions';
import { inspectWord } from './inspectWord';

/** All lines of a word as "id: text", those of floats after the name of their format. */
function readings(word: bigint, width: number): string[] {
  return inspectWord(word, width).flatMap(({ name, lines }) =>
    lines.map(({ id, text }) => `${name === undefined ? '' : `${name}, `}${id}: ${text}`),
  );
}

function bytesOf(text: string): bigint {
  return BigInt(`0x${Buffer.from(text).toString('hex')}`);
}

test('a double is read as a number, a time, an address, a float and single bits', () => {
  expect(readings(0x400921fb54442d18n, 64)).toEqual([
    'unsigned: 4614256656552045848',
    'signed: 4614256656552045848',
    'hexadecimal: 0x400921fb54442d18',
    'bytesMost: 40 09 21 fb 54 44 2d 18',
    'bytesLeast: 18 2d 44 54 fb 21 09 40',
    'mac: 40:09:21:fb:54:44:2d:18',
    'IEEE 754 binary64, exact: 3.141592653589793115997963468544185161590576171875',
    'IEEE 754 binary64, hexFloat: 0x1.921fb54442d18p+1',
    'IEEE 754 binary64, nextUp: 3.1415926535897936 (0x400921fb54442d19)',
    'IEEE 754 binary64, nextDown: 3.1415926535897927 (0x400921fb54442d17)',
    'IEEE 754 binary64, ulp: 2^-51 = 4.440892098500626e-16',
    'IEEE 754 binary64, class: normal',
    'setBits: 23',
    'parity: odd',
    'highestBit: 62',
    'lowestBit: 3',
    'bitList: 3, 4, 8, 10, 11, 13, 18, 22, 26, 28, 30, 32, 33, 35, 36, 37, 38, 39, 40, 45, 48, 51, 62',
    'powerOfTwo: 2^62 + 2570638124657944',
    'toGray: 0x600db106fe663b94',
    'fromGray: 0x7ff1c1526787c9ef',
  ]);
});

test('a zero has no set bit, no power of two near it and no text', () => {
  const ids = inspectWord(0n, 32).flatMap(({ lines }) => lines.map(({ id }) => id));
  for (const id of ['highestBit', 'lowestBit', 'bitList', 'powerOfTwo', 'textMost', 'textLeast']) {
    expect(ids).not.toContain(id);
  }
});

describe('a word of 8 bits', () => {
  test('is read in three float formats, with their own largest numbers', () => {
    expect(readings(0x7en, 8).filter((each) => / exact| class/.test(each))).toEqual([
      'E4M3 with infinity, as in the float field, exact: NaN',
      'E4M3 with infinity, as in the float field, class: NaN, mantissa 0x6',
      'OCP E4M3, exact: 448.0',
      'OCP E4M3, class: normal',
      'OCP E5M2, exact: NaN',
      'OCP E5M2, class: NaN, mantissa 0x2',
    ]);
  });

  test('has its bytes in one order only', () => {
    expect(readings(0x41n, 8).slice(0, 4)).toEqual(['unsigned: 65', 'signed: 65', 'hexadecimal: 0x41', 'textMost: A']);
  });
});

test('a word of 16 bits is read as a half and as a bfloat16', () => {
  const exact = readings(0x3f80n, 16).filter((each) => each.includes('exact'));
  expect(exact).toEqual(['IEEE 754 binary16, exact: 1.875', 'bfloat16, exact: 1.0']);
});

describe('text', () => {
  test.each([
    { name: 'most significant byte first', word: bytesOf('Grüße'), line: 'textMost: Grüße' },
    { name: 'least significant byte first', word: bytesOf('olleH'), line: 'textLeast: Hello' },
    { name: 'with zeros after it', word: bytesOf('abc\0\0\0\0\0'), line: 'textMost: abc' },
  ])('is found $name', ({ word, line }) => {
    expect(readings(word, 64)).toContain(line);
  });

  test.each([
    { name: 'bytes that are no UTF-8', word: 0xc328n },
    { name: 'control characters', word: 0x4107n },
    { name: 'a zero within', word: 0x41004100_4100n },
  ])('is not found in $name', ({ word }) => {
    expect(readings(word, 64).filter((each) => each.startsWith('text'))).toEqual([]);
  });
});

describe('times', () => {
  test.each([
    { width: 32, word: 0x65f00000n, line: 'unixSeconds: 2024-03-12T07:10:56Z' },
    { width: 32, word: 0x80000000n, line: 'unixSeconds: 1901-12-13T20:45:52Z' },
    { width: 32, word: 0x80000000n, line: 'unixSecondsUnsigned: 2038-01-19T03:14:08Z' },
    { width: 32, word: 0xffffffffn, line: 'unixMillisecondsUnsigned: 1970-02-19T17:02:47.295Z' },
    { width: 64, word: 1700000000n, line: 'unixSeconds: 2023-11-14T22:13:20Z' },
    { width: 64, word: 1700000000123n, line: 'unixMilliseconds: 2023-11-14T22:13:20.123Z' },
    { width: 64, word: (1n << 64n) - 1n, line: 'unixSeconds: 1969-12-31T23:59:59Z' },
  ])('$word of $width bits: $line', ({ width, word, line }) => {
    expect(readings(word, width)).toContain(line);
  });

  test('beyond what a calendar of ours reaches are left out', () => {
    expect(readings(1n << 62n, 64).filter((each) => each.startsWith('unix'))).toEqual([]);
  });
});

describe('addresses', () => {
  test.each([
    { width: 32, word: 0xc0a80001n, line: 'ipv4: 192.168.0.1' },
    { width: 64, word: 0x001b44113ab7n, line: 'mac: 00:1b:44:11:3a:b7' },
    { width: 64, word: 0x001b44fffe113ab7n, line: 'mac: 00:1b:44:ff:fe:11:3a:b7' },
    { width: 128, word: 0x20010db8000000000000000000000001n, line: 'ipv6: 2001:db8::1' },
    {
      width: 128,
      word: 0x123e4567e89b12d3a456426614174000n,
      line: 'uuid: 123e4567-e89b-12d3-a456-426614174000',
    },
  ])('$line', ({ width, word, line }) => {
    expect(readings(word, width)).toContain(line);
  });
});

describe('bits', () => {
  test('are listed up to 64 of them', () => {
    const all = readings((1n << 1024n) - 1n, 1024);
    expect(all).toContain('setBits: 1024');
    expect(all).toContain(`bitList: ${Array.from({ length: 64 }, (_, bit) => bit).join(', ')}, …`);
    expect(all).toContain('powerOfTwo: 2^1024 − 1');
  });

  test.each([
    { word: 4096n, text: '2^12' },
    { word: 4095n, text: '2^12 − 1' },
    { word: 4099n, text: '2^12 + 3' },
    { word: 3n, text: '2^1 + 1' },
  ])('$word is $text', ({ word, text }) => {
    expect(readings(word, 16)).toContain(`powerOfTwo: ${text}`);
  });

  test('the power of two and the rest make up the number, and no other power is nearer', () => {
    fc.assert(
      fc.property(fc.bigInt({ min: 1n, max: (1n << 1024n) - 1n }), (word) => {
        const line = readings(word, 1024).find((each) => each.startsWith('powerOfTwo'))!;
        const [, exponent, sign, rest = '0'] = /2\^(\d+)(?: ([+−]) (\d+))?$/.exec(line)!;
        const power = 1n << BigInt(exponent!);
        expect(sign === '−' ? power - BigInt(rest) : power + BigInt(rest)).toBe(word);
        const distance = (other: bigint) => (word > other ? word - other : other - word);
        expect(distance(power)).toBe([power / 2n, power, power * 2n].map(distance).sort((a, b) => (a < b ? -1 : 1))[0]);
      }),
      { numRuns: 200 },
    );
  });
});

describe('of any word', () => {
  test('no line is empty, none comes twice, and its numbers stand for its bits', () => {
    fc.assert(
      fc.property(
        fc.constantFrom(...integerWidths(1024)),
        fc.bigInt({ min: 0n, max: (1n << 1024n) - 1n }),
        (width, value) => {
          const word = BigInt.asUintN(width, value);
          const lines = readings(word, width);
          expect(new Set(lines.map((each) => each.slice(0, each.indexOf(':')))).size).toBe(lines.length);
          expect(lines.filter((each) => each.endsWith(': '))).toEqual([]);
          const text = (id: string) => lines.find((each) => each.startsWith(`${id}: `))!.slice(id.length + 2);
          expect(BigInt(text('unsigned'))).toBe(word);
          expect(BigInt.asUintN(width, BigInt(text('signed')))).toBe(word);
          expect(BigInt(text('hexadecimal'))).toBe(word);
          if (width > 8) expect(text('bytesLeast').split(' ').reverse().join(' ')).toBe(text('bytesMost'));
        },
      ),
      { numRuns: 200 },
    );
  });

  test('all digits of the widest float are worked out only when they are wanted', () => {
    const exact = inspectWord(1n, 256)
      .flatMap(({ lines }) => lines)
      .find(({ id }) => id === 'exact')!;
    expect(exact.text).toBe('0.00000000000000000000…');
    expect(exact.whole!()).toHaveLength('0.'.length + 262378);
  });
});

test('the value above the smallest negative number is the negative zero', () => {
  expect(readings(0x8001n, 16)).toContain('IEEE 754 binary16, nextUp: -0 (0x8000)');
});
