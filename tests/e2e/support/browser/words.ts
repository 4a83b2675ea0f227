import type { Locator, Page } from '@playwright/test';
import { documentText, type SheetFields } from '../shared/documents';
import { stubNativeHost } from './nativeHost';

const PATH = '/home/me/numbers.words.tessary';

/** The Words tool as its users find their way in it. */
export class WordsTool {
  readonly resolution: Locator;
  readonly converters: Locator;
  readonly formats: Locator;
  readonly scrollLock: Locator;
  readonly status: Locator;
  readonly warning: Locator;

  constructor(readonly page: Page) {
    const toolbar = page.locator('[role="toolbar"][aria-label="Sheet"]');
    this.resolution = toolbar.getByRole('button', { name: 'Resolution' });
    this.converters = toolbar.getByRole('button', { name: 'Converters' });
    this.formats = toolbar.getByRole('button', { name: 'Formats' });
    this.scrollLock = toolbar.getByRole('button', { name: 'ScrLock' });
    this.status = page.getByRole('status');
    this.warning = page.getByRole('alert');
  }

  /** Opens a document with these sheets, as the native host does at its start. */
  async open(enter: () => Promise<void>, ...sheets: SheetFields[]) {
    const text = documentText(...sheets);
    await stubNativeHost(this.page, {
      args: { filePath: PATH },
      files: { [PATH]: text },
    });
    await enter();
    await this.page.getByRole('tabpanel').waitFor();
  }

  row(label: string) {
    return named(this.page, label);
  }

  /** @param number - counted from 1 at the least significant end */
  word(bits: number, number: number) {
    return new WordBlock(this.page, named(this.page, `Int ${bits} word ${number}`));
  }

  color(number: number) {
    return named(this.page, `Color 32 word ${number}`);
  }

  async choose(picker: Locator, ...options: string[]) {
    await picker.click();
    for (const name of options) await this.option(name).click();
    if (await listBox(this.page).isVisible()) await this.page.keyboard.press('Escape');
  }

  /** Of the list that is open. */
  private option(name: string) {
    return listBox(this.page).getByRole('option', { name, exact: true });
  }

  /** Leaves exactly these converters. */
  async setConverters(...identifiers: string[]) {
    await this.converters.click();
    await this.page.getByRole('button', { name: 'Clear', exact: true }).click();
    for (const name of identifiers) await this.option(name).click();
    await this.page.keyboard.press('Escape');
  }
}

export class WordBlock {
  readonly value: Locator;
  readonly sign: Locator;
  readonly bits: Locator;
  readonly float: Locator;

  constructor(
    readonly page: Page,
    readonly group: Locator,
  ) {
    this.value = group.getByRole('textbox', { name: 'Value' });
    this.float = group.getByRole('textbox', { name: 'Float' });
    this.sign = group.getByRole('button', { name: /^\d+[SU]/ });
    this.bits = group.getByLabel(/^Bit field \(\d+ bits\)$/);
  }

  base(base: number) {
    return this.group.getByRole('textbox', {
      name: `Base ${base}`,
      exact: true,
    });
  }

  async operate(id: string) {
    const direct = this.group.locator(`[data-operation="${id}"]`);
    if (await direct.count()) return direct.click();
    await this.group.getByRole('button', { name: 'More operations' }).click();
    await this.page.getByRole('menu').locator(`[data-operation="${id}"]`).click();
  }
}

/** A group by its whole name. Searching by role asks for the style of every element of the page, which takes far longer. */
function named(page: Page, label: string) {
  return page.locator(`[role="group"][aria-label="${label}"]`);
}

function listBox(page: Page) {
  return page.locator('[role="listbox"]');
}

/** Writes a text into a field and presses Enter. */
export async function enterText(field: Locator, text: string) {
  await field.fill(text);
  await field.press('Enter');
}
