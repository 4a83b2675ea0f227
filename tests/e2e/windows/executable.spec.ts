import { expect, test } from '@playwright/test';
import { executable } from '../support/windows/paths';
import { PortableExecutable } from '../support/windows/portableExecutable';

const icon = 3;
const iconGroup = 14;
const versionInformation = 16;
const manifest = 24;

/** DLLs that come with Windows itself, among them the C runtime that it brings. */
const windowsOwn = [
  ...['advapi32', 'comdlg32', 'crypt32', 'gdi32', 'kernel32', 'msvcrt', 'ole32'],
  ...['shell32', 'shlwapi', 'user32', 'version', 'ws2_32'],
];

const program = new PortableExecutable(executable);

const ofType = (wanted: number) => program.resources.filter(({ type }) => type === wanted);

/** The images of an icon group: side in pixels, bits per pixel and the number of the resource with its picture. */
function imagesOf(group: Buffer) {
  return Array.from({ length: group.readUInt16LE(4) }, (_, index) => {
    const at = 6 + index * 14;
    return {
      side: group.readUInt8(at) || 256,
      height: group.readUInt8(at + 1) || 256,
      bits: group.readUInt16LE(at + 6),
      id: group.readUInt16LE(at + 12),
    };
  });
}

test('the icon is there for the shell and for the window, in every size and depth', () => {
  expect(ofType(iconGroup).map(({ id }) => id)).toEqual([100, 32512]);
  const expected = [
    ...[48, 32, 16].flatMap((side) => [`${side} at 4`, `${side} at 8`]),
    ...[256, 128, 96, 64, 48, 32, 24, 16].map((side) => `${side} at 32`),
  ];
  for (const group of ofType(iconGroup)) {
    const images = imagesOf(group.bytes);
    expect(images.map(({ side, bits }) => `${side} at ${bits}`).sort()).toEqual(expected.sort());
    expect(images.every(({ side, height }) => side === height)).toBe(true);
  }
});

test('pictures with few colours have palettes', () => {
  const pictures = new Map(ofType(icon).map(({ id, bytes }) => [id, bytes]));
  const few = ofType(iconGroup)
    .flatMap(({ bytes }) => imagesOf(bytes))
    .filter(({ bits }) => bits < 32);
  expect(few).toHaveLength(12);
  for (const { id, side, bits } of few) {
    const picture = pictures.get(id)!;
    // A bitmap's header, its palette, its pixels and one bit for each pixel that is transparent.
    const paletteBytes = (picture.readUInt32LE(32) || 2 ** bits) * 4;
    const rowBytes = (bitsPerPixel: number) => Math.ceil((side * bitsPerPixel) / 32) * 4;
    expect(picture.readUInt16LE(14)).toBe(bits);
    expect(picture).toHaveLength(40 + paletteBytes + side * (rowBytes(bits) + rowBytes(1)));
  }
});

test('the manifest asks for no more rights than the user has, and for nothing else', () => {
  const texts = ofType(manifest).map(({ bytes }) => bytes.toString('utf8'));
  expect(texts).toHaveLength(1);
  expect(texts[0]).toContain('<requestedExecutionLevel level="asInvoker" uiAccess="false"/>');
  expect(texts[0]).not.toMatch(/dpiAware|activeCodePage/i);
});

test('the version stands in its properties', () => {
  const [version] = ofType(versionInformation);
  const text = version?.bytes.toString('utf16le') ?? '';
  for (const [name, value] of [
    ['FileDescription', 'Tessary'],
    ['FileVersion', '1.5.4'],
    ['OriginalFilename', 'tessary.exe'],
    ['ProductName', 'Tessary'],
    ['ProductVersion', '1.5.4'],
  ]) {
    expect(text).toMatch(new RegExp(`${name}\0+${value?.replaceAll('.', '\\.')}\0`));
  }
});

test('it is a program with windows that needs only what every Windows has', () => {
  expect(program.subsystem).toBe(2);
  const needed = program.imports.map((name) => name.toLowerCase().replace(/\.dll$/, ''));
  expect(needed).toContain('comdlg32');
  expect(needed.filter((name) => !windowsOwn.includes(name))).toEqual([]);
});

test('it may lie anywhere in memory, and its data is never run', () => {
  const [highEntropy, dynamicBase, dataIsNotRun] = [0x20, 0x40, 0x100];
  expect(program.characteristics & (highEntropy | dynamicBase | dataIsNotRun)).toBe(0x160);
});

test('every thread has room for the longest path that the server takes', () => {
  expect(program.stackReserve).toBeGreaterThanOrEqual(16 * 1024 * 1024);
});
