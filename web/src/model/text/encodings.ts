import { bytesReading, numberReading, type Reading } from './reading';

const BASE58_DIGITS = '123456789ABCDEFGHJKLMNPQRSTUVWXYZabcdefghijkmnopqrstuvwxyz';
const BASE32_DIGITS = 'ABCDEFGHIJKLMNOPQRSTUVWXYZ234567';
const BASE64_DIGITS = 'ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/';

/** Longer texts hold more than any sheet, and long ones in base 58 take long to read. */
const LONGEST_BASE58 = 400;
/** From here on a text of Base58's alphabet alone is hardly Base64 by chance. */
const UNLIKELY_BASE64 = 20;

/** Reads Base64 and Base32 of RFC 4648 and Base58 with Bitcoin's alphabet. @returns the likeliest reading first */
export function readEncodings(text: string): Reading[] {
  const joined = text.replace(/\s*\n\s*/g, '');
  const base58 = readBase58(joined);
  const isBase58First = joined.length >= UNLIKELY_BASE64;
  return [
    readBase32(joined),
    isBase58First ? base58 : undefined,
    readBase64(joined),
    isBase58First ? undefined : base58,
  ].filter((reading) => reading !== undefined);
}

function readBase64(text: string): Reading | undefined {
  const isUrl = /[-_]/.test(text);
  const digits = isUrl ? text.replace(/-/g, '+').replace(/_/g, '/') : text;
  const bytes = isUrl && /[+/]/.test(text) ? undefined : readBits(digits, BASE64_DIGITS, 6);
  return bytes && bytesReading(isUrl ? 'base64url' : 'base64', bytes);
}

function readBase32(text: string): Reading | undefined {
  if (text.length % 8 !== 0) return undefined;
  const bytes = readBits(text, BASE32_DIGITS, 5);
  return bytes && bytesReading('base32', bytes);
}

/** Bytes from digits of a few bits each; undefined for other characters, wrong padding and bits left over that are set. */
function readBits(text: string, alphabet: string, digitBits: number): number[] | undefined {
  let padding = 0;
  while (text.at(-1 - padding) === '=') padding++;
  const digits = text.slice(0, text.length - padding);
  const spare = (digits.length * digitBits) % 8;
  const isPadded = padding === 0 || ((text.length * digitBits) % 8 === 0 && padding * digitBits < 40);
  if (digits === '' || spare >= digitBits || !isPadded) return undefined;
  const bytes: number[] = [];
  let [pending, count] = [0, 0];
  for (const digit of digits) {
    const value = alphabet.indexOf(digit);
    if (value < 0) return undefined;
    pending = (pending << digitBits) | value;
    count += digitBits;
    if (count < 8) continue;
    count -= 8;
    bytes.push(pending >> count);
    pending &= (1 << count) - 1;
  }
  return pending === 0 ? bytes : undefined;
}

function readBase58(text: string): Reading | undefined {
  if (text === '' || text.length > LONGEST_BASE58) return undefined;
  let value = 0n;
  for (const digit of text) {
    const place = BASE58_DIGITS.indexOf(digit);
    if (place < 0) return undefined;
    value = value * 58n + BigInt(place);
  }
  return numberReading('base58', value, 0);
}
