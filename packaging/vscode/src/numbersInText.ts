import { readLiteral } from '../../../web/src/model/text/literal';
import type { Reading, ReadingKind } from '../../../web/src/model/text/reading';
import { readText } from '../../../web/src/model/text/readText';

/** A piece of a text that holds a number. Places count UTF-16 units. */
export interface NumberSpan {
  readonly start: number;
  readonly end: number;
  readonly text: string;
}

/** Characters that numbers, addresses and UUIDs are made of, and those of one number alone. */
const RUNS = [/[\w'$#.:-]+/g, /[\w'$#.]+/g, /[\w'$#]+/g];
/** What follows a number in a sentence or a program, and does not belong to it. */
const TRAILING = /[.:'-]+$/;
const LEADING = /^[.:'-]+/;
/** What a single word of a program or a sentence can mean: nearly every word is Base64, too. */
const PLAIN: readonly ReadingKind[] = ['number', 'uuid', 'ipv4', 'ipv6', 'mac', 'float'];

/** The number whose characters the place lies in, or that ends there. */
export function numberAt(line: string, place: number): NumberSpan | undefined {
  for (const run of RUNS) {
    const span = spanAt(line, run, place);
    if (span && readingsOf(span.text, PLAIN).length > 0) return span;
  }
  return undefined;
}

/** The literal at a place with at least so many digits, without regard to what only says its base or its type. */
export function literalAt(line: string, place: number, digits: number): NumberSpan | undefined {
  const span = spanAt(line, RUNS.at(-1)!, place);
  const literal = span && readLiteral(span.text);
  if (!literal || (literal.isBare && /_/.test(span.text)) || digitCount(span.text) < digits) return undefined;
  return span;
}

/**
 * What the text around a place can mean, the likeliest first: a line of a hexdump, the list of numbers in whose brackets
 * the place lies, a number.
 * @param place - where the user is in the text
 */
export function readingsAround(text: string, place: number): Reading[] {
  const start = text.lastIndexOf('\n', place - 1) + 1;
  const line = /^.*/.exec(text.slice(start))![0];
  const number = numberAt(line, place - start);
  return [
    ...readingsOf(line, ['dump']).filter(isSeveral),
    ...readingsOf(listAround(text, place), ['words']).filter(isSeveral),
    ...readingsOf(number?.text, PLAIN),
    ...readingsOf(line, ['words', 'register']).filter((reading) => isSeveral(reading) || !number),
  ];
}

function isSeveral({ items }: Reading): boolean {
  return items.length > 1;
}

function readingsOf(text: string | undefined, kinds: readonly ReadingKind[]): Reading[] {
  const readings = text === undefined ? undefined : readText(text);
  return readings?.ok ? readings.value.filter(({ kind }) => kinds.includes(kind)) : [];
}

/** The innermost brackets around a place, with what is in them. */
function listAround(text: string, place: number): string | undefined {
  for (let start = place - 1; start >= 0; start--) {
    if (text[start] === '}' || text[start] === ']') return undefined;
    if (text[start] !== '{' && text[start] !== '[') continue;
    const end = text.indexOf(text[start] === '{' ? '}' : ']', place);
    return end < 0 ? undefined : text.slice(start, end + 1);
  }
  return undefined;
}

function spanAt(line: string, run: RegExp, place: number): NumberSpan | undefined {
  for (const { 0: found, index } of line.matchAll(run)) {
    const text = found.replace(TRAILING, '').replace(LEADING, '');
    const start = index + found.indexOf(text);
    const end = start + text.length;
    if (text !== '' && start <= place && place <= end) return { start, end, text };
  }
  return undefined;
}

function digitCount(text: string): number {
  const digits = text.replace(/^(?:0[xbo]|\d*'s?[hdbo]|[$#])/i, '').replace(/_?(?:u?l{0,2}|[ui]\d+|n)$/i, '');
  return digits.replace(/[_']/g, '').length;
}
