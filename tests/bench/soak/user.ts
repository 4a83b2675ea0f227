import { rmSync, writeFileSync } from 'node:fs';
import { isDeepStrictEqual } from 'node:util';
import { FileDialog } from '../../e2e/support/linux/dialog';
import type { Program } from '../../e2e/support/linux/program';
import type { Chance } from '../../e2e/support/shared/chance';
import { until } from '../../e2e/support/shared/until';
import { ExpectedDocument, sheetsOnDisk, type Word, wordNamed } from './expectedDocument';
import { reachable, readScreen, type Screen, type Target, watchForRelease, whenReleased } from './screen';

const FIELD = '[aria-label="Value"]';
const SHEET = '[data-scroller=sheet]';
const RESOLUTIONS = ['32', '64', '128', '256', '512', '1024'];
const MOST_SHEETS = 6;
/** Of the wheel, from one end of a sheet to the other. */
const MOST_NOTCHES = 40;

/** Somebody who works on documents with pointer and keyboard, and looks after everything they did. */
export class User {
  readonly #program: Program;
  #chance: Chance;
  readonly #expected = new ExpectedDocument();
  #names = 0;

  /** @param file - the document that the program was started with */
  constructor(
    program: Program,
    chance: Chance,
    readonly file: string,
  ) {
    this.#program = program;
    this.#chance = chance;
  }

  /** Waits for the first document. */
  async begin() {
    await this.#findOpened(this.file);
    this.#program.desktop.focus(this.#program.window);
  }

  async type() {
    const target = await this.#targetInSheet(FIELD);
    const word = wordNamed(target.word);
    const content = this.#chance.bits(word.bits);
    this.#click(target);
    this.#replaceText(`${content}`);
    this.#expected.setWord(word, content);
    await this.#look();
  }

  async flipBit() {
    const target = await this.#targetInSheet('canvas');
    const word = wordNamed(target.word);
    const before = this.#expected.word(word);
    const at = { x: this.#across(target), y: target.at.y };
    this.#program.desktop.click(this.#program.window, at);
    const changed = await this.#newContent(word, before);
    if (bitCount(changed ^ before) !== 1) throw new Error(`A press changed ${before} to ${changed}`);
    this.#expected.setWord(word, changed);
    await this.#look();
  }

  /** Draws a line over some bits: those under it all get one value. */
  async paintBits() {
    const target = await this.#targetInSheet('canvas');
    const word = wordNamed(target.word);
    const before = this.#expected.word(word);
    const { y } = target.at;
    const { page, desktop, window } = this.#program;
    await page.evaluate(watchForRelease);
    desktop.drag(window, { x: this.#across(target), y }, { x: this.#across(target), y });
    await page.evaluate(whenReleased);
    const changed = await this.#newContent(word, before);
    if ((changed & ~before) !== 0n && (before & ~changed) !== 0n) throw new Error(`A line gave ${before} both values`);
    this.#expected.setWord(word, changed);
    await this.#look();
  }

  async invertWord() {
    const target = await this.#targetInSheet('[data-operation="bitwise-not"]');
    const word = wordNamed(target.word);
    this.#click(target);
    this.#expected.setWord(word, BigInt.asUintN(word.bits, ~this.#expected.word(word)));
    await this.#look();
  }

  async switchTab() {
    if (this.#expected.sheets.length < 2) return this.addSheet();
    const tabs = await this.#targets('[role=tab][aria-selected=false]');
    const target = this.#chance.oneOf(tabs);
    this.#click(target);
    this.#expected.active = this.#expected.sheets.findIndex(({ name }) => name === target.name);
    await this.#look();
  }

  async scroll() {
    const { at } = await this.#target(SHEET);
    this.#program.desktop.wheel(this.#program.window, at, 1 + this.#chance.below(8));
  }

  async renameSheet() {
    const name = `Sheet ${++this.#names}`;
    this.#click(await this.#target('[role=tab][aria-selected=true]'), 2);
    await this.#target('input[aria-label="Sheet name"]');
    this.#replaceText(name);
    this.#expected.change({ name });
    await this.#look();
  }

  async addSheet(): Promise<void> {
    if (this.#expected.sheets.length >= MOST_SHEETS) return this.closeSheet();
    this.#click(await this.#target('[aria-label="Add sheet"]'));
    const count = this.#expected.sheets.length + 1;
    const { tabs, resolution } = await this.#when(
      'a new tab',
      ({ tabs, active }) => tabs.length === count && active === count - 1,
    );
    this.#expected.sheets.push({ name: tabs.at(-1) ?? '', value: 0n, resolution });
    this.#expected.active = count - 1;
    await this.renameSheet();
  }

  async closeSheet(): Promise<void> {
    if (this.#expected.sheets.length < 2) return this.addSheet();
    const { name } = this.#expected.sheet;
    this.#click(await this.#target(`[aria-label="Close ${name}"]`));
    this.#expected.sheets.splice(this.#expected.active, 1);
    this.#expected.active = this.#expected.sheets.length - 1;
    await this.#look();
  }

  async changeResolution() {
    const resolution = this.#chance.oneOf(
      RESOLUTIONS.filter((each) => Number(each) !== this.#expected.sheet.resolution),
    );
    this.#click(await this.#target('[role=group][aria-label=Sheet] > :first-child [aria-haspopup=listbox]'));
    this.#click(await this.#target(`[role=option][data-id="${resolution}"]`));
    const value = BigInt.asUintN(Number(resolution), this.#expected.sheet.value);
    this.#expected.change({ resolution: Number(resolution), value });
    await this.#look();
  }

  /** Saves with the keyboard. Does nothing while all is saved. */
  async save(file: string) {
    const { file: name } = await this.#look();
    if (!name.endsWith('*')) return this.invertWord();
    this.#program.desktop.press('ctrl+s');
    await this.#isSavedAs(file);
  }

  /** Goes to the start page, which opens the document of the command line again. */
  async reopen(saved: string) {
    await this.save(saved);
    this.#click(await this.#target('[aria-label="About the app"]'));
    await this.#findOpened(this.file);
  }

  /** Puts the first document back on disk and opens it, to do the same work again as with the first chance. */
  async startOver(text: string, chance: Chance) {
    await this.save(this.file);
    writeFileSync(this.file, text);
    this.#click(await this.#target('[aria-label="About the app"]'));
    await this.#findOpened(this.file);
    this.#chance = chance;
  }

  async saveAs(file: string) {
    rmSync(file, { force: true }); // nothing is asked about overwriting
    this.#program.desktop.press('ctrl+shift+s');
    await this.#choose('Save As', file);
    await this.#isSavedAs(file);
  }

  /** Opens a document by dialog; what is not saved before would be asked about. */
  async open(file: string) {
    this.#program.desktop.press('ctrl+o');
    await this.#choose('Open', file);
    await this.#findOpened(file);
  }

  async #choose(title: 'Open' | 'Save As', file: string) {
    const dialog = await FileDialog.shown(this.#program, title);
    await dialog.type(file);
    await dialog.confirm();
    await until('the dialog to go', () => this.#program.windows().length === 1);
    this.#program.desktop.focus(this.#program.window);
  }

  /** On disk is what is on screen, and what was done since. */
  async #isSavedAs(file: string) {
    await this.#when('the mark for what is not saved to go', (screen) => screen.file === nameOf(file));
    const onDisk = sheetsOnDisk(file);
    if (!isDeepStrictEqual(onDisk, this.#expected.sheets)) {
      throw new Error(`Saved was ${textOf(onDisk)} instead of ${textOf(this.#expected.sheets)}`);
    }
    await this.#look();
  }

  /** The document on disk has become the one that is shown. */
  async #findOpened(file: string) {
    this.#expected.sheets = sheetsOnDisk(file);
    const names = this.#expected.sheets.map(({ name }) => name);
    const { active } = await this.#when(
      'the document on screen',
      (screen) => screen.file === nameOf(file) && screen.active >= 0 && isDeepStrictEqual(screen.tabs, names),
    );
    this.#expected.active = active;
    await this.#look();
  }

  /** Waits until all that is expected is on screen. */
  async #look(): Promise<Screen> {
    const { sheets, active, sheet } = this.#expected;
    const names = sheets.map(({ name }) => name);
    return this.#when(`${textOf([sheet])} on screen`, async (screen) => {
      if (screen.digits === undefined) await this.#scrollUp();
      return (
        isDeepStrictEqual(screen.tabs, names) &&
        screen.active === active &&
        screen.resolution === sheet.resolution &&
        valueOf(screen) === sheet.value
      );
    });
  }

  async #when(what: string, holds: (screen: Screen) => boolean | Promise<boolean>): Promise<Screen> {
    let screen: Screen | undefined;
    try {
      return await until(what, async () => {
        screen = await this.#program.page.evaluate(readScreen);
        return (await holds(screen)) && screen;
      });
    } catch (error) {
      throw new Error(`${(error as Error).message}; there was ${JSON.stringify(screen)}`);
    }
  }

  async #newContent(word: Word, before: bigint): Promise<bigint> {
    const shift = BigInt(word.bits * word.index);
    let content = before;
    await this.#when('a changed bit', async (screen) => {
      if (screen.digits === undefined) await this.#scrollUp();
      content = BigInt.asUintN(word.bits, (valueOf(screen) ?? before << shift) >> shift);
      return content !== before;
    });
    return content;
  }

  async #scrollUp() {
    const { at } = await this.#target(SHEET);
    this.#program.desktop.wheel(this.#program.window, at, -MOST_NOTCHES);
  }

  /** Something in the part of the sheet that is in view, or else the first of its kind below its beginning. */
  async #targetInSheet(selector: string): Promise<Target> {
    const { at } = await this.#target(SHEET);
    for (let notches = 0; notches <= MOST_NOTCHES; notches += 2) {
      const found = await this.#program.page.evaluate(reachable, selector);
      if (found.length > 0) return this.#target(selector);
      this.#program.desktop.wheel(this.#program.window, at, notches === 0 ? -MOST_NOTCHES : 2);
      await this.#target(SHEET); // has come to rest
    }
    throw new Error(`There is no ${selector} in the sheet`);
  }

  async #target(selector: string): Promise<Target> {
    return this.#chance.oneOf(await this.#targets(selector));
  }

  /** Waits until what was scrolled or opened has come to rest. */
  #targets(selector: string): Promise<Target[]> {
    let before: Target[] = [];
    return until(`${selector} to press`, async () => {
      const found = await this.#program.page.evaluate(reachable, selector);
      const isStill = isDeepStrictEqual(found, before);
      before = found;
      return found.length > 0 && isStill && found;
    });
  }

  #click({ at }: Target, times = 1) {
    this.#program.desktop.click(this.#program.window, at, times);
  }

  /** Somewhere between the left and the right edge. */
  #across({ left, right }: Target): number {
    return left + this.#chance.below(Math.floor(right - left) + 1);
  }

  #replaceText(text: string) {
    this.#program.desktop.press('ctrl+a');
    this.#program.desktop.type(text);
    this.#program.desktop.press('Return');
  }
}

const valueOf = ({ digits }: Screen) => (digits === undefined ? undefined : BigInt(`0x${digits.replace(/\s/g, '')}`));

const nameOf = (file: string) => file.replace(/^.*\//, '');

const textOf = (value: unknown) =>
  JSON.stringify(value, (_, each) => (typeof each === 'bigint' ? `0x${each.toString(16)}` : each));

function bitCount(value: bigint): number {
  return value.toString(2).replaceAll('0', '').length;
}
