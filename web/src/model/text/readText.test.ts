import fc from 'fast-check';
import { describe, expect, test } from 'vitest';
import { CODE_FORMS, codeFormsFor } from '../code/codeForms';
import { allBits } from '../integer/wordOperations';
import { bitsNeeded, type Reading, wordOf } from './reading';
import { LONGEST_READ_TEXT, readText } from './readText';

function readingsOf(text: string): readonly Reading[] {
  const read = readText(text);
  return read.ok ? read.value : [];
}

/** The word that the likeliest reading gives, and what it is. */
function firstOf(text: string, width = 1024): string {
  const [reading] = readingsOf(text);
  if (!reading) return 'nothing';
  const word = wordOf(reading, width);
  const name = [reading.kind, reading.detail].filter((part) => part !== undefined).join(' ');
  return word.ok ? `${name}: ${word.value.toString(16)}` : `${name}: ${word.reason}`;
}

const BYTES_33 = Array.from({ length: 33 }, () => 'ff').join(' ');
const SHA256_EMPTY = 'e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855';

describe('a number', () => {
  test.each([
    ['0', 'number base 10: 0'],
    ['255', 'number base 10: ff'],
    [' 255\n', 'number base 10: ff'],
    ['+255', 'number base 10: ff'],
    ['0x1F', 'number base 16: 1f'],
    ['0X1f', 'number base 16: 1f'],
    ['0b1010', 'number base 2: a'],
    ['0o777', 'number base 8: 1ff'],
    ['$ff', 'number base 16: ff'],
    ['#beef', 'number base 16: beef'],
    ['0FFh', 'number base 16: ff'],
    ['deadh', 'number base 16: dead'],
    ['42U', 'number base 10: 2a'],
    ['42UL', 'number base 10: 2a'],
    ['42ULL', 'number base 10: 2a'],
    ['42lu', 'number base 10: 2a'],
    ['42L', 'number base 10: 2a'],
    ['42n', 'number base 10: 2a'],
    ['0xffULL', 'number base 16: ff'],
    ['0xffn', 'number base 16: ff'],
    ['0xff_u8', 'number base 16: ff'],
    ['0xffu128', 'number base 16: ff'],
    ['7usize', 'number base 10: 7'],
    ["64'hdead_beef", 'number base 16: deadbeef'],
    ["8'b1010_0101", 'number base 2: a5'],
    ["12'o777", 'number base 8: 1ff'],
    ["8'd200", 'number base 10: c8'],
    ["8'sd100", 'number base 10: 64'],
    ["'hff", 'number base 16: ff'],
    ["8 'h ff", 'number base 16: ff'],
    ['x"dead_beef"', 'number base 16: deadbeef'],
    ['X"BEEF"', 'number base 16: beef'],
    ['b"1010"', 'number base 2: a'],
    ['16x"beef"', 'number base 16: beef'],
    ['16#dead_beef#', 'number base 16: deadbeef'],
    ['2#1010#', 'number base 2: a'],
    ['0xdead_beef', 'number base 16: deadbeef'],
    ["0xdead'beef", 'number base 16: deadbeef'],
    ['0xdead beef', 'number base 16: deadbeef'],
    ['0xdead,beef', 'number base 16: deadbeef'],
    ['1_000_000', 'number base 10: f4240'],
    ["1'000'000", 'number base 10: f4240'],
    ['1,000,000', 'number base 10: f4240'],
    ['1 000 000', 'number base 10: f4240'],
    ['deadbeef', 'number base 16: deadbeef'],
    ['DEADBEEF', 'number base 16: deadbeef'],
    ['1e5', 'number base 16: 1e5'],
    ['0b12', 'number base 16: b12'],
    ['DEAD BEEF', 'number base 16: deadbeef'],
    ['1 DEAD BEEF', 'number base 16: 1deadbeef'],
    [SHA256_EMPTY, `number base 16: ${SHA256_EMPTY}`],
    ['x = 5;', 'number base 10: 5'],
    ['const uint64_t key = 0xdeadULL;', 'number base 16: dead'],
    ['0x10;', 'number base 16: 10'],
  ])('%s', (text, expected) => {
    expect(firstOf(text)).toBe(expected);
  });

  test.each([
    ['-1', 'number base 10: ff'],
    ['-128', 'number base 10: 80'],
    ['-129', 'number base 10: 9 bits, room for 8'],
    ['−0x1', 'number base 16: ff'],
    ['- 1', 'number base 10: ff'],
    ['256', 'number base 10: 9 bits, room for 8'],
    ['0x00ff', 'number base 16: ff'],
  ])('%s in 8 bits', (text, expected) => {
    expect(firstOf(text, 8)).toBe(expected);
  });

  test('without a prefix can be meant in other bases, too', () => {
    const kinds = (text: string) => readingsOf(text).map(({ kind, detail }) => `${kind} ${detail ?? ''}`.trim());
    expect(kinds('1010')).toEqual(
      expect.arrayContaining([
        'number base 10',
        'number base 16',
        'number base 2',
        'number base 8',
        'float',
        'base64',
        'text',
      ]),
    );
    expect(kinds('19')).not.toContain('number base 2');
    expect(kinds('0x10')).toEqual(['number base 16', 'base64', 'text']);
    expect(kinds('-10').slice(0, 4)).toEqual(['number base 10', 'number base 16', 'number base 2', 'number base 8']);
  });
});

describe('a list', () => {
  test.each([
    ['de ad be ef', 'words 8 bits: deadbeef'],
    ['DE,AD,BE,EF', 'words 8 bits: deadbeef'],
    ['0xde, 0xad, 0xbe, 0xef', 'words 8 bits: deadbeef'],
    ['1, 2, 3', 'words 8 bits: 10203'],
    ['1, 2, 300', 'words 16 bits: 100020' + '12c'],
    ['10 20 30', 'words 8 bits: a141e'],
    ['00 01 02', 'words 8 bits, hexadecimal: 102'],
    ['0101 1100', 'words 4 bits, binary: 5c'],
    ['00000001 00000010', 'words 8 bits, binary: 102'],
    ['100, 200, 250', 'words 8 bits: 64c8fa'],
    ['0x0, 0xdeadbeef', 'words 32 bits: deadbeef'],
    ['0x1, 0xff', 'words 8 bits: 1ff'],
    ['[1, 2, 3]', 'words 8 bits: 10203'],
    ['[1]', 'words 8 bits: 1'],
    ['[1, 2, 3,]', 'words 8 bits: 10203'],
    ['{0xde, 0xad}', 'words 8 bits: dead'],
    ['uint8_t key[] = {0xde, 0xad};', 'words 8 bits: dead'],
    ['const uint32_t k[2] = {0x1, 0x2};', 'words 32 bits: 100000002'],
    ['static const uint64_t k[2] = { 1, 2 };', 'words 64 bits: 10000000000000002'],
    ['unsigned char k[] = { 1, /* two */ 2, // three\n 3 };', 'words 8 bits: 10203'],
    ['uint32_t k[] = { 1, 0x1ffffffff };', 'words 64 bits: 100000001' + 'ffffffff'],
    ['int8_t k[] = { -1, 1 };', 'words 8 bits: ff01'],
    ['let k: [u16; 2] = [0x1, 0x2];', 'words 16 bits: 10002'],
    ['let k = vec![0xdeu8, 0xad];', 'words 8 bits: dead'],
    ['&[0xde, 0xad]', 'words 8 bits: dead'],
    ['bytes([0xde, 0xad])', 'words 8 bits: dead'],
    ['new Uint32Array([1, 2])', 'words 32 bits: 100000002'],
    ['[]byte{0xde, 0xad}', 'words 8 bits: dead'],
    ['byte[] b = {(byte) 0xde, 0x2d};', 'words 8 bits: de2d'],
    ['byte[] b = {-34, 45};', 'words 8 bits: de2d'],
    ['{{1, 2}, {3, 4}}', 'words 8 bits: 1020304'],
    ['db 0xde, 0xad', 'words 8 bits: dead'],
    ['key: dd 1, 2', 'words 32 bits: 100000002'],
    ['dw 1, 2', 'words 16 bits: 10002'],
    ['.quad 1, 2', 'words 8 bits: 102'],
    ['6a09e667 bb67ae85', 'words 32 bits: 6a09e667bb67ae85'],
    ['6a09e667\nbb67ae85\n', 'words 32 bits: 6a09e667bb67ae85'],
    ['1\n2\n3', 'words 8 bits: 10203'],
    ['10 ff 20', 'words 8 bits: 10ff20'],
    ['de:ad:be', 'words 8 bits: deadbe'],
    ['DE-AD-BE-EF', 'words 8 bits: deadbeef'],
  ])('%s', (text, expected) => {
    expect(firstOf(text)).toBe(expected);
  });

  test('can be read with wider items, as hexadecimal words, and from its other end', () => {
    const details = readingsOf('1, 2').map(({ kind, detail }) => `${kind} ${detail ?? ''}`.trim());
    expect(details).toEqual(['words 8 bits', 'words 16 bits', 'words 32 bits', 'words 64 bits', 'text']);
    const alternatives = readingsOf('10 20').map(({ items }) => items.map(String).join(' '));
    expect(alternatives).toContain('16 32');
    const [bytes] = readingsOf('de ad be ef');
    expect(wordOf(bytes!, 32, 'last')).toEqual({ ok: true, value: 0xefbeadden });
  });

  test.each([
    ['1, 2, x', 'nothing but text'],
    [`0x${'f'.repeat(300)}, 1`, 'nothing but text'],
    ['x', 'nothing but text'],
  ])('%s is none', (text) => {
    expect(readingsOf(text).map(({ kind }) => kind)).not.toContain('words');
  });

  test('that is too long for the word says so in bytes', () => {
    expect(firstOf(BYTES_33, 256)).toBe('words 8 bits: 33 bytes, room for 32');
    expect(bitsNeeded(readingsOf(BYTES_33)[0]!)).toBe(264);
  });

  test('that fits without its leading zeros is taken', () => {
    expect(firstOf(`00 ${'ff '.repeat(4)}`, 32)).toBe('words 8 bits: ffffffff');
  });
});

describe('a dump', () => {
  test.each([
    [
      '00000000  de ad be ef 00 01 02 03  04 05 06 07 08 09 0a 0b  |................|\n00000010',
      'dump 8 bits: deadbeef000102030405060708090a0b',
    ],
    ['00000000  41 42 7c                                          |AB||\n00000003', 'dump 8 bits: 41427c'],
    ['de ad be ef  |....|', 'dump 8 bits: deadbeef'],
    [
      '00000000: dead beef 0001 0203 0405 0607 0809 0a0b  ................',
      'dump 8 bits: deadbeef000102030405060708090a0b',
    ],
    ['00000000: 6162 6364 65                             abcde', 'dump 8 bits: 6162636465'],
    ['00000000: 61626364  abcd', 'dump 8 bits: 61626364'],
    ['00000000: 61 62  ab', 'dump 8 bits: 6162'],
    ['000000 de ad be ef  >....<', 'dump 8 bits: deadbeef'],
    ['0000000 adde efbe\n0000004', 'dump 16 bits: efbeadde'],
    ['00000000  DE AD BE EF 41 42 43 44  ....ABCD', 'dump 8 bits: deadbeef41424344'],
    ['0x7fffffffe0a0:\t0xde\t0xad\t0xbe\t0xef', 'dump 8 bits: deadbeef'],
    ['0x7fffffffe0a0:\t0x00000001\t0x00000002', 'dump 32 bits: 200000001'],
    [
      '0x4010 <main+4>:\t0x0000000000000001\t0x0000000000000002\n0x4020 <main+20>:\t0x0000000000000003',
      'dump 64 bits: 300000000000000020000000000000001',
    ],
    ['0x7ffe:\t1\t-1', 'dump 8 bits: 1ff'],
    ['0x16fdff2a0: de ad be ef  ....', 'dump 8 bits: deadbeef'],
  ])('%s', (text, expected) => {
    expect(firstOf(text)).toBe(expected);
  });

  test.each(['0000: de a', '0000: dex', '0000 zz', '0000: zz  abcd', '00000010', '12345678 1234', '0x10:\tx'])(
    '%s is none',
    (text) => {
      expect(readingsOf(text).map(({ kind }) => kind)).not.toContain('dump');
    },
  );

  test.each([
    ['rax            0x1c                28', ['rax 1c']],
    ['rip = 0x0000000000401136', ['rip 401136']],
    ['rax 0x1 1\nrbx 0x2 2\neflags 0x246 [ PF ZF IF ]', ['rax 1', 'rbx 2', 'eflags 246']],
    ['RAX: 0000000000000001 RBX: ffff888003f7bd00', ['RAX 1', 'RBX ffff888003f7bd00']],
  ])('of registers gives each of them: %s', (text, expected) => {
    const registers = readingsOf(text).filter(({ kind }) => kind === 'register');
    expect(registers.map(({ detail, items }) => `${detail} ${items[0]!.toString(16)}`)).toEqual(expected);
    expect(readingsOf(text)[0]).toEqual(registers[0]);
  });
});

describe('an encoding', () => {
  test.each([
    ['3q2+7w==', 'base64: deadbeef'],
    ['3q2+7w', 'base64: deadbeef'],
    ['3q2-7w==', 'base64url: deadbeef'],
    ['_-8', 'base64url: ffef'],
    ['JBSWY3DPEHPK3PXP', 'base32: 48656c6c6f21deadbeef'],
    ['GE======', 'base32: 31'],
    ['1BvBMSEYstWetqTFn5Au4m4GFg7xJaNVN2', 'base58: 77bff20c60e522dfaa3350c39b030a5d004e839af415766b'],
    ['3q2+\n7w==', 'base64: deadbeef'],
  ])('%s', (text, expected) => {
    expect(firstOf(text)).toBe(expected);
  });

  test.each(['3q2+7w=', '3q2+7x==', '3', '====', '-+-+', 'a===', '3q2*'])('%s is none', (text) => {
    const kinds = readingsOf(text).map(({ kind }) => kind);
    expect(kinds.filter((kind) => kind === 'base64' || kind === 'base64url' || kind === 'base32')).toEqual([]);
  });

  test('in Base58 is not longer than any sheet needs', () => {
    expect(readingsOf('z'.repeat(401)).map(({ kind }) => kind)).not.toContain('base58');
  });
});

describe('an address', () => {
  const IPV6 = '20010db8000000000000ff0000428329';
  test.each([
    ['123e4567-e89b-12d3-a456-426614174000', 'uuid: 123e4567e89b12d3a456426614174000'],
    ['{123E4567-E89B-12D3-A456-426614174000}', 'uuid: 123e4567e89b12d3a456426614174000'],
    ['urn:uuid:123e4567-e89b-12d3-a456-426614174000', 'uuid: 123e4567e89b12d3a456426614174000'],
    ['192.168.0.1', 'ipv4: c0a80001'],
    ['2001:db8::ff00:42:8329', `ipv6: ${IPV6}`],
    ['2001:0db8:0000:0000:0000:ff00:0042:8329', `ipv6: ${IPV6}`],
    ['[2001:db8::ff00:42:8329]', `ipv6: ${IPV6}`],
    ['::', 'ipv6: 0'],
    ['::1', 'ipv6: 1'],
    ['fe80::', 'ipv6: fe800000000000000000000000000000'],
    ['::ffff:192.0.2.128', 'ipv6: ffffc0000280'],
    ['00:1a:2b:3c:4d:5e', 'mac: 1a2b3c4d5e'],
    ['00-1A-2B-3C-4D-5E', 'mac: 1a2b3c4d5e'],
    ['001a.2b3c.4d5e', 'mac: 1a2b3c4d5e'],
    ['00:1a:2b:ff:fe:3c:4d:5e', 'mac: 1a2bfffe3c4d5e'],
  ])('%s', (text, expected) => {
    expect(firstOf(text)).toBe(expected);
  });

  test.each(['1.2.3.256', '1:2:3', '1::2::3', '1:2:3:4:5:6:7:8::', 'x::', '::x', '12345::'])('%s is none', (text) => {
    expect(readingsOf(text).map(({ kind }) => kind)).not.toContain('ipv6');
    expect(readingsOf(text).map(({ kind }) => kind)).not.toContain('ipv4');
  });
});

describe('a color', () => {
  test.each([
    ['rgb(255 128 0)', 'color: ff0080ff'],
    ['rgba(255, 128, 0, 0)', 'color: 80ff'],
    ['hsl(120 100% 50%)', 'color: ff00ff00'],
  ])('%s', (text, expected) => {
    expect(firstOf(text)).toBe(expected);
  });

  test('after # can be meant as well as a number', () => {
    expect(readingsOf('#ff8000').map(({ kind }) => kind)).toEqual(['number', 'color', 'text']);
  });
});

describe('a float', () => {
  test.each([
    ['1.5', 64, '3ff8000000000000'],
    ['1.5f', 32, '3fc00000'],
    ['-1.5', 32, 'bfc00000'],
    ['1.5e-3', 32, '3ac49ba6'],
    ['1.5e-3', 64, '3f589374bc6a7efa'],
    ['.5', 16, '3800'],
    ['5.', 16, '4500'],
    ['0x1.8p3', 32, '41400000'],
    ['-0x.8p-1', 32, 'be800000'],
    ['0.1', 128, '3ffb999999999999999999999999999a'],
    ['0.1', 8, '1d'],
    ['0.0', 64, '0'],
    ['-0.0', 16, '8000'],
    ['1.0e300', 64, '7e37e43c8800759c'],
    ['inf', 32, '7f800000'],
    ['-Infinity', 64, 'fff0000000000000'],
    ['nan', 32, '7fc00000'],
  ])('%s in %i bits', (text, width, expected) => {
    const reading = readingsOf(text).find(({ kind }) => kind === 'float')!;
    const word = wordOf(reading, width);
    expect(word).toEqual({ ok: true, value: BigInt(`0x${expected}`) });
    expect(bitsNeeded(reading)).toBe(0);
  });

  test('is rounded as the engine rounds', () => {
    fc.assert(
      fc.property(fc.double({ noNaN: true, noDefaultInfinity: true }), (value) => {
        const view = new DataView(new ArrayBuffer(8));
        view.setFloat64(0, value);
        const text = value.toString();
        const written = Object.is(value, -0) ? '-0.0' : text.includes('.') ? text : text.replace(/e|$/, '.0$&');
        expect(
          wordOf(
            readingsOf(written).find(({ kind }) => kind === 'float')!,
            64,
          ),
        ).toEqual({
          ok: true,
          value: view.getBigUint64(0),
        });
      }),
    );
  });

  test.each([
    ['1.0e39', 32, 'Too large for a float of 32 bits'],
    ['1.0e999999999', 64, 'Too large for a float of 64 bits'],
    ['1.5', 512, 'There is no float of 512 bits'],
  ])('%s does not fit %i bits', (text, width, reason) => {
    const reading = readingsOf(text).find(({ kind }) => kind === 'float')!;
    expect(wordOf(reading, width)).toEqual({ ok: false, reason });
  });

  test.each(['1.2.3', 'e5', '.', '0x1.8', `1.${'0'.repeat(1000)}`])('%s is none', (text) => {
    expect(readingsOf(text).map(({ kind }) => kind)).not.toContain('float');
  });
});

describe('a string', () => {
  test.each([
    ['"Hi"', 'quoted: 4869'],
    ["'Hi'", 'quoted: 4869'],
    ['"ü"', 'quoted: c3bc'],
    ['"\\x41\\102\\n\\t\\0\\\\"', 'quoted: 41420a09005c'],
    ['"\\u00fc\\u{1F600}"', 'quoted: c3bcf09f9880'],
    ['b"\\xde\\xad"', 'quoted: dead'],
    ["b'\\xde\\xad'", 'quoted: dead'],
    ['"\\xde" "\\xad"', 'quoted: dead'],
    ['char s[] = "Hi";', 'quoted: 4869'],
    ['"0xff"', 'quoted: 30786666'],
    ['bytes.fromhex("de ad")', 'words 8 bits: dead'],
    ['int.from_bytes(b"\\xde\\xad", "big")', 'quoted: dead'],
    ['int.from_bytes(b"\\xde\\xad", "little")', 'quoted: adde'],
    ['int.from_bytes(bytes.fromhex("dead"), byteorder="little")', 'words 8 bits: adde'],
    ['u32::from_le_bytes(b"\\xde\\xad\\x00\\x00")', 'quoted: adde'],
    ['new BigInteger("dead", 16)', 'number base 16: dead'],
    ['new BigInteger("42")', 'number base 10: 2a'],
    ['new BigInteger("101", 3)', 'number base 10: 65'],
    ['BigInt("0xff")', 'number base 16: ff'],
    ['x.SetString("ff", 16)', 'number base 16: ff'],
    ['int("0b11", 2)', 'number base 2: 3'],
  ])('%s', (text, expected) => {
    expect(firstOf(text)).toBe(expected);
  });

  test('can hold a number', () => {
    expect(readingsOf('"0xff"').map(({ kind, detail }) => `${kind} ${detail}`)).toContain('number base 16');
  });

  test('without quotes is read last of all', () => {
    expect(firstOf('hello')).toBe('text: 68656c6c6f');
    expect(readingsOf('hello').at(-1)!.kind).toBe('text');
    expect(firstOf('Hi there!')).toBe('text: 486920746865726521');
  });
});

test('an empty text and a blank one are refused', () => {
  expect(readText('')).toEqual({ ok: false, reason: 'No text' });
  expect(readText(' \n')).toEqual({ ok: false, reason: 'No text' });
});

test('a text that is too long is refused without being read', () => {
  const million = 'a'.repeat(1_000_000);
  expect(readText(million)).toEqual({
    ok: false,
    reason: `1000000 characters, at most ${LONGEST_READ_TEXT} are read`,
  });
});

test.each([
  '[',
  '(',
  '{',
  '"',
  "'",
  '=',
  'a=',
  '/*',
  '//',
  '0x',
  ' ',
  ',',
  ':',
  '-',
  '1 ',
  'f ',
  'ff\n',
  '00: ',
  'rax ',
  'rax: ',
  '\\',
  '.',
  '|',
  '1.',
  '1 2  ',
])('16 kB of %j are read in reasonable time, whatever they mean', { timeout: 5000 }, (part) => {
  for (const end of ['', '!', '"', ']'])
    expect(readText(part.repeat(LONGEST_READ_TEXT).slice(0, LONGEST_READ_TEXT - 2) + `x${end}`).ok).toBe(true);
});

test('no text raises an error', () => {
  fc.assert(
    fc.property(fc.string({ unit: 'binary', maxLength: 40 }), fc.constantFrom(8, 64, 1024), (text, width) => {
      for (const reading of readingsOf(text)) {
        for (const order of ['first', 'last'] as const) expect(wordOf(reading, width, order)).toHaveProperty('ok');
      }
    }),
  );
});

describe('what is written as code', () => {
  const anyWord = fc
    .constantFrom(8, 16, 32, 64, 128, 256, 512, 1024)
    .chain((width) => fc.record({ width: fc.constant(width), word: fc.bigInt({ min: 0n, max: allBits(width) }) }));

  test.each(CODE_FORMS.map(({ id }) => id))('%s gives the word back in both orders', (id) => {
    fc.assert(
      fc.property(anyWord, fc.constantFrom('most', 'least'), ({ word: any, width: anyWidth }, order) => {
        const form = CODE_FORMS.find((each) => each.id === id)!;
        const width = form.bits ?? anyWidth;
        const word = BigInt.asUintN(width, any);
        expect(codeFormsFor(width)).toContain(form);
        const text = form.write(word, width, order);
        const [reading] = readingsOf(text);
        // A text that names its order is read in it; any other in the order in which it was written.
        const isNamed = /"(?:big|little)"/.test(text);
        const read = wordOf(
          reading!,
          width,
          isNamed || !form.hasOrder ? undefined : order === 'most' ? 'first' : 'last',
        );
        expect([text, read]).toEqual([text, { ok: true, value: word }]);
      }),
    );
  });
});
