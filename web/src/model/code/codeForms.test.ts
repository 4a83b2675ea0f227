import fc from 'fast-check';
import { execFileSync } from 'node:child_process';
import { mkdtempSync, rmSync, writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { describe, expect, test } from 'vitest';
import { allBits } from '../integer/wordOperations';
import { type ByteOrder, CODE_FORMS, codeFormsFor } from './codeForms';

function write(id: string, word: bigint, width: number, order: ByteOrder = 'most'): string {
  return CODE_FORMS.find((form) => form.id === id)!.write(word, width, order);
}

/** A word of a width whose bytes are 0, 1, 2 and so on, the most significant first. */
function counting(width: number): bigint {
  return BigInt(`0x${Array.from({ length: width / 8 }, (_, byte) => byte.toString(16).padStart(2, '0')).join('')}`);
}

describe('a word with leading zeros', () => {
  test.each([
    ['hex', 0x1fn, 8, '0x1f'],
    ['hex', 1n, 16, '0x0001'],
    ['hex4', 0xbeefn, 32, '0x0000_beef'],
    ['hex4', 0x1fn, 8, '0x1f'],
    ['hex8', 0xdeadbeefn, 64, '0x00000000_deadbeef'],
    ['hex8', 1n, 16, '0x0001'],
    ['hex8', 1n, 256, `0x${'00000000_'.repeat(7)}00000001`],
    ['binary', 5n, 8, '0b00000101'],
    ['binary4', 5n, 16, '0b0000_0000_0000_0101'],
    ['decimal', 0n, 64, '0'],
    ['decimal', 999n, 64, '999'],
    ['decimal', 1234567n, 64, '1_234_567'],
    ['c8', 0x1fn, 8, 'const uint8_t value[1] = {0x1f};'],
    ['c8', 0xbeefn, 32, 'const uint8_t value[4] = {0x00, 0x00, 0xbe, 0xef};'],
    ['c32', 0x1fn, 8, 'const uint32_t value[1] = {0x0000001f};'],
    ['c32', 1n, 64, 'const uint32_t value[2] = {0x00000000, 0x00000001};'],
    ['c64', 1n, 128, 'const uint64_t value[2] = {0x0000000000000000, 0x0000000000000001};'],
    ['rust', 0xbeefn, 32, 'const VALUE: [u8; 4] = [0x00, 0x00, 0xbe, 0xef];'],
    ['python', 0xbeefn, 32, 'b"\\x00\\x00\\xbe\\xef"'],
    ['pythonInt', 0xbeefn, 16, 'int.from_bytes(b"\\xbe\\xef", "big")'],
    ['go', 0xbeefn, 32, 'var value = [4]byte{0x00, 0x00, 0xbe, 0xef}'],
    ['java', 0xbeefn, 16, 'byte[] value = {(byte) 0xbe, (byte) 0xef};'],
    ['javascript', 0xbeefn, 32, '0x0000beefn'],
    ['json', 0xbeefn, 32, '[0, 0, 190, 239]'],
    ['verilog', 0xbeefn, 32, "32'h0000_beef"],
    ['vhdl', 0xbeefn, 32, 'x"0000beef"'],
    ['base64', 0xdeadbeefn, 32, '3q2+7w=='],
    ['base64', 0n, 8, 'AA=='],
    ['hexdump', 0x417en, 16, '00000000  41 7e                                             |A~|'],
    [
      'hexdump',
      counting(256),
      256,
      '00000000  00 01 02 03 04 05 06 07  08 09 0a 0b 0c 0d 0e 0f  |................|\n' +
        '00000010  10 11 12 13 14 15 16 17  18 19 1a 1b 1c 1d 1e 1f  |................|',
    ],
    ['uuid', 1n, 128, '00000000-0000-0000-0000-000000000001'],
    ['uuid', counting(128), 128, '00010203-0405-0607-0809-0a0b0c0d0e0f'],
    ['ipv4', 0x7f000001n, 32, '127.0.0.1'],
    ['ipv6', 1n, 128, '::1'],
    ['ipv6', 0n, 128, '::'],
    ['ipv6', 0x20010db8000000000000ff0000428329n, 128, '2001:db8::ff00:42:8329'],
    ['ipv6', 0xfe80n << 112n, 128, 'fe80::'],
    ['ipv6', 0x20010db8000000010001000100010001n, 128, '2001:db8:0:1:1:1:1:1'],
    ['ipv6', 0x20010000000000010000000000000001n, 128, '2001:0:0:1::1'],
    ['ipv6', 0x20010db8000000000001000000000001n, 128, '2001:db8::1:0:0:1'],
  ])('as %s: %i in %i bits', (id, word, width, expected) => {
    expect(write(id, word, width)).toBe(expected);
  });
});

test.each([
  ['c8', 'const uint8_t value[4] = {0xef, 0xbe, 0xad, 0xde};'],
  ['c32', 'const uint32_t value[1] = {0xdeadbeef};'],
  ['rust', 'const VALUE: [u8; 4] = [0xef, 0xbe, 0xad, 0xde];'],
  ['pythonInt', 'int.from_bytes(b"\\xef\\xbe\\xad\\xde", "little")'],
  ['json', '[239, 190, 173, 222]'],
  ['base64', '776t3g=='],
  ['hex', '0xdeadbeef'],
])('the least significant byte can come first: %s', (id, expected) => {
  expect(write(id, 0xdeadbeefn, 32, 'least')).toBe(expected);
});

test.each([8, 64, 1024])('every form has a text for %i bits, and some depend on the order', (width) => {
  for (const { hasOrder, write: writeForm } of codeFormsFor(width)) {
    const [most, least] = [writeForm(counting(width), width, 'most'), writeForm(counting(width), width, 'least')];
    if (width === 1024 && hasOrder) expect(most).not.toBe(least);
    if (!hasOrder) expect(most).toBe(least);
  }
});

test('forms for one width are offered at that width only', () => {
  const ids = (width: number) => codeFormsFor(width).map(({ id }) => id);
  expect(ids(128)).toEqual(expect.arrayContaining(['uuid', 'ipv6']));
  expect(ids(128)).not.toContain('ipv4');
  expect(ids(32)).toContain('ipv4');
  expect(ids(64)).not.toContain('uuid');
});

const anyWord = fc
  .constantFrom(8, 16, 32, 64, 128, 256, 1024)
  .chain((width) => fc.record({ width: fc.constant(width), word: fc.bigInt({ min: 0n, max: allBits(width) }) }));

test('JavaScript and JSON give the word back', () => {
  fc.assert(
    fc.property(anyWord, ({ word, width }) => {
      const literal = write('javascript', word, width);
      expect(BigInt(literal.slice(0, -1))).toBe(word);
      const bytes = JSON.parse(write('json', word, width)) as number[];
      expect(bytes.reduce((value, byte) => (value << 8n) | BigInt(byte), 0n)).toBe(word);
      expect(Buffer.from(write('base64', word, width), 'base64').toString('hex')).toBe(
        word.toString(16).padStart(width / 4, '0'),
      );
    }),
  );
});

/** Whether a tool is installed on this machine. */
function hasTool(command: string): boolean {
  try {
    execFileSync(command, ['--version'], { stdio: 'ignore' });
    return true;
  } catch {
    return false;
  }
}

const SAMPLES = [8, 16, 32, 64, 128, 256, 1024].flatMap((width) =>
  [0n, 1n, allBits(width), counting(width), counting(width) << 4n].map((word) => ({
    width,
    word: BigInt.asUintN(width, word),
  })),
);
const ORDERS = ['most', 'least'] as const;
const hexOf = ({ word, width }: (typeof SAMPLES)[number]) => word.toString(16).padStart(width / 4, '0');

test.skipIf(!hasTool('python3'))('Python evaluates its forms to the word', () => {
  const lines = SAMPLES.flatMap((sample) =>
    ORDERS.flatMap((order) => {
      const [bytes, int] = ['python', 'pythonInt'].map((id) => write(id, sample.word, sample.width, order));
      const inOrder = order === 'most' ? bytes : `${bytes}[::-1]`;
      return [`assert (${inOrder}).hex() == "${hexOf(sample)}"`, `assert ${int} == 0x${hexOf(sample)}`];
    }),
  );
  const checks = [...lines, 'print("checked", __debug__)'].join('\n');
  expect(execFileSync('python3', ['-c', checks], { encoding: 'utf8' })).toBe('checked True\n');
});

test.skipIf(!hasTool('cc'))('a C compiler gives the words of the arrays back', { timeout: 60_000 }, () => {
  const folder = mkdtempSync(join(tmpdir(), 'code-'));
  try {
    const blocks = SAMPLES.flatMap(({ word, width }) =>
      ORDERS.flatMap((order) =>
        [8, 32, 64].map((bits) => {
          const least = order === 'least' ? 'n - 1 - i' : 'i';
          const print = `for (size_t n = sizeof value / sizeof *value, i = 0; i < n; i++) printf("%0*llx", ${bits / 4}, (unsigned long long)value[${least}]);`;
          return `{ ${write(`c${bits}`, word, width, order)} ${print} puts(""); }`;
        }),
      ),
    );
    const source = `#include <stdint.h>\n#include <stdio.h>\nint main(void) {\n${blocks.join('\n')}\n}\n`;
    writeFileSync(join(folder, 'words.c'), source);
    execFileSync('cc', ['-Wall', '-Werror', '-o', join(folder, 'words'), join(folder, 'words.c')]);
    const printed = execFileSync(join(folder, 'words'), { encoding: 'utf8' }).trim().split('\n');
    const words = SAMPLES.flatMap(({ word }) => Array<bigint>(ORDERS.length * 3).fill(word));
    expect(printed.map((line) => BigInt(`0x${line}`))).toEqual(words);
  } finally {
    rmSync(folder, { recursive: true });
  }
});

test.skipIf(!hasTool('rustc'))('a Rust compiler gives the bytes of the array back', { timeout: 60_000 }, () => {
  const folder = mkdtempSync(join(tmpdir(), 'code-'));
  try {
    const blocks = SAMPLES.map(
      ({ word, width }) => `{ ${write('rust', word, width)} for b in VALUE { print!("{b:02x}"); } println!(); }`,
    );
    writeFileSync(join(folder, 'words.rs'), `fn main() {\n${blocks.join('\n')}\n}\n`);
    execFileSync('rustc', ['-o', join(folder, 'words'), join(folder, 'words.rs')], { stdio: 'pipe' });
    const printed = execFileSync(join(folder, 'words'), { encoding: 'utf8' }).trim().split('\n');
    expect(printed).toEqual(SAMPLES.map(hexOf));
  } finally {
    rmSync(folder, { recursive: true });
  }
});
