const ZERO_ENDS = /^\0+|\0+$/g;
const UNPRINTABLE = /(?![\t\n\r])\p{Cc}/u;
const decoder = new TextDecoder('utf-8', { fatal: true });

/** Bytes as pairs of hexadecimal digits. */
export function bytePairs(bytes: readonly number[]): string {
  return bytes.map((byte) => byte.toString(16).padStart(2, '0')).join(' ');
}

/** A character for each byte, a point where ASCII has none that can be seen. */
export function asciiText(bytes: readonly number[]): string {
  return String.fromCharCode(...bytes).replace(/[^ -~]/g, '.');
}

/** The text that bytes are in UTF-8, without zeros at its ends; undefined where they are none that can be read. */
export function utf8Text(bytes: readonly number[]): string | undefined {
  try {
    const text = decoder.decode(Uint8Array.from(bytes)).replace(ZERO_ENDS, '');
    return text === '' || UNPRINTABLE.test(text) ? undefined : text;
  } catch {
    return undefined;
  }
}
