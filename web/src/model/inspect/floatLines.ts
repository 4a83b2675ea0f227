import { displayFloat } from '../float/displayFloat';
import { exactDecimal, hexFloat } from './floatTexts';
import { floatClass, floatNumber, floatValue, nextFloat, ulpExponent } from './floatValue';
import type { InspectedFormat } from './inspectedFormats';
import { type InspectedLine, line } from './inspectedLine';

/** The widest float whose numbers JavaScript's hold, in bits. */
const WIDEST_NUMBER = 64;
/** From here on all decimal digits take long to work out. */
const LONG_SCALE = 20_000;

/** A word read as a float of one format. */
export function floatLines(word: bigint, inspected: InspectedFormat): InspectedLine[] {
  const { format } = inspected;
  const parts = floatValue(word, inspected);
  const isNumber = parts.kind === 'finite' || parts.kind === 'zero';
  return [
    exactLine(word, inspected),
    ...line('hexFloat', isNumber ? hexFloat(parts, format) : undefined),
    ...line('nextUp', neighbour(word, inspected, 1)),
    ...line('nextDown', neighbour(word, inspected, -1)),
    ...line('ulp', ulp(ulpExponent(parts, format))),
    ...line('class', floatClass(word, inspected)),
  ];
}

function exactLine(word: bigint, inspected: InspectedFormat): InspectedLine {
  const parts = floatValue(word, inspected);
  const whole = () => exactDecimal(parts);
  const isLong = parts.kind === 'finite' && Math.abs(parts.scale) > LONG_SCALE;
  if (!isLong) return { id: 'exact', text: whole() };
  return { id: 'exact', text: `${displayFloat(word, inspected.format)}…`, whole };
}

function neighbour(word: bigint, inspected: InspectedFormat, step: 1 | -1): string | undefined {
  const next = nextFloat(word, inspected, step);
  if (next === undefined) return undefined;
  const { exponentBits, mantissaBits } = inspected.format;
  const width = 1 + exponentBits + mantissaBits;
  const value =
    width > WIDEST_NUMBER
      ? hexFloat(floatValue(next, inspected), inspected.format)
      : numberText(floatNumber(next, inspected));
  return `${value} (0x${next.toString(16).padStart(width / 4, '0')})`;
}

function ulp(exponent: number | undefined): string | undefined {
  if (exponent === undefined) return undefined;
  const value = 2 ** exponent;
  return value > 0 && value < Infinity ? `2^${exponent} = ${value}` : `2^${exponent}`;
}

function numberText(value: number): string {
  return Object.is(value, -0) ? '-0' : `${value}`;
}
