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
});
