import { useSyncExternalStore } from 'react';
import { colors } from '../../../ui/tokens';

/** Colours of a bit field, as a canvas takes them. */
export interface BitFieldPalette {
  readonly zero: string;
  readonly zeroText: string;
  readonly one: string;
  readonly oneText: string;
  readonly numbers: string;
  readonly labels: string;
  readonly hover: string;
  readonly cursor: string;
  readonly changed: string;
  readonly difference: string;
  readonly range: string;
  readonly name: string;
  readonly nameText: string;
}

export const DARK_PALETTE: BitFieldPalette = {
  zero: '#181b21',
  zeroText: colors.faintest,
  one: '#a8c7fa',
  oneText: '#0b1d36',
  numbers: colors.faint,
  labels: colors.text,
  hover: '#ffffff',
  cursor: colors.accent,
  changed: '#6ee7a0',
  difference: '#ff9e64',
  range: colors.range,
  name: '#3b4a6b',
  nameText: colors.text,
};

/** The user's own colours, where the system asks for them. */
const FORCED: BitFieldPalette = {
  zero: 'Canvas',
  zeroText: 'CanvasText',
  one: 'CanvasText',
  oneText: 'Canvas',
  numbers: 'CanvasText',
  labels: 'CanvasText',
  hover: 'Highlight',
  cursor: 'Highlight',
  changed: 'Highlight',
  difference: 'Highlight',
  range: 'Highlight',
  name: 'CanvasText',
  nameText: 'Canvas',
};

const forcedColors = typeof matchMedia === 'undefined' ? undefined : matchMedia('(forced-colors: active)');

function subscribe(changed: () => void): () => void {
  forcedColors?.addEventListener('change', changed);
  return () => forcedColors?.removeEventListener('change', changed);
}

export function useBitFieldPalette(): BitFieldPalette {
  return useSyncExternalStore(subscribe, () => (forcedColors?.matches ? FORCED : DARK_PALETTE));
}

/** Black or white, whichever is easier to read on a colour written #rrggbb or #rrggbbaa. */
export function textColorOn(color: string): string {
  return (textColors[color] ??= luminance(color) > LUMINANCE_OF_EQUAL_CONTRAST ? '#000000' : '#ffffff');
}

/** Where black and white text have the same contrast: (1.05 / (x + 0.05)) = ((x + 0.05) / 0.05), as WCAG counts it. */
const LUMINANCE_OF_EQUAL_CONTRAST = Math.sqrt(1.05 * 0.05) - 0.05;
const textColors: Record<string, string> = {};

function luminance(color: string): number {
  const [red, green, blue] = [1, 3, 5].map((start) => linear(parseInt(color.slice(start, start + 2), 16) / 255));
  return 0.2126 * red! + 0.7152 * green! + 0.0722 * blue!;
}

function linear(channel: number): number {
  return channel <= 0.04045 ? channel / 12.92 : ((channel + 0.055) / 1.055) ** 2.4;
}
