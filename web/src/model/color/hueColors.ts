import type { Vec3 } from './vec3';

/*
 * HSL and HWB after the formulas of CSS Color 4, sections 7 and 8.
 * Hue in degrees from 0, the other two numbers in percent.
 */

export function rgbFromHsl([hue, saturation, lightness]: Vec3): Vec3 {
  const light = lightness / 100;
  const reach = (saturation / 100) * Math.min(light, 1 - light);
  const channel = (offset: number) => {
    const position = (offset + hue / 30) % 12;
    return light - reach * Math.max(-1, Math.min(position - 3, 9 - position, 1));
  };
  return [channel(0), channel(8), channel(4)];
}

export function hslFromRgb(rgb: Vec3): Vec3 {
  const most = Math.max(...rgb);
  const least = Math.min(...rgb);
  const light = (most + least) / 2;
  const room = Math.min(light, 1 - light);
  const saturation = room === 0 ? 0 : (most - light) / room;
  return [hueOf(rgb), saturation * 100, light * 100];
}

export function rgbFromHwb([hue, whiteness, blackness]: Vec3): Vec3 {
  const white = whiteness / 100;
  const black = blackness / 100;
  const sum = white + black;
  if (sum >= 1) return [white / sum, white / sum, white / sum];
  const [red, green, blue] = rgbFromHsl([hue, 100, 50]);
  const room = 1 - sum;
  return [red * room + white, green * room + white, blue * room + white];
}

export function hwbFromRgb(rgb: Vec3): Vec3 {
  return [hueOf(rgb), Math.min(...rgb) * 100, (1 - Math.max(...rgb)) * 100];
}

// Greys have no hue; 0 is what style sheets take for a missing one.
function hueOf([red, green, blue]: Vec3): number {
  const most = Math.max(red, green, blue);
  const spread = most - Math.min(red, green, blue);
  if (spread === 0) return 0;
  if (most === red) return ((green - blue) / spread) * 60 + (green < blue ? 360 : 0);
  if (most === green) return ((blue - red) / spread) * 60 + 120;
  return ((red - green) / spread) * 60 + 240;
}
