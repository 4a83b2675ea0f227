import { panelTexts } from '../../../web/src/i18n/panelTexts';
import { type BitsSheet, newSheetId, sheetOf } from '../../../web/src/model/sheet/bitsSheet';
import { DEFAULT_RESOLUTION, PICKER_RESOLUTIONS } from '../../../web/src/model/sheet/resolutions';
import { bitsNeeded, type ItemOrder, type Reading, wordOf } from '../../../web/src/model/text/reading';

/** One number that a text can mean, as the user can choose it. */
export interface ReadingChoice {
  readonly label: string;
  /** The number in hexadecimal. */
  readonly description: string;
  readonly value: bigint;
  /** Width in bits of the sheet that it fits. */
  readonly width: number;
}

/** What readings of a text give; those that no sheet has room for are left out. */
export function choicesOf(readings: readonly Reading[]): ReadingChoice[] {
  const choices = readings.flatMap((reading) => {
    const orders: ItemOrder[] = reading.items.length < 2 ? ['first'] : ['first', 'last'];
    const own = [...orders].sort((a, b) => Number(b === reading.order) - Number(a === reading.order));
    return own.map((order) => choiceOf(reading, order)).filter((choice) => choice !== undefined);
  });
  const seen = new Set<string>();
  return choices.filter(({ label }) => !seen.has(label) && seen.add(label));
}

/** The sheet that shows a choice. */
export function sheetOfChoice({ value, width }: ReadingChoice, displayName: string): BitsSheet {
  return sheetOf({ id: newSheetId(), displayName, int: value, intResolution: width });
}

function choiceOf(reading: Reading, order: ItemOrder): ReadingChoice | undefined {
  const width = widthFor(reading, order);
  const word = width && wordOf(reading, width, order);
  if (!word || !word.ok) return undefined;
  const digits = word.value.toString(16).padStart(reading.float ? 0 : Math.ceil(bitsOf(reading, order) / 4), '0');
  return { label: labelOf(reading, order, width), description: `0x${digits}`, value: word.value, width };
}

/** As many bits as the text shows, leading zeros included. */
function bitsOf(reading: Reading, order: ItemOrder): number {
  return Math.max(bitsNeeded(reading, order), reading.items.length * reading.itemBits);
}

function widthFor(reading: Reading, order: ItemOrder): number | undefined {
  if (reading.float) return DEFAULT_RESOLUTION;
  return PICKER_RESOLUTIONS.find((width) => width >= bitsOf(reading, order));
}

function labelOf({ kind, detail, items }: Reading, order: ItemOrder, width: number): string {
  const name = [panelTexts.readings[kind], detail].filter(Boolean).join(', ');
  const several = items.length > 1 ? ` × ${items.length}, most significant ${panelTexts.orders[order]}` : '';
  return `${name}${several} → ${width} bits`;
}
