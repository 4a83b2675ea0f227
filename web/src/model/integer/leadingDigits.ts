/** The leading decimal digits of a whole number and how many digits it has in all. */
export interface LeadingDigits {
  readonly digits: string;
  readonly count: number;
}

/**
 * The leading decimal digits of significand * 2 ** scale, exactly, not rounded. Writing out all 78,914 digits of the
 * largest 256-bit float takes milliseconds; this divides by a power of ten that is known to some bits only, and asks
 * for more bits when they leave a doubt about the digits.
 * @param significand - more than 0
 * @param scale - not negative
 * @param wanted - how many digits; all are given when there are fewer
 * @param precision - bits to begin with, at least 64
 */
export function leadingDigits(significand: bigint, scale: number, wanted: number, precision = 384): LeadingDigits {
  const bitLength = significand.toString(2).length + scale;
  // One digit more than is wanted, so that a guess that is one too low still leaves enough.
  const dropped = Math.max(0, Math.floor((bitLength - 1) * Math.log10(2)) - wanted);
  for (let bits = precision; ; bits *= 2) {
    const power = powerOfTen(dropped, bits);
    const shift = scale - power.scale;
    const largest = quotient(significand, shift, power.least);
    if (largest !== quotient(significand, shift, power.most)) continue;
    const digits = largest.toString();
    return { digits: digits.slice(0, wanted), count: digits.length + dropped };
  }
}

// The whole part of value * 2 ** shift / divisor.
function quotient(value: bigint, shift: number, divisor: bigint): bigint {
  return shift >= 0 ? (value << BigInt(shift)) / divisor : value / (divisor << BigInt(-shift));
}

/** Bounds of a power: it lies from least * 2 ** scale to most * 2 ** scale. */
interface PowerBounds {
  least: bigint;
  most: bigint;
  scale: number;
}

function powerOfTen(exponent: number, bits: number): PowerBounds {
  let power: PowerBounds = { least: 1n, most: 1n, scale: 0 };
  for (const bit of exponent.toString(2)) {
    const factor = bit === '1' ? 10n : 1n;
    power = narrowed(
      { least: power.least ** 2n * factor, most: power.most ** 2n * factor, scale: power.scale * 2 },
      bits,
    );
  }
  return power;
}

function narrowed({ least, most, scale }: PowerBounds, bits: number): PowerBounds {
  const excess = Math.max(0, (most.toString(16).length - 1) * 4 - bits);
  const dropped = BigInt(excess);
  const roundingUp = (1n << dropped) - 1n;
  return { least: least >> dropped, most: (most + roundingUp) >> dropped, scale: scale + excess };
}
