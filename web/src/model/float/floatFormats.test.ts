import { expect, test } from 'vitest';
import {
  floatFieldAt,
  floatFields,
  floatFormatFor,
  floatStandardFor,
  WIDEST_EDITABLE_FLOAT,
  WIDEST_FLOAT,
} from './floatFormats';

test.each([
  { width: 8, name: 'E4M3', exponentBits: 4, mantissaBits: 3, bias: 7 },
  { width: 16, name: 'IEEE754-16', exponentBits: 5, mantissaBits: 10, bias: 15 },
  { width: 32, name: 'IEEE754-32', exponentBits: 8, mantissaBits: 23, bias: 127 },
  { width: 64, name: 'IEEE754-64', exponentBits: 11, mantissaBits: 52, bias: 1023 },
  { width: 128, name: 'IEEE754-128', exponentBits: 15, mantissaBits: 112, bias: 16383 },
  { width: 256, name: 'IEEE754-256', exponentBits: 19, mantissaBits: 236, bias: 262143 },
])('a word of $width bits is shown as $name', ({ width, ...format }) => {
  expect(floatFormatFor(width)).toEqual(format);
  expect(1 + format.exponentBits + format.mantissaBits).toBe(width);
});

test('E5M2 is there for those who name it', () => {
  expect(floatFormatFor(8, 'E5M2')).toEqual({ name: 'E5M2', exponentBits: 5, mantissaBits: 2, bias: 15 });
  expect(floatStandardFor(8)).toBe('E4M3');
});

test('no format is given where the standard has none', () => {
  expect([floatFormatFor(512), floatFormatFor(8, 'IEEE754'), floatFormatFor(16, 'E4M3')]).toEqual(
    Array(3).fill(undefined),
  );
});

test('words up to 256 bits have a float view, those up to 128 bits an editable one', () => {
  expect([WIDEST_FLOAT, WIDEST_EDITABLE_FLOAT]).toEqual([256, 128]);
});

test.each([8, 16, 32, 64, 128, 256])(
  'every bit of a float of %i bits belongs to the part that is drawn there',
  (width) => {
    const format = floatFormatFor(width)!;
    const parts = floatFields(format).flatMap(({ label, bits }) =>
      Array.from({ length: bits }, () => ({ label, bits })),
    );
    for (const [place, { label, bits }] of parts.entries()) {
      const bit = width - 1 - place;
      const { hi, lo } = floatFieldAt(format, bit);
      expect([hi - lo + 1, lo <= bit && bit <= hi]).toEqual([bits, true]);
      expect([parts[width - 1 - hi], parts[width - 1 - lo]].map((part) => part?.label)).toEqual([label, label]);
    }
  },
);

test('fields of wide words show their width, those of a byte have no room for it', () => {
  expect(floatFields(floatFormatFor(16)!)).toEqual([
    { label: 'S', bits: 1, color: '#d32f2f' },
    { label: 'Exponent (5)', bits: 5, color: '#1976d2' },
    { label: 'Mantissa (10)', bits: 10, color: '#be5693ff' },
  ]);
  expect(floatFields(floatFormatFor(8)!).map((field) => field.label)).toEqual(['S', 'Exponent', 'Mantissa']);
});
