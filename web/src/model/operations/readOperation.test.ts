import fc from 'fast-check';
import { describe, expect, test } from 'vitest';
import { allBits } from '../integer/wordOperations';
import { applyOperation, OPERATION_NAMES, type OperationResult } from './readOperation';

const WIDTHS = [8, 16, 32, 64, 128, 256, 512, 1024];
const noSheet = () => undefined;

/** What an operation makes of a word; throws where it is refused. */
function apply(text: string, word: bigint, width: number): OperationResult {
  const result = applyOperation(text, word, width, noSheet);
  if (!result.ok) throw new Error(result.reason);
  return result.value;
}

/** Bits as characters, the most significant first: what the operations are compared with. */
const bitsOf = (word: bigint, width: number) => word.toString(2).padStart(width, '0');
const fromBits = (bits: string) => BigInt(`0b${bits}`);

const anyWord = fc
  .constantFrom(...WIDTHS)
  .chain((width) => fc.record({ width: fc.constant(width), word: fc.bigInt({ min: 0n, max: allBits(width) }) }));
const anyTwo = anyWord.chain(({ width, word }) =>
  fc.record({ width: fc.constant(width), word: fc.constant(word), other: fc.bigInt({ min: 0n, max: allBits(width) }) }),
);
const anyCount = anyWord.chain(({ width, word }) =>
  fc.record({ width: fc.constant(width), word: fc.constant(word), count: fc.nat(width - 1) }),
);

/** Compares an operation on any word of any width with what characters of bits say. */
function expectBits(name: string, moved: (bits: string, width: number) => string): void {
  fc.assert(
    fc.property(anyWord, ({ word, width }) => {
      const expected = fromBits(moved(bitsOf(word, width), width));
      expect(apply(name, word, width)).toEqual({ word: expected, isLossy: false });
    }),
  );
}

/** Compares an operation with a count. @param left - the bits that the operation drops */
function expectMoved(
  name: string,
  moved: (bits: string, count: number) => string,
  left?: (bits: string, count: number) => string,
) {
  fc.assert(
    fc.property(anyCount, ({ word, width, count }) => {
      const bits = bitsOf(word, width);
      const isLossy = left?.(bits, count).includes('1') ?? false;
      expect(apply(`${name} ${count}`, word, width)).toEqual({ word: fromBits(moved(bits, count)), isLossy });
    }),
  );
}

describe('every operation agrees with characters of bits and with numbers, at every width', () => {
  test('swap', () => expectBits('swap', (bits) => bits.match(/.{8}/g)!.reverse().join('')));
  test('rev', () => expectBits('rev', (bits) => [...bits].reverse().join('')));
  test('not', () => expectBits('not', (bits) => bits.replace(/./g, (bit) => (bit === '0' ? '1' : '0'))));
  test('rol', () => expectMoved('rol', (bits, count) => bits.slice(count) + bits.slice(0, count)));
  test('ror', () =>
    expectMoved('ror', (bits, count) => bits.slice(bits.length - count) + bits.slice(0, bits.length - count)));
  test('shl', () =>
    expectMoved(
      'shl',
      (bits, count) => bits.slice(count) + '0'.repeat(count),
      (bits, count) => bits.slice(0, count),
    ));
  test('shr', () =>
    expectMoved(
      'shr',
      (bits, count) => '0'.repeat(count) + bits.slice(0, bits.length - count),
      (bits, count) => bits.slice(bits.length - count),
    ));
  test('sar', () =>
    expectMoved(
      'sar',
      (bits, count) => bits[0]!.repeat(count) + bits.slice(0, bits.length - count),
      (bits, count) => bits.slice(bits.length - count),
    ));

  test.each([
    ['and', (a: string, b: string) => a === '1' && b === '1'],
    ['or', (a: string, b: string) => a === '1' || b === '1'],
    ['xor', (a: string, b: string) => a !== b],
  ])('%s', (name, isOne) => {
    fc.assert(
      fc.property(anyTwo, ({ word, other, width }) => {
        const others = bitsOf(other, width);
        const bits = [...bitsOf(word, width)].map((bit, place) => (isOne(bit, others[place]!) ? '1' : '0'));
        expect(apply(`${name} 0x${other.toString(16)}`, word, width)).toEqual({
          word: fromBits(bits.join('')),
          isLossy: false,
        });
      }),
    );
  });

  test('add, sub and neg', () => {
    fc.assert(
      fc.property(anyTwo, ({ word, other, width }) => {
        const size = 2n ** BigInt(width);
        const [sum, difference] = [word + other, word - other];
        expect(apply(`add ${other}`, word, width)).toEqual({ word: sum % size, isLossy: sum >= size });
        expect(apply(`sub ${other}`, word, width)).toEqual({
          word: (difference + size) % size,
          isLossy: difference < 0n,
        });
        expect(apply('neg', word, width)).toEqual({ word: (size - word) % size, isLossy: false });
      }),
    );
  });

  test('set and clear', () => {
    fc.assert(
      fc.property(anyCount, fc.nat(1023), ({ word, width, count }, any) => {
        const [from, to] = [count, any % width].sort((a, b) => a - b) as [number, number];
        const changed = (digit: string) =>
          fromBits(
            [...bitsOf(word, width)]
              .map((bit, place) => {
                const number = width - 1 - place;
                return number >= from && number <= to ? digit : bit;
              })
              .join(''),
          );
        expect(apply(`set ${to}:${from}`, word, width).word).toBe(changed('1'));
        expect(apply(`clear ${from}:${to}`, word, width).word).toBe(changed('0'));
      }),
    );
  });

  test('fill', () => {
    fc.assert(
      fc.property(anyWord, fc.stringMatching(/^[0-9a-f]{1,20}$/), ({ word, width }, pattern) => {
        const digits = pattern.repeat(width).slice(-width / 4);
        const isCut = pattern.length * 4 > width && BigInt(`0x${pattern}`) >= 2n ** BigInt(width);
        expect(apply(`fill 0x${pattern}`, word, width)).toEqual({ word: BigInt(`0x${digits}`), isLossy: isCut });
      }),
    );
  });

  test('gray and ungray', () => {
    fc.assert(
      fc.property(anyWord, ({ word, width }) => {
        const next = BigInt.asUintN(width, word + 1n);
        const [code, following] = [apply('gray', word, width).word, apply('gray', next, width).word];
        expect(bitsOf(code ^ following, width).replace(/0/g, '')).toBe('1');
        expect(apply('ungray', code, width).word).toBe(word);
        expect(apply('gray', 0n, width).word).toBe(0n);
      }),
    );
  });
});

test.each([
  ['swap', 0x12345678n, 32, 0x78563412n],
  ['SWAP', 0x12345678n, 32, 0x78563412n],
  ['  ror   7 ', 1n, 32, 0x02000000n],
  ['set 3', 0n, 8, 8n],
  ['set 4..7', 0n, 8, 0xf0n],
  ['set 4-7', 0n, 8, 0xf0n],
  ['clear 0:3', 0xffn, 8, 0xf0n],
  ['fill 0xaa', 0n, 64, 0xaaaa_aaaa_aaaa_aaaan],
  ['fill 0b10', 0n, 8, 0xaan],
  ['fill 170', 0n, 16, 0xaaaan],
  ['fill 1', 0n, 16, 0x101n],
  ['fill 0xabc', 0n, 32, 0xbcabcabcn],
  ['fill "Hi"', 0n, 32, 0x48694869n],
  ['xor 0xff', 0xf0n, 8, 0x0fn],
  ['xor de ad', 0n, 16, 0xdeadn],
  ['and -2', 0xffn, 8, 0xfen],
  ['add 1.5', 0n, 32, 0x3fc00000n],
  ['xor 1.2.3.4', 0n, 32, 0x01020304n],
])('%s', (text, word, width, expected) => {
  expect(apply(text, word, width).word).toBe(expected);
});

test.each([
  ['and 0x1ff', 0xffn, true],
  ['add 1', 0xffn, true],
  ['sub 1', 0n, true],
  ['shl 1', 0x80n, true],
  ['shr 1', 1n, true],
  ['shr 1', 2n, false],
  ['ror 1', 1n, false],
])('%s on %i says whether bits are lost', (text, word, isLossy) => {
  expect(apply(text, word, 8).isLossy).toBe(isLossy);
});

test.each([
  ['', 'No operation'],
  ['  ', 'No operation'],
  ['frobnicate', 'There is no operation "frobnicate"'],
  ['constructor', 'There is no operation "constructor"'],
  ['swap 4', 'Nothing follows here: "4"'],
  ['ror', 'Count must be 0 to 63'],
  ['ror 64', 'Count must be 0 to 63'],
  ['ror -1', 'Count must be 0 to 63'],
  ['shl 99999999999', 'Count must be 0 to 63'],
  ['set', 'Bits must be 0 to 63'],
  ['set 64', 'Bits must be 0 to 63'],
  ['clear 0:64', 'Bits must be 0 to 63'],
  ['clear x', 'Bits must be 0 to 63'],
  ['xor', 'A value must follow'],
  ['xor zz top', '"zz top" is no value'],
  [`xor ${'1'.repeat(20_000)}`, `"${'1'.repeat(40)}" is no value`],
  [`xor 0x${'f'.repeat(3000)}`, '12000 bits, room for 8192'],
  ['xor @"Number B"', 'There is no sheet "Number B"'],
])('%s is refused', (text, reason) => {
  expect(applyOperation(text, 0n, 64, noSheet)).toEqual({ ok: false, reason });
});

test('another sheet can be the second word', () => {
  const sheets = (name: string) => (name === 'Number B' ? 0xffn : undefined);
  const expected = { ok: true, value: { word: 0xf0n, isLossy: false } };
  expect(applyOperation('xor @"Number B"', 0x0fn, 64, sheets)).toEqual(expected);
  expect(applyOperation('xor @Number B', 0x0fn, 64, sheets)).toEqual(expected);
});

test('every name is an operation, and says what it takes', () => {
  const sample = { '': '', n: ' 1', x: ' 0x1', 'a:b': ' 1:2' };
  for (const { name, placeholder } of OPERATION_NAMES) {
    expect(applyOperation(`${name}${sample[placeholder as keyof typeof sample]}`, 5n, 64, noSheet).ok).toBe(true);
  }
  expect(OPERATION_NAMES).toHaveLength(19);
});

test('bits that are no whole bytes are not swapped', () => {
  expect(applyOperation('swap', 0xabcn, 12, noSheet)).toEqual({ ok: false, reason: 'Only whole bytes can be swapped' });
});
