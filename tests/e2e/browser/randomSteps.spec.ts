import type { Page } from '@playwright/test';
import {
  differences,
  digitsOf,
  type ExpectedSheet,
  isSigned,
  rowsOf,
  USUAL_CONVERTERS,
  withWord,
  wordOf,
} from '../support/browser/expectedSheet';
import { expect, test } from '../support/browser/fixtures';
import { readWords, type ShownSheet, type ShownWord, watchCanvases } from '../support/browser/shownWords';
import { enterText, WordsTool } from '../support/browser/words';
import { Chance } from '../support/shared/chance';

const STEPS = 120;
const WINDOWS = [320, 400, 560, 800, 1280, 1920].flatMap((width) => [600, 1000].map((height) => ({ width, height })));
const BASES = [2, 3, 8, 10, 16, 36, 37, 62, 64];
const OPERATIONS = [
  'none',
  'all',
  'bitwise-not',
  'shift-left',
  'shift-right',
  'shift-right-unsigned',
  'random',
] as const;

interface Change {
  tab: number;
  before: ExpectedSheet;
  after: ExpectedSheet;
}

/** A user who does whatever comes to mind, and somebody beside them who keeps the numbers on paper. */
class RandomUser {
  readonly sheets: ExpectedSheet[];
  readonly log: string[] = [];
  private tab = 0;
  private past: Change[] = [];
  private future: Change[] = [];
  private readonly left = new Set<string>();
  private shown: ShownSheet = { rows: [], words: [], focused: undefined };

  constructor(
    private readonly page: Page,
    private readonly tool: WordsTool,
    private readonly chance: Chance,
    resolutions: readonly number[],
  ) {
    this.sheets = resolutions.map((resolution) => ({
      value: 0n,
      resolution,
      signs: new Set(),
      converters: undefined,
      hidden: new Set(),
    }));
  }

  private get sheet(): ExpectedSheet {
    return this.sheets[this.tab]!;
  }

  /** Compares the page with the paper, and again until they agree: a window's new size takes effect a little later. */
  async compare(): Promise<void> {
    const read = async () => {
      this.shown = await readWords(this.page);
      return differences(this.shown, this.sheet, this.left);
    };
    await expect.poll(read, { intervals: [0, 20, 50, 100] }).toEqual([]);
    await this.settle();
    const { focused } = this.shown;
    if (focused?.field === 'Float') this.left.add(focused.word);
  }

  /** Words come and go some frames after a scroll or a window's new size. */
  private async settle(): Promise<void> {
    const names = ({ words }: ShownSheet) => words.map(({ row, number }) => `${row}:${number}`).join();
    for (let before = ''; before !== names(this.shown); this.shown = await readWords(this.page))
      before = names(this.shown);
  }

  async step(): Promise<void> {
    const actions = [
      ...[this.enter, this.enter, this.enter, this.press, this.press, this.operate, this.operate],
      ...[this.changeSign, this.enterColor, this.refuse, this.abandon, this.choose, this.convert, this.convert],
      ...[this.toggleRow, this.resize, this.resize, this.scroll, this.undo, this.undo, this.redo, this.showTab],
    ];
    try {
      await this.chance.oneOf(actions).call(this);
      await this.compare();
    } catch (error) {
      throw new Error(`After ${this.log.slice(-8).join(', ')}`, { cause: error });
    }
  }

  private note(text: string): void {
    this.log.push(text);
  }

  /** @param isRecorded - makes a step that undo takes back, also where nothing is different */
  private change(after: ExpectedSheet, isRecorded = after.value !== this.sheet.value): void {
    this.forgetLeft(after);
    if (isRecorded) {
      this.past.push({ tab: this.tab, before: this.sheet, after });
      this.future = [];
    }
    this.sheets[this.tab] = after;
  }

  /** A float field that was left shows an integer until its word changes. */
  private forgetLeft(after: ExpectedSheet): void {
    for (const name of this.left) {
      const [bits, number] = name.match(/\d+/g)!.map(Number) as [number, number];
      if (wordOf(after, bits, number - 1) !== wordOf(this.sheet, bits, number - 1)) this.left.delete(name);
    }
  }

  /** A word that is on the page. */
  private pick(row = 'Int'): { word: ShownWord; bits: number; index: number } {
    const word = this.chance.oneOf(this.shown.words.filter((each) => each.row.startsWith(row)));
    return { word, bits: Number(/\d+$/.exec(word.row)![0]), index: word.number - 1 };
  }

  /** Every length is as likely as every other, and so are small changes. */
  private number(bits: number): bigint {
    return this.chance.bits(this.chance.below(bits + 1)) & ((1n << BigInt(bits)) - 1n);
  }

  private async enter(): Promise<void> {
    const { word, bits, index } = this.pick();
    const names = Object.keys(word.fields).filter((name) => name !== 'Float');
    const name = this.chance.oneOf(names);
    const base = name === 'Value' ? 10 : Number(name.slice('Base '.length));
    const signed = isSigned(this.sheet, bits, index);
    // The range is that of the sign in every base, but only base 10 can write what is negative.
    const content = this.number(signed && base !== 10 ? bits - 1 : bits);
    const written = digitsOf(content, base, bits, signed);
    const text =
      base > 36 ? withCasesSwapped(written) : this.chance.oneOf([written, written.toLowerCase(), ` ${written}`]);
    this.note(`${word.row} word ${word.number}, ${name}: ${text}`);
    await enterText(this.tool.word(bits, word.number).group.getByRole('textbox', { name, exact: true }), text);
    this.change(withWord(this.sheet, bits, index, content));
  }

  private async press(): Promise<void> {
    const { word, bits, index } = this.pick();
    this.note(`${word.row} word ${word.number}, keys on the bits`);
    const field = this.tool.word(bits, word.number).bits;
    await field.focus();
    await this.page.keyboard.press('End');
    let after = this.sheet;
    // From bit 0 to the left.
    for (let bit = 0; bit < Math.min(bits, 1 + this.chance.below(6)); bit++) {
      if (bit > 0) await this.page.keyboard.press('ArrowLeft');
      if (this.chance.below(2) === 0) continue;
      await this.page.keyboard.press('Space');
      after = withWord(after, bits, index, wordOf(after, bits, index) ^ (1n << BigInt(bit)));
      this.change(after);
    }
  }

  private async operate(): Promise<void> {
    const { word, bits, index } = this.pick();
    const operation = this.chance.oneOf(OPERATIONS);
    this.note(`${word.row} word ${word.number}, ${operation}`);
    await this.tool.word(bits, word.number).operate(operation);
    const before = wordOf(this.sheet, bits, index);
    const top = before & (1n << BigInt(bits - 1));
    const after = {
      none: 0n,
      all: -1n,
      'bitwise-not': ~before,
      'shift-left': before << 1n,
      'shift-right': (before >> 1n) | top,
      'shift-right-unsigned': before >> 1n,
      // Nobody knows but the page; every other row must agree with this field.
      random: operation === 'random' ? await this.shownValue(bits, word.number) : 0n,
    }[operation];
    this.change(withWord(this.sheet, bits, index, after));
  }

  private async shownValue(bits: number, number: number): Promise<bigint> {
    return BigInt(await this.tool.word(bits, number).value.inputValue());
  }

  private async changeSign(): Promise<void> {
    const { word, bits, index } = this.pick();
    this.note(`${word.row} word ${word.number}, sign`);
    const block = this.tool.word(bits, word.number);
    await block.value.focus();
    await block.sign.click();
    const signs = new Set(this.sheet.signs);
    if (!signs.delete(`${index}:${bits}`)) signs.add(`${index}:${bits}`);
    this.change({ ...this.sheet, signs }, true);
  }

  private async enterColor(): Promise<void> {
    if (!this.shown.words.some(({ row }) => row === 'Color 32')) return;
    const { word, index } = this.pick('Color');
    const block = this.tool.color(word.number);
    const before = wordOf(this.sheet, 32, index);
    const content = this.chance.bits(24);
    if (this.chance.below(2) === 0) {
      const byte = content & 0xffn;
      this.note(`Color 32 word ${word.number}, alpha: ${byte}`);
      await enterText(block.getByRole('textbox', { name: 'Alpha' }), `${byte}`);
      return this.change(withWord(this.sheet, 32, index, (before & 0xffffffn) | (byte << 24n)));
    }
    const hex = [0, 8, 16].map((place) =>
      BigInt.asUintN(8, content >> BigInt(place))
        .toString(16)
        .padStart(2, '0'),
    );
    this.note(`Color 32 word ${word.number}: #${hex.join('')}`);
    await enterText(block.getByRole('textbox', { name: 'Color' }), `#${hex.join('')}`);
    this.change(withWord(this.sheet, 32, index, (before & 0xff000000n) | content));
  }

  private async refuse(): Promise<void> {
    const { word, bits } = this.pick();
    this.note(`${word.row} word ${word.number}, refused`);
    const { value } = this.tool.word(bits, word.number);
    await enterText(value, this.chance.oneOf(['x', `${1n << BigInt(bits)}`, `-${1n << BigInt(bits)}`]));
    await value.press('Escape');
  }

  private async abandon(): Promise<void> {
    const { word, bits } = this.pick();
    const name = this.chance.oneOf(Object.keys(word.fields));
    this.note(`${word.row} word ${word.number}, ${name} typed and left`);
    const field = this.tool.word(bits, word.number).group.getByRole('textbox', { name, exact: true });
    if (name === 'Float') this.left.add(`${word.row} word ${word.number}`);
    if (!(await field.getAttribute('readonly').then((given) => given !== null))) await field.fill('1');
    await this.tool.resolution.focus();
  }

  private async choose(): Promise<void> {
    const resolution = this.chance.oneOf([32, 64, 128, 256, 512, 1024]);
    if (resolution === this.sheet.resolution) return;
    this.note(`resolution ${resolution}`);
    await this.tool.choose(this.tool.resolution, `${resolution}`);
    const kept = rowsOf(resolution);
    const hidden = new Set([...this.sheet.hidden].filter((row) => kept.includes(row)));
    this.change({ ...this.sheet, resolution, value: BigInt.asUintN(resolution, this.sheet.value), hidden }, true);
  }

  private async convert(): Promise<void> {
    const { converters = USUAL_CONVERTERS } = this.sheet;
    const identifier = this.chance.oneOf([...BASES.map((base) => `A${base}`), 'FLOAT', 'FLOAT', 'Clear', 'Reset']);
    this.note(`converter ${identifier}`);
    this.left.clear();
    if (identifier !== 'Clear' && identifier !== 'Reset') {
      await this.tool.choose(this.tool.converters, identifier);
      const others = converters.filter((each) => each !== identifier);
      this.change(
        { ...this.sheet, converters: others.length < converters.length ? others : [...others, identifier] },
        true,
      );
      return;
    }
    await this.tool.converters.click();
    await this.page.getByRole('button', { name: identifier, exact: true }).click();
    await this.page.keyboard.press('Escape');
    const isRecorded = identifier === 'Clear' || this.sheet.converters !== undefined;
    this.change({ ...this.sheet, converters: identifier === 'Clear' ? [] : undefined }, isRecorded);
  }

  private async toggleRow(): Promise<void> {
    const row = this.chance.oneOf(rowsOf(this.sheet.resolution).slice(1));
    this.note(`row ${row}`);
    await this.tool.choose(this.tool.formats, row);
    const hidden = new Set(this.sheet.hidden);
    if (!hidden.delete(row)) hidden.add(row);
    this.change({ ...this.sheet, hidden }, true);
  }

  private async resize(): Promise<void> {
    const size = this.chance.oneOf(WINDOWS);
    this.note(`window ${size.width} by ${size.height}`);
    await this.page.setViewportSize(size);
  }

  private async scroll(): Promise<void> {
    const [down, across] = [this.chance.below(1001) / 1000, this.chance.below(1001) / 1000];
    this.note(`scroll to ${down}, ${across}`);
    await this.page.evaluate(
      ([down, across]) => {
        const sheet = document.querySelector('[data-scroller="sheet"]')!;
        sheet.scrollTop = down * sheet.scrollHeight;
        const rows = document.querySelectorAll('[data-scroller="row"]');
        for (const row of rows) row.scrollLeft = across * row.scrollWidth;
      },
      [down, across] as const,
    );
  }

  private async undo(): Promise<void> {
    this.note('undo');
    await this.page.keyboard.press('Control+z');
    const change = this.past.pop();
    if (!change) return;
    this.future.push(change);
    this.show(change.tab, change.before);
  }

  private async redo(): Promise<void> {
    this.note('redo');
    await this.page.keyboard.press('Control+Shift+z');
    const change = this.future.pop();
    if (!change) return;
    this.past.push(change);
    this.show(change.tab, change.after);
  }

  private async showTab(): Promise<void> {
    const tab = this.chance.below(this.sheets.length);
    this.note(`tab ${tab}`);
    await this.page.getByRole('tab').nth(tab).click();
    this.show(tab, this.sheets[tab]!);
  }

  private show(tab: number, sheet: ExpectedSheet): void {
    this.tab = tab;
    this.forgetLeft(sheet);
    this.sheets[tab] = sheet;
  }
}

function withCasesSwapped(text: string): string {
  return text.replace(/[a-z]/gi, (letter) => (letter < 'a' ? letter.toLowerCase() : letter.toUpperCase()));
}

for (const seed of [1, 2]) {
  test(`whatever a user does, all that is shown agrees with the value (seed ${seed})`, async ({ page, enter }) => {
    const tool = new WordsTool(page);
    const resolutions = [64, 256];
    await watchCanvases(page);
    await tool.open(enter, ...resolutions.map((intResolution, id) => ({ id: `${id}`, int: 0, intResolution })));
    const user = new RandomUser(page, tool, new Chance(seed), resolutions);
    await user.compare();
    for (let step = 0; step < STEPS; step++) await user.step();
  });
}
