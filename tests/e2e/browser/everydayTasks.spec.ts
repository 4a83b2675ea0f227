import type { Page } from '@playwright/test';
import { expect, test } from '../support/browser/fixtures';
import { WordsTool } from '../support/browser/words';

test.use({ viewport: { width: 1280, height: 800 }, permissions: ['clipboard-read', 'clipboard-write'] });

const INITIAL_HASH = '6a09e667 bb67ae85 3c6ef372 a54ff53a 510e527f 9b05688c 1f83d9ab 5be0cd19';
const KEY = `0x${INITIAL_HASH.replace(/ /g, '')}`;

/** The keyboard, which counts: a chord is one press. */
class Keys {
  #count = 0;

  constructor(readonly page: Page) {}

  async press(...chords: string[]) {
    for (const chord of chords) await this.page.keyboard.press(chord);
    this.#count += chords.length;
  }

  async type(text: string) {
    await this.page.keyboard.type(text);
    this.#count += text.length;
  }

  /** Fails when there were more presses, and notes how many there were. */
  expectAtMost(most: number) {
    test.info().annotations.push({ type: 'presses', description: `${this.#count}` });
    expect(this.#count).toBeLessThanOrEqual(most);
  }
}

test.describe('by the keyboard alone', () => {
  test('eight words of a hash are pasted into 256 bits', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 0, intResolution: 256 });
    await page.evaluate((text) => navigator.clipboard.writeText(text), INITIAL_HASH);
    const keys = new Keys(page);
    await tool.word(256, 1).value.focus();
    await keys.press('Control+Shift+v', 'Enter');
    await expect(tool.word(256, 1).value).toHaveValue(`${BigInt(KEY)}`);
    keys.expectAtMost(2);
  });

  test('a key of 256 bits is copied as an array of C', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: KEY, intResolution: 256 });
    const keys = new Keys(page);
    await tool.word(256, 1).bits.focus();
    await keys.press('Shift+F10', 'ArrowDown', 'ArrowRight', 'c', 'Enter');
    await expect(tool.status).toHaveText(/^Copied \d+ characters$/);
    expect(await page.evaluate(() => navigator.clipboard.readText())).toMatch(
      /^const uint8_t value\[32\] = \{0x6a, 0x09, .*, 0x19\};$/,
    );
    keys.expectAtMost(5);
  });

  test('the bytes of a word of 32 bits are swapped', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: '0x12345678', intResolution: 32 });
    const keys = new Keys(page);
    await tool.word(32, 1).value.focus();
    await keys.press('Control+k');
    await keys.type('swap');
    await keys.press('Enter');
    await expect(tool.word(32, 1).base(16)).toHaveValue('78563412');
    keys.expectAtMost(6);
  });

  test('a word is rotated by 7', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 1, intResolution: 32 });
    const keys = new Keys(page);
    await tool.word(32, 1).value.focus();
    await keys.press('Control+k');
    await keys.type('ror 7');
    await keys.press('Enter');
    await expect(tool.word(32, 1).base(16)).toHaveValue('2000000');
    keys.expectAtMost(7);
  });

  test('two sheets are combined by exclusive or', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 0xff, displayName: 'Number A' }, { int: 0x0f, displayName: 'Number B' });
    const keys = new Keys(page);
    await tool.word(64, 1).value.focus();
    await keys.press('Control+k');
    await keys.type('xor @');
    await keys.press('Tab', 'Enter');
    await expect(tool.word(64, 1).value).toHaveValue(`240`);
    keys.expectAtMost(8);
  });

  test('a status code of Windows, extended to 64 bits, is decoded to bits', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 0 });
    const keys = new Keys(page);
    await expect(tool.word(64, 1).value).toBeFocused();
    await keys.type('0xFFFFFFFFC0000094');
    await keys.press('Enter', 'Alt+Enter', 'Tab', 'End');
    await expect(tool.status).toContainText('bit 0 of word 1, 0');
    await expect(tool.word(16, 1).base(16)).toHaveValue('94');
    keys.expectAtMost(22);
  });

  test('bit 37 of a number of 64 bits is found', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 0 });
    const keys = new Keys(page);
    await expect(tool.word(64, 1).value).toBeFocused();
    await keys.type('0x1F83D9ABFB41BD6B');
    await keys.press('Enter', 'Alt+Enter', 'Control+g');
    await keys.type('37');
    await keys.press('Enter');
    await expect(tool.status).toContainText('bit 37 of word 1, 1');
    keys.expectAtMost(24);
  });

  test('the sign of a float is flipped', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 0 });
    const keys = new Keys(page);
    await expect(tool.word(64, 1).value).toBeFocused();
    await keys.press('Shift+F6', 'ArrowRight', 'Enter', 'End', 'Enter', 'Escape', 'F6');
    await keys.press('ArrowDown', 'ArrowDown', 'ArrowDown', 'ArrowDown');
    await keys.type('-1234.5625');
    await keys.press('Enter', 'Tab', 'Space');
    await expect(tool.word(64, 1).float).toHaveValue('1234.5625');
    keys.expectAtMost(24);
  });

  test('a color is turned to OKLCH', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 0, intResolution: 32 });
    const keys = new Keys(page);
    await expect(tool.word(32, 1).value).toBeFocused();
    await keys.press('Alt+ArrowDown', 'Alt+ArrowDown', 'Alt+ArrowDown');
    await expect(tool.color(1).getByRole('textbox', { name: 'Color' })).toBeFocused();
    await keys.press('Control+a');
    await keys.type('#ff8800');
    await keys.press('Enter', 'Shift+Tab', 'Enter');
    await keys.type('okl');
    await keys.press('Enter');
    await expect(tool.color(1).getByRole('textbox', { name: 'Color' })).toHaveValue(/^oklch\(/);
    keys.expectAtMost(18);
  });
});
