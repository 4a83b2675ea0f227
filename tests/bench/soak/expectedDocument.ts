import { readFileSync } from 'node:fs';

export interface ExpectedSheet {
  name: string;
  value: bigint;
  resolution: number;
}

/** What the open document must hold by now, kept without any of the page's own code. */
export class ExpectedDocument {
  sheets: ExpectedSheet[] = [];
  active = 0;

  get sheet(): ExpectedSheet {
    const sheet = this.sheets[this.active];
    if (!sheet) throw new Error('No sheet is shown');
    return sheet;
  }

  /** Puts bits into one word of the sheet that is shown. */
  setWord({ bits, index }: Word, content: bigint) {
    const shift = BigInt(bits * index);
    const mask = ((1n << BigInt(bits)) - 1n) << shift;
    this.change({ value: (this.sheet.value & ~mask) | (content << shift) });
  }

  word({ bits, index }: Word): bigint {
    return BigInt.asUintN(bits, this.sheet.value >> BigInt(bits * index));
  }

  change(fields: Partial<ExpectedSheet>) {
    this.sheets[this.active] = { ...this.sheet, ...fields };
  }
}

/** A word of a sheet. `index` is counted from 0 at the least significant end. */
export interface Word {
  bits: number;
  index: number;
}

export function wordNamed(label: string): Word {
  const [, bits, number] = /^Int (\d+) word (\d+)$/.exec(label) ?? [];
  return { bits: Number(bits), index: Number(number) - 1 };
}

/** The sheets of a document on disk. */
export function sheetsOnDisk(file: string): ExpectedSheet[] {
  const { sheets } = JSON.parse(readFileSync(file, 'utf8')) as {
    sheets: { displayName: string; int: string; intResolution: number }[];
  };
  return sheets.map(({ displayName, int, intResolution }) => ({
    name: displayName,
    value: BigInt(int),
    resolution: intResolution,
  }));
}
