import { hslFromRgb, hwbFromRgb, rgbFromHsl, rgbFromHwb } from './hueColors';
import { labFromRgb, oklabFromRgb, polar, rectangular, rgbFromLab, rgbFromOklab } from './labColors';
import { mapVec3, type Vec3 } from './vec3';

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

/** A functional notation and its conversions. Vec3s are in the units in which they are written. */
export interface ColorSpace {
  /** As it is offered; its functional notation is written in lower case. */
  readonly name: string;
  readonly components: readonly [ColorComponent, ColorComponent, ColorComponent];
  /** The notation's customary separator. Both are read. */
  readonly separator: ', ' | ' ';
  readonly toRgb: (components: Vec3) => Vec3;
  readonly fromRgb: (rgb: Vec3) => Vec3;
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

/** Every colour space that can be read and written, in the order in which they are offered. */
export const COLOR_SPACES = [
  {
    name: 'RGB',
    components: [CHANNEL, CHANNEL, CHANNEL],
    separator: ', ',
    toRgb: (channels) => mapVec3(channels, (channel) => channel / 255),
    fromRgb: (rgb) => mapVec3(rgb, (channel) => channel * 255),
  },
  {
    name: 'HSL',
    components: [hue(2), percentage('HSL saturation'), percentage('HSL lightness')],
    separator: ', ',
    toRgb: rgbFromHsl,
    fromRgb: hslFromRgb,
  },
  {
    name: 'LCH',
    components: [lightness('LCH', 100, 3), chroma('LCH', 150, 3), hue(3)],
    separator: ' ',
    toRgb: (lch) => rgbFromLab(rectangular(lch)),
    fromRgb: (rgb) => polar(labFromRgb(rgb)),
  },
  {
    name: 'LAB',
    components: [lightness('LAB', 100, 3), axis(125, 3), axis(125, 3)],
    separator: ' ',
    toRgb: rgbFromLab,
    fromRgb: labFromRgb,
  },
  {
    name: 'HWB',
    components: [hue(2), percentage('HWB whiteness'), percentage('HWB blackness')],
    separator: ' ',
    toRgb: rgbFromHwb,
    fromRgb: hwbFromRgb,
  },
  {
    name: 'OKLCH',
    components: [lightness('OKLCH', 1, 5), chroma('OKLCH', 0.4, 5), hue(3)],
    separator: ' ',
    toRgb: (lch) => rgbFromOklab(rectangular(lch)),
    fromRgb: (rgb) => polar(oklabFromRgb(rgb)),
  },
  {
    name: 'OKLAB',
    components: [lightness('OKLAB', 1, 5), axis(0.4, 5), axis(0.4, 5)],
    separator: ' ',
    toRgb: rgbFromOklab,
    fromRgb: oklabFromRgb,
  },
] as const satisfies readonly ColorSpace[];
