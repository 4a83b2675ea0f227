import { describe, expect, test } from 'vitest';
import { parseColor } from './parseColor';

describe('reads', () => {
  test.each([
    { text: '#f80', bytes: [255, 136, 0] },
    { text: '#f808', bytes: [255, 136, 0, 136] },
    { text: ' #FF8000 ', bytes: [255, 128, 0] },
    { text: '#ff800080', bytes: [255, 128, 0, 128] },
    { text: 'rgb(255 128 0)', bytes: [255, 128, 0] },
    { text: 'RGB( 255  128\t0 / .5 )', bytes: [255, 128, 0, 128] },
    { text: 'rgb(255 128 0/50%)', bytes: [255, 128, 0, 128] },
    { text: 'rgba(255,128,0,0.5)', bytes: [255, 128, 0, 128] },
    { text: 'rgb(255 , 128 , 0)', bytes: [255, 128, 0] },
    { text: 'rgba(1, 2, 3)', bytes: [1, 2, 3] },
    { text: 'rgb(100% 50% 0%)', bytes: [255, 128, 0] },
    { text: 'rgb(100%, 0, 12.6)', bytes: [255, 0, 13] },
    { text: 'rgb(300 -20 1e2)', bytes: [255, 0, 100] },
    { text: 'hsl(30 100% 50%)', bytes: [255, 128, 0] },
    { text: 'hsl(30deg, 100%, 50%)', bytes: [255, 128, 0] },
    { text: 'hsla(390, 100, 50, 0)', bytes: [255, 128, 0, 0] },
    { text: 'hsl(-0.25turn 100% 50%)', bytes: [128, 0, 255] },
    { text: 'hsl(200grad 100% 50% / 1)', bytes: [0, 255, 255, 255] },
    { text: 'hsl(3.14159265rad 100% 50%)', bytes: [0, 255, 255] },
    { text: 'hwb(120 0% 0%)', bytes: [0, 255, 0] },
    { text: 'hwb(120 25% 50% / 0.2)', bytes: [64, 128, 64, 51] },
    { text: 'lab(29.2345% 39.3825 20.0664)', bytes: [0x7d, 0x23, 0x29] },
    { text: 'lab(29.2345 31.506% 16.05312%)', bytes: [0x7d, 0x23, 0x29] },
    { text: 'lch(52.2345% 72.2 56.2 / .5)', bytes: [0xc6, 0x5d, 0x06, 128] },
    { text: 'oklab(40.101% 0.1147 0.0453)', bytes: [0x7d, 0x23, 0x29] },
    { text: 'oklch(0.40101 0.12332 21.555deg)', bytes: [0x7d, 0x23, 0x29] },
    { text: 'oklcha(0% 0 0 / 0)', bytes: [0, 0, 0, 0] },
    { text: 'lab(100 0 0)', bytes: [255, 255, 255] },
  ])('$text', ({ text, bytes }) => {
    const [red, green, blue, alpha] = bytes;
    const color = { red, green, blue, alpha: alpha ?? 255 };
    expect(parseColor(text)).toEqual({ ok: true, value: { color, hasAlpha: alpha !== undefined } });
  });
});

describe('refuses', () => {
  const hex = 'Invalid HEX format. Must be #RGB, #RGBA, #RRGGBB, or #RRGGBBAA';
  const rgbFormat = 'RGB color must be in format: rgb(...) or rgba(...) with 3 or 4 values';
  const alpha = 'Alpha value must be 0-1 or 0%-100%';
  test.each([
    { text: '', reason: 'Input must be a non-empty string' },
    { text: ' \n', reason: 'Input must be a non-empty string' },
    { text: 'red', reason: 'Unknown or invalid color format' },
    { text: 'color(srgb 1 0 0)', reason: 'Unknown or invalid color format' },
    { text: '#', reason: hex },
    { text: '#ff', reason: hex },
    { text: '#fffff', reason: hex },
    { text: '#ggg', reason: hex },
    { text: '#1234567', reason: hex },
    { text: '# fff', reason: hex },
    { text: 'rgb', reason: rgbFormat },
    { text: 'rgb 1 2 3', reason: rgbFormat },
    { text: 'rgb(1 2 3', reason: rgbFormat },
    { text: 'rgbx(1 2 3)', reason: rgbFormat },
    { text: 'rgb(one 2 3)', reason: rgbFormat },
    { text: 'rgb(1deg 2 3)', reason: rgbFormat },
    { text: 'rgb(1,,3)', reason: rgbFormat },
    { text: 'rgb(1,2,3 / 0.5)', reason: rgbFormat },
    { text: 'rgb(1e999 0 0)', reason: rgbFormat },
    { text: 'rgb(1 2 3 / 0.5 / 0.5)', reason: 'RGB with alpha must have exactly one / separator' },
    { text: 'rgb(1 2 3 / 2)', reason: alpha },
    { text: 'rgb(1 2 3 / -0.1)', reason: alpha },
    { text: 'rgb(1 2 3 / 101%)', reason: alpha },
    { text: 'rgb(1 2 3 /)', reason: alpha },
    { text: 'rgb(1 2 3 / 1deg)', reason: alpha },
    { text: 'rgba(1, 2, 3, opaque)', reason: alpha },
    { text: 'rgb(1 2 / 0.5)', reason: 'RGB must have exactly 3 color values' },
    { text: 'rgb(1, 2)', reason: 'RGB must have exactly 3 color values' },
    { text: 'rgb(1 2 3 4)', reason: 'RGB must have exactly 3 color values' },
    { text: 'rgb(1, 2, 3, 0.4, 5)', reason: 'RGB must have exactly 3 color values' },
    { text: 'rgb()', reason: 'RGB must have exactly 3 color values' },
    { text: 'rgb(101% 0 0)', reason: 'RGB percentage values must be 0-100%' },
    { text: 'rgb(0, -1%, 0)', reason: 'RGB percentage values must be 0-100%' },
    { text: 'hsl(50% 0% 0%)', reason: 'HSL color must be in format: hsl(...) or hsla(...) with 3 or 4 values' },
    { text: 'hsl(0 101% 0%)', reason: 'HSL saturation must be 0-100%' },
    { text: 'hsl(0 0% -1%)', reason: 'HSL lightness must be 0-100%' },
    { text: 'hwb(0 101% 0%)', reason: 'HWB whiteness must be 0-100%' },
    { text: 'hwb(0 0% 101%)', reason: 'HWB blackness must be 0-100%' },
    { text: 'hwb(0 0% 0% / 1 / 1)', reason: 'HWB with alpha must have exactly one / separator' },
    { text: 'lab(101 0 0)', reason: 'LAB lightness must be 0-100 or 0%-100%' },
    { text: 'lab(50 0)', reason: 'LAB must have exactly 3 color values' },
    { text: 'lab(50 1e200 1e200)', reason: 'LAB color must be in format: lab(...) or laba(...) with 3 or 4 values' },
    { text: 'lch(-1 0 0)', reason: 'LCH lightness must be 0-100 or 0%-100%' },
    { text: 'lch(50 -1 0)', reason: 'LCH chroma must not be negative' },
    { text: 'oklab(1.1 0 0)', reason: 'OKLAB lightness must be 0-1 or 0%-100%' },
    { text: 'oklch(0.5 -0.1 0)', reason: 'OKLCH chroma must not be negative' },
    { text: 'oklch[0.5 0.1 0]', reason: 'OKLCH color must be in format: oklch(...) or oklcha(...) with 3 or 4 values' },
  ])('$text', ({ text, reason }) => {
    expect(parseColor(text)).toEqual({ ok: false, reason });
  });
});
