import { describe, expect, test } from 'vitest';
import { decodeFloat } from './decodeFloat';
import { floatFormatFor } from './floatFormats';
import { parseFloatInput } from './parseFloatInput';

describe('accepts', () => {
  test.each([
    { text: '1', width: 16, word: 0x3c00n },
    { text: ' +1.5e0 ', width: 16, word: 0x3e00n },
    { text: '-2.', width: 32, word: 0xc0000000n },
    { text: '.5', width: 32, word: 0x3f000000n },
    { text: '65504', width: 16, word: 0x7bffn },
    { text: '0', width: 8, word: 0n },
    { text: '0.0', width: 64, word: 0n },
    { text: '-0', width: 16, word: 0x8000n },
    { text: '240', width: 8, word: 0x77n },
    { text: '0.1', width: 64, word: 0x3fb999999999999an },
    { text: '5.9604644775390625E-8', width: 16, word: 1n },
    { text: '0.10000000149011612', width: 32, word: 0x3dcccccdn },
    { text: '0.10000000149', width: 32, word: 0x3dcccccdn },
  ])('$text in $width bits', ({ text, width, word }) => {
    expect(parseFloatInput(text, width)).toEqual({ ok: true, value: word });
  });

  test('E5M2 where it is asked for', () => {
    expect(parseFloatInput('57344', 8, 'E5M2')).toEqual({ ok: true, value: 0x7bn });
  });
});

describe('refuses', () => {
  const limitation = (width: number) =>
    `Input validation not supported for ${width}-bit floats (JavaScript limitation). ` +
    'Use printToFloat with hex bit patterns instead.';
  test.each([
    { text: 'Infinity', width: 8, standard: 'IEEE754', reason: '8-bit floats require E5M2 or E4M3 standard' },
    { text: '1', width: 16, standard: 'E4M3', reason: 'E5M2 and E4M3 standards are only valid for 8-bit floats' },
    { text: '1', width: 24, standard: 'E5M2', reason: 'E5M2 and E4M3 standards are only valid for 8-bit floats' },
    { text: '1', width: 24, reason: 'Invalid bit resolution. Must be one of: 8, 16, 32, 64, 128, 256' },
    { text: '1', width: 512, reason: 'Invalid bit resolution. Must be one of: 8, 16, 32, 64, 128, 256' },
    { text: 'nonsense', width: 128, reason: limitation(128) },
    { text: 'Infinity', width: 256, reason: limitation(256) },
    { text: 'infinity', width: 16, reason: 'Cannot assign Infinity value' },
    { text: ' -INFINITY', width: 64, reason: 'Cannot assign Infinity value' },
    { text: '+Infinity', width: 8, reason: 'Cannot assign Infinity value' },
    { text: 'nan', width: 16, reason: 'Cannot assign NaN value' },
    { text: 'NaN', width: 32, reason: 'Cannot assign NaN value' },
    { text: '', width: 16, reason: 'Input is not a valid number' },
    { text: ' ', width: 16, reason: 'Input is not a valid number' },
    { text: '1.2.3', width: 16, reason: 'Input is not a valid number' },
    { text: '12px', width: 16, reason: 'Input is not a valid number' },
    { text: '0x10', width: 16, reason: 'Input is not a valid number' },
    { text: '.', width: 16, reason: 'Input is not a valid number' },
    { text: '1e', width: 16, reason: 'Input is not a valid number' },
    { text: '65520', width: 16, reason: 'Value 65520 cannot be represented in 16-bit IEEE754 format (overflow)' },
    { text: '-1e39', width: 32, reason: 'Value -1e+39 cannot be represented in 32-bit IEEE754 format (overflow)' },
    { text: '256', width: 8, reason: 'Value 256 cannot be represented in 8-bit E4M3 format (overflow)' },
    { text: '1e999', width: 64, reason: 'Value 1e999 cannot be represented in 64-bit IEEE754 format (overflow)' },
    {
      text: '0.1',
      width: 32,
      reason: 'Value 0.1 cannot be precisely represented in 32-bit IEEE754 (closest: 0.10000000149011612)',
    },
    { text: '2049', width: 16, reason: 'Value 2049 cannot be precisely represented in 16-bit IEEE754 (closest: 2048)' },
    { text: '1e-50', width: 32, reason: 'Value 1e-50 cannot be precisely represented in 32-bit IEEE754 (closest: 0)' },
    { text: '0.3', width: 8, reason: 'Value 0.3 cannot be precisely represented in 8-bit E4M3 (closest: 0.3125)' },
  ] as const)('$text in $width bits', ({ text, width, reason, ...rest }) => {
    expect(parseFloatInput(text, width, 'standard' in rest ? rest.standard : undefined)).toEqual({ ok: false, reason });
  });
});

test('every finite half float is accepted as it is written', () => {
  for (let bits = 0; bits < 65536; bits++) {
    const value = decodeFloat(BigInt(bits), floatFormatFor(16)!);
    if (!Number.isFinite(value)) continue;
    const text = Object.is(value, -0) ? '-0' : `${value}`;
    const read = parseFloatInput(text, 16);
    if (!read.ok || read.value !== BigInt(bits)) expect.fail(`${text} is not accepted as ${bits.toString(16)}`);
  }
});
