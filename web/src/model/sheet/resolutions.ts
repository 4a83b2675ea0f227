/** Widths in bits that a document may give a sheet. */
export const DOCUMENT_RESOLUTIONS = [8, 16, 32, 64, 128, 256, 512, 1024] as const;

/** Widths in bits that the user can choose. */
export const PICKER_RESOLUTIONS = [32, 64, 128, 256, 512, 1024] as const;

/** Width in bits of a new sheet. */
export const DEFAULT_RESOLUTION = 64;

/** The smallest word that gets a row of its own, in bits. */
export const SMALLEST_WORD = 8;

/** Widths of the integer rows of a sheet in bits, the widest first: the resolution, its half, and so on down to 8. */
export function integerWidths(resolution: number): number[] {
  const widths: number[] = [];
  for (let width = resolution; width >= SMALLEST_WORD; width /= 2) widths.push(width);
  return widths;
}
