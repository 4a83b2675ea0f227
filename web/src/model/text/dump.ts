import { readList } from './list';
import { readLiteral } from './literal';
import { numberReading, type Reading } from './reading';

const ADDRESS = /^\s*(?:0x)?([\da-f]{4,16})(?:\s*<[^>\n]*>)?(:)?(?:\s+|$)/i;
/** The same as debuggers write it before numbers that say their base, or between tabs. */
const DEBUGGER_ADDRESS = /^\s*0x[\da-f]{1,16}(?:\s*<[^>\n]*>)?:(?=\s+0x|\t)/i;
/** Numbers of one line, before what shows them as characters. */
const NUMBERS = /^\s*[\da-f]+(?:\s+[\da-f]+)*\s*$/i;

interface DumpLine {
  readonly tokens: readonly string[];
  readonly hasColon: boolean;
}

/**
 * Reads a memory dump: bytes or words in hexadecimal, with or without addresses and characters beside them, as
 * hexdump, xxd, od, debuggers and this program write it.
 */
export function readDump(text: string): Reading | undefined {
  const lines = text.split('\n').filter((line) => line.trim() !== '');
  if (lines.every((line) => DEBUGGER_ADDRESS.test(line))) {
    const [words] = readList(`[${lines.map((line) => line.replace(DEBUGGER_ADDRESS, '')).join(' ')}]`);
    return words && dumpOf(words.items, words.itemBits);
  }
  const read: DumpLine[] = [];
  for (const line of lines) {
    const dumped = readLine(line);
    if (!dumped) return undefined;
    if (dumped.tokens.length > 0) read.push(dumped);
  }
  const tokens = read.flatMap((line) => line.tokens);
  if (tokens.length === 0 || tokens.some((token) => token.length % 2 === 1)) return undefined;
  const isBytes = read[0]!.hasColon || tokens[0]!.length === 2;
  const items = isBytes ? tokens.join('').match(/../g)! : tokens;
  return dumpOf(
    items.map((item) => BigInt(`0x${item}`)),
    Math.max(...items.map((item) => item.length * 4)),
  );
}

/** Most memory is little-endian: of words the first is the least significant. Bytes are taken as they are read. */
function dumpOf(items: readonly bigint[], itemBits: number): Reading {
  return { kind: 'dump', detail: `${itemBits} bits`, items, itemBits, order: itemBits === 8 ? 'first' : 'last' };
}

/** @returns undefined for what is no line of a dump */
function readLine(line: string): DumpLine | undefined {
  const [prefix, digits, colon] = ADDRESS.exec(line) ?? [];
  const bar = /\s[|>]/.exec(line);
  const hasBar = bar !== null;
  const rest = hasBar ? line.slice(0, bar.index) : line;
  if (prefix === undefined || digits === undefined) return hasBar ? withTokens(rest, false) : undefined;
  const numbers = rest.slice(prefix.length);
  if (colon === undefined && !hasBar && !isAddress(digits, numbers)) return undefined;
  return withTokens(hasBar ? numbers : withoutCharacters(numbers), colon !== undefined);
}

/** A number that is longer than those after it is their address. */
function isAddress(digits: string, numbers: string): boolean {
  const [first] = numbers.trim().split(/\s+/, 1);
  return digits.startsWith('0') && digits.length > 5 && first!.length < digits.length;
}

function withTokens(numbers: string, hasColon: boolean): DumpLine | undefined {
  const trimmed = numbers.trim();
  if (trimmed === '') return { tokens: [], hasColon };
  return NUMBERS.test(numbers) ? { tokens: trimmed.split(/\s+/), hasColon } : undefined;
}

/** Takes the characters away that follow the numbers after two blanks: one for each byte. */
function withoutCharacters(numbers: string): string {
  for (const { index } of numbers.matchAll(/ {2,}(?=\S)/g)) {
    const before = numbers.slice(0, index);
    const bytes = before.replace(/\s/g, '').length / 2;
    const after = numbers.slice(index).trimStart();
    if (after.length === bytes || !NUMBERS.test(after)) return before;
  }
  return numbers;
}

const REGISTER =
  /(?:^|[\s,;])([a-z][\w.]{0,15})(?:[ \t]{0,24}[:=][ \t]{0,24}|[ \t]{1,24})(0x[\da-f]+|[\da-f]{8,16}\b)/gi;

/** Reads a dump of registers, such as "rax 0x1c 28", a line each or several on a line: each register alone. */
export function readRegisters(text: string): Reading[] {
  const registers = [...text.matchAll(REGISTER)];
  if (registers[0]?.index !== 0) return [];
  return registers.map(([, name, digits]) => {
    const literal = readLiteral(digits!.replace(/^(?:0x)?/i, '0x'))!;
    return numberReading('register', literal.value, literal.bits, name);
  });
}
