import { bytesReading, type Reading } from './reading';

const STRING = /^(?:b|r|u8|L)?("|')((?:\\[^]|(?!\1)[^\\])*)\1[;,]?$/;
const ESCAPE = /\\(?:x([\da-f]{1,2})|u\{?([\da-f]{1,6})\}?|([0-7]{1,3})|([^]))/giy;
const CONTROLS: Readonly<Record<string, number>> = { n: 10, r: 13, t: 9, a: 7, b: 8, f: 12, v: 11, e: 27 };
const encoder = new TextEncoder();

/** The text between the quotes of a string, as it is written there; undefined where the text is no string. */
export function unquoted(text: string): string | undefined {
  // Strings of C that follow each other are one.
  return STRING.exec(text.replace(/"\s*"(?=.)/g, ''))?.[2];
}

/** Reads a string of a program: its characters are bytes of UTF-8, \x and octal escapes are bytes. */
export function readQuoted(text: string): Reading | undefined {
  const written = unquoted(text);
  if (!written) return undefined;
  const bytes: number[] = [];
  for (let place = 0; place < written.length;) {
    ESCAPE.lastIndex = place;
    const escape = ESCAPE.exec(written);
    const character = String.fromCodePoint(written.codePointAt(place)!);
    bytes.push(...(escape ? escapedBytes(escape) : encoder.encode(character)));
    place += (escape?.[0] ?? character).length;
  }
  return bytesReading('quoted', bytes);
}

function escapedBytes([, hexadecimal, unicode, octal, letter]: RegExpExecArray): Iterable<number> {
  if (hexadecimal !== undefined) return [parseInt(hexadecimal, 16)];
  if (octal !== undefined) return [parseInt(octal, 8) & 255];
  if (unicode !== undefined) return encoder.encode(String.fromCodePoint(Math.min(parseInt(unicode, 16), 0x10ffff)));
  const control = CONTROLS[letter!];
  return control === undefined ? encoder.encode(letter) : [control];
}

/** The bytes of a text without quotes. */
export function readPlainText(text: string): Reading {
  return bytesReading('text', encoder.encode(text));
}
