import { hslFromRgb, hwbFromRgb, rgbFromHsl, rgbFromHwb } from './hueColors';
import { labFromRgb, oklabFromRgb, polar, rectangular, rgbFromLab, rgbFromOklab } from './labColors';
import { mapTriple, type Triple } from './vec3';

/** One of the three numbers of a colour in a functional notation such as hsl(...). */
export interface ColorComponent {
  /** A hue is an angle; it may carry an angle's unit and no percent sign. */
  readonly isHue: boolean;
  /** What 100% stands for. */
  readonly hundredPercent: number;
  /** Decimal places that are written, enough for the bytes of every colour to come back. */
  readonly places: number;
  readonly suffix: '' | '%';
  /** Why a number is refused; undefined when it is not. What is not refused is clamped after the conversion. */
  readonly refusal: (value: number, isPercentage: boolean) => string | undefined;
}

/** A functional notation and its conversions. Triples are in the units in which they are written. */
export interface ColorSpace {
  readonly name: 'RGB' | 'HSL' | 'HWB' | 'LAB' | 'LCH' | 'OKLAB' | 'OKLCH';
  readonly components: readonly [ColorComponent, ColorComponent, ColorComponent];
  /** The notation's customary separator. Both are read. */
  readonly separator: ', ' | ' ';
  readonly toRgb: (components: Triple) => Triple;
  readonly fromRgb: (rgb: Triple) => Triple;
}

const anyNumber = () => undefined;

const CHANNEL: ColorComponent = {
  isHue: false,
  hundredPercent: 255,
  places: 0,
  suffix: '',
  refusal: (value, isPercentage) =>
    isPercentage && (value < 0 || value > 255) ? 'RGB percentage values must be 0-100%' : undefined,
};

function hue(places: number): ColorComponent {
  return { isHue: true, hundredPercent: 360, places, suffix: '', refusal: anyNumber };
}

function percentage(name: string): ColorComponent {
  const refusal = (value: number) => (value < 0 || value > 100 ? `${name} must be 0-100%` : undefined);
  return { isHue: false, hundredPercent: 100, places: 2, suffix: '%', refusal };
}

function lightness(space: string, most: number, places: number): ColorComponent {
  const refusal = (value: number) =>
    value < 0 || value > most ? `${space} lightness must be 0-${most} or 0%-100%` : undefined;
  return { isHue: false, hundredPercent: most, places, suffix: '', refusal };
}

function axis(hundredPercent: number, places: number): ColorComponent {
  return { isHue: false, hundredPercent, places, suffix: '', refusal: anyNumber };
}

function chroma(space: string, hundredPercent: number, places: number): ColorComponent {
  const refusal = (value: number) => (value < 0 ? `${space} chroma must not be negative` : undefined);
  return { isHue: false, hundredPercent, places, suffix: '', refusal };
}

export const RGB: ColorSpace = {
  name: 'RGB',
  components: [CHANNEL, CHANNEL, CHANNEL],
  separator: ', ',
  toRgb: (channels) => mapTriple(channels, (channel) => channel / 255),
  fromRgb: (rgb) => mapTriple(rgb, (channel) => channel * 255),
};

export const HSL: ColorSpace = {
  name: 'HSL',
  components: [hue(2), percentage('HSL saturation'), percentage('HSL lightness')],
  separator: ', ',
  toRgb: rgbFromHsl,
  fromRgb: hslFromRgb,
};

export const HWB: ColorSpace = {
  name: 'HWB',
  components: [hue(2), percentage('HWB whiteness'), percentage('HWB blackness')],
  separator: ' ',
  toRgb: rgbFromHwb,
  fromRgb: hwbFromRgb,
};

export const LAB: ColorSpace = {
  name: 'LAB',
  components: [lightness('LAB', 100, 3), axis(125, 3), axis(125, 3)],
  separator: ' ',
  toRgb: rgbFromLab,
  fromRgb: labFromRgb,
};

export const LCH: ColorSpace = {
  name: 'LCH',
  components: [lightness('LCH', 100, 3), chroma('LCH', 150, 3), hue(3)],
  separator: ' ',
  toRgb: (lch) => rgbFromLab(rectangular(lch)),
  fromRgb: (rgb) => polar(labFromRgb(rgb)),
};

export const OKLAB: ColorSpace = {
  name: 'OKLAB',
  components: [lightness('OKLAB', 1, 5), axis(0.4, 5), axis(0.4, 5)],
  separator: ' ',
  toRgb: rgbFromOklab,
  fromRgb: oklabFromRgb,
};

export const OKLCH: ColorSpace = {
  name: 'OKLCH',
  components: [lightness('OKLCH', 1, 5), chroma('OKLCH', 0.4, 5), hue(3)],
  separator: ' ',
  toRgb: (lch) => rgbFromOklab(rectangular(lch)),
  fromRgb: (rgb) => polar(oklabFromRgb(rgb)),
};
