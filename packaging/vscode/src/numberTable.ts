import { displayFloat } from '../../../web/src/model/float/displayFloat';
import { floatFormatFor } from '../../../web/src/model/float/floatFormats';
import { PICKER_RESOLUTIONS } from '../../../web/src/model/sheet/resolutions';
import { readLiteral } from '../../../web/src/model/text/literal';

/** Longer ones would not fit into a hover. */
const WIDEST = 1024;
/** Places of set bits that are listed before the rest is only counted. */
const MOST_RANGES = 12;

export interface NumberRow {
  readonly name: string;
  readonly text: string;
}

/** What a literal of a program means, in the forms that people ask for; undefined where no sheet has room for it. */
export function numberRows(text: string): NumberRow[] | undefined {
  const literal = readLiteral(text);
  if (!literal || literal.value < 0n || literal.bits > WIDEST) return undefined;
  const width = PICKER_RESOLUTIONS.find((bits) => bits >= literal.bits)!;
  const { value } = literal;
  const format = width <= 64 ? floatFormatFor(width) : undefined;
  return [
    { name: 'Hexadecimal', text: `0x${grouped(value.toString(16), 4)}` },
    { name: 'Decimal', text: grouped(value.toString(), 3) },
    { name: 'Binary', text: `0b${grouped(value.toString(2), 4)}` },
    ...(format ? [{ name: `Float ${width}`, text: displayFloat(value, format) }] : []),
    { name: 'Set bits', text: setBits(value) },
  ];
}

function grouped(digits: string, size: number): string {
  return digits.replace(new RegExp(`(?<=.)(?=(?:.{${size}})+$)`, 'g'), '_');
}

/** The places of set bits, counted from 0 at the least significant end; those side by side as a range. */
function setBits(value: bigint): string {
  const digits = value.toString(2);
  const ranges = [...digits.matchAll(/1+/g)].map(({ 0: ones, index }) => {
    const high = digits.length - 1 - index;
    return ones.length === 1 ? `${high}` : `${high}–${high - ones.length + 1}`;
  });
  const count = digits.replaceAll('0', '').length;
  if (count === 0) return 'none';
  const rest = ranges.length > MOST_RANGES ? ', …' : '';
  return `${count}: ${ranges.slice(0, MOST_RANGES).join(', ')}${rest}`;
}
