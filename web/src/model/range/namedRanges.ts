import { failure, type Result, success } from '../result';
import { type BitRange, rangeWidth, writtenRange } from './bitRange';
import { parseRange, RANGE_PATTERN } from './parseRange';

/** A label for bits of a sheet, such as a field of a register. */
export interface NamedRange extends BitRange {
  readonly name: string;
}

/** Of one sheet. */
export const MOST_NAMES = 256;
/** In characters; a longer one is cut. */
const LONGEST_NAME = 60;

const NAME_FIRST = new RegExp(`^(.*?[^\\s:,=])[:=]?[\\s,][\\s:,=]*(${RANGE_PATTERN})$`, 'i');
const BITS_FIRST = new RegExp(`^(${RANGE_PATTERN})[\\s:,]+(\\D.*)$`, 'i');

/**
 * Reads a list of names with their bits as manuals have it: lines such as "OPCODE 31:26" or "READY 7", or with the bits
 * first. Empty lines are skipped.
 * @param resolution - bits of the sheet
 * @returns undefined when the text is no such list; the reason when a line of it is wrong
 */
export function readNames(text: string, resolution: number): Result<readonly NamedRange[]> | undefined {
  const lines = text.split('\n').map((line) => line.trim());
  const parts = lines.filter((line) => line !== '').map(partsOf);
  // Names with single numbers alone are registers with their values.
  if (!parts.some((part) => part && /:|\.\.|-|\[/.test(part.bits))) return undefined;
  if (parts.length > MOST_NAMES) return failure(`${parts.length} names, at most ${MOST_NAMES} are kept`);
  const names: NamedRange[] = [];
  for (const part of parts) {
    if (!part) return undefined;
    const range = parseRange(part.bits, resolution);
    if (!range.ok) return failure(`${part.name}: ${range.reason}`);
    names.push({ name: part.name, ...range.value });
  }
  return success(names);
}

function partsOf(line: string): { name: string; bits: string } | undefined {
  const [, name, bits] = NAME_FIRST.exec(line) ?? [];
  if (name !== undefined && /[^\d\s.:[\]-]/.test(name)) return { name: tidyName(name), bits: bits! };
  const [, first, rest] = BITS_FIRST.exec(line) ?? [];
  return first === undefined ? undefined : { name: tidyName(rest!), bits: first };
}

/** A name without blanks around it and line ends in it, and not too long. */
export function tidyName(text: string): string {
  return text.trim().replace(/\s+/g, ' ').slice(0, LONGEST_NAME);
}

/** One line for each name, as `readNames` reads them. */
export function writeNames(names: readonly NamedRange[]): string {
  return names.map((each) => `${each.name} ${bareRange(each)}`).join('\n');
}

/** "31:26", or "29" for one bit. */
export function bareRange(range: BitRange): string {
  return writtenRange(range).slice(1, -1);
}

/** Adds names to others. One that is there already takes its new bits. The most significant comes first, a wide one before what it holds. */
export function withNames(before: readonly NamedRange[], added: readonly NamedRange[]): NamedRange[] {
  const all = new Map([...before, ...added].map((each) => [each.name, each]));
  return [...all.values()].sort((a, b) => b.hi - a.hi || a.lo - b.lo);
}

/**
 * The lane of each name, counted from 0 next to the bits, so that names in one lane never overlap. Narrow ones come first,
 * so that what holds others lies above them.
 */
export function stackNames(names: readonly BitRange[]): ReadonlyMap<BitRange, number> {
  const lanes: BitRange[][] = [];
  const laneOf = new Map<BitRange, number>();
  for (const name of [...names].sort((a, b) => rangeWidth(a) - rangeWidth(b))) {
    const found = lanes.findIndex((lane) => lane.every(({ hi, lo }) => name.lo > hi || name.hi < lo));
    const place = found < 0 ? lanes.push([]) - 1 : found;
    lanes[place]!.push(name);
    laneOf.set(name, place);
  }
  return laneOf;
}
