interface Fraction {
  readonly top: bigint;
  readonly bottom: bigint;
}

/** Exponent and mantissa of each width, in bits. */
const FORMATS: Readonly<Record<number, readonly [exponent: number, mantissa: number]>> = {
  8: [4, 3],
  16: [5, 10],
  32: [8, 23],
  64: [11, 52],
  128: [15, 112],
  256: [19, 236],
};

export const FLOAT_WIDTHS = Object.keys(FORMATS).map(Number);

/** Whether a text is what a float's bits stand for: exactly, or cut off after so many digits that it is as good as exact. */
export function isFloatText(text: string, word: bigint, bits: number): boolean {
  const [exponentBits, mantissaBits] = FORMATS[bits]!;
  const mantissa = BigInt.asUintN(mantissaBits, word);
  const exponent = Number(BigInt.asUintN(exponentBits, word >> BigInt(mantissaBits)));
  const sign = word >> BigInt(bits - 1) === 1n ? '-' : '';
  const bias = 2 ** (exponentBits - 1) - 1;
  if (exponent === 2 ** exponentBits - 1) return text === (mantissa === 0n ? `${sign}Infinity` : 'NaN');
  if (exponent === 0 && mantissa === 0n) return text === '0.0';
  const digits = exponent === 0 ? mantissa : mantissa | (1n << BigInt(mantissaBits));
  const scale = Math.max(exponent, 1) - bias - mantissaBits;
  return text.startsWith(sign) && isCutOff(text.slice(sign.length), timesPower(digits, 2n, scale));
}

/** Not above the exact number, and less than 1e-15 of it or 1e-20 below it. */
function isCutOff(text: string, exact: Fraction): boolean {
  const [, whole, places, power = '0'] = /^(\d+)\.(\d+)(?:e\+(\d+))?$/.exec(text) ?? [];
  if (whole === undefined || places === undefined) return false;
  const shown = timesPower(BigInt(whole + places), 10n, Number(power) - places.length);
  const missing = exact.top * shown.bottom - shown.top * exact.bottom;
  if (missing < 0n) return false;
  const all = exact.bottom * shown.bottom;
  return missing * 10n ** 15n < exact.top * shown.bottom || missing * 10n ** 20n < all;
}

function timesPower(digits: bigint, base: bigint, power: number): Fraction {
  const factor = base ** BigInt(Math.abs(power));
  return power >= 0 ? { top: digits * factor, bottom: 1n } : { top: digits, bottom: factor };
}
