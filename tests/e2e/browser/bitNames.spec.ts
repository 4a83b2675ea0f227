import type { Locator, Page } from '@playwright/test';
import { expect, test } from '../support/browser/fixtures';
import { enterText, WordsTool } from '../support/browser/words';

test.use({ viewport: { width: 1280, height: 800 }, permissions: ['clipboard-read', 'clipboard-write'] });

const STATUS_CODE = 'severity 31:30\ncustomer 29\nfacility 27:16\ncode 15:0';

const copyElsewhere = (page: Page, text: string) => page.evaluate((t) => navigator.clipboard.writeText(t), text);
const clipboard = (page: Page) => page.evaluate(() => navigator.clipboard.readText());
const names = (page: Page) => page.getByRole('toolbar', { name: 'Names of bits' });
const pixels = (field: Locator) => field.evaluate((canvas: HTMLCanvasElement) => canvas.toDataURL());

/** Presses keys, and counts them. */
class CountedKeys {
  count = 0;
  constructor(private readonly page: Page) {}
  async press(...keys: string[]) {
    for (const key of keys) await this.page.keyboard.press(key);
    this.count += keys.length;
  }
}

test.describe('a register that is read', () => {
  test('the fields of 0xC0000094 are there after one key press, by pasting four lines', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 0xc0000094, intResolution: 32 });
    await tool.word(32, 1).bits.focus();
    await copyElsewhere(page, STATUS_CODE);
    const keys = new CountedKeys(page);
    await keys.press('Control+v');
    await expect(names(page)).toContainText('severity 31:30 = 3 0x3');
    await expect(names(page)).toContainText('customer 29 = 0 0x0');
    await expect(names(page)).toContainText('facility 27:16 = 0 0x0');
    await expect(names(page)).toContainText('code 15:0 = 148 0x94');
    expect(keys.count).toBe(1);
    await expect(tool.word(32, 1).value).toHaveValue(`3221225620`);
  });

  test('bits [23:12] of a dump are read as decimal after three key presses, or one and a drag', async ({
    page,
    enter,
  }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 0, intResolution: 32 });
    const { bits, value } = tool.word(32, 1);
    await bits.focus();
    await copyElsewhere(page, 'CR2: 0x053ab7c1');
    await page.keyboard.press('Control+v');
    if (await page.getByRole('dialog', { name: 'Paste' }).isVisible()) await page.keyboard.press('Enter');
    await expect(value).toHaveValue(`87734209`);
    // Where the bits stand in the manual, they are copied from there.
    await copyElsewhere(page, '23:12');
    const keys = new CountedKeys(page);
    await keys.press('Control+g', 'Control+v', 'Enter');
    await expect(tool.status).toContainText('[23:12] 12 bits = 0x3AB = 939,');
    expect(keys.count).toBeLessThan(5);
    await page.keyboard.press('Escape');

    const { x, y, width, height } = (await bits.boundingBox())!;
    const middle = (bit: number) => [x + (width / 32) * (31.5 - bit), y + height - 23] as const;
    const shift = new CountedKeys(page);
    await page.keyboard.down('Shift');
    shift.count++;
    await page.mouse.move(...middle(23));
    await page.mouse.down();
    await page.mouse.move(...middle(12), { steps: 3 });
    await page.mouse.up();
    await page.keyboard.up('Shift');
    await expect(tool.status).toContainText('[23:12] 12 bits = 0x3AB = 939,');
    await shift.press('Control+c');
    await expect.poll(() => clipboard(page)).toBe('939');
    expect(shift.count).toBeLessThan(5);
  });
});

test.describe('names of bits', () => {
  test('are pasted, follow the value, choose their bits and are copied again', async ({
    page,
    enter,
    expectAccessible,
  }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 0xc0000094, intResolution: 32 });
    const { bits, value } = tool.word(32, 1);
    const height = async () => (await bits.boundingBox())!.height;
    const plain = await height();
    await bits.focus();
    await copyElsewhere(page, STATUS_CODE);
    await page.keyboard.press('Control+v');
    await expect(tool.status).toHaveText('4 names, kept until the document is closed, saved nowhere');
    await expect.poll(height).toBeGreaterThan(plain);
    await enterText(value, '0x80070005');
    await page.keyboard.press('Alt+Enter');
    await expect(names(page)).toContainText('severity 31:30 = 2 0x2');
    await expect(names(page)).toContainText('facility 27:16 = 7 0x7');
    await page.keyboard.press('F6');
    await expect(names(page).getByRole('button', { name: 'severity' })).toBeFocused();
    await page.keyboard.press('ArrowRight');
    await page.keyboard.press('ArrowRight');
    await page.keyboard.press('Enter');
    await expect(tool.status).toContainText('[27:16] 12 bits = 0x7 = 7');
    await page.keyboard.press('Control+c');
    await expect.poll(() => clipboard(page)).toBe('7');
    await expectAccessible();
    await page.keyboard.press('Delete');
    await expect(tool.status).toHaveText('Removed facility');
    await expect(names(page).getByRole('button', { name: 'code' })).toBeFocused();
    await names(page).getByRole('button', { name: 'Copy names' }).click();
    await expect.poll(() => clipboard(page)).toBe('severity 31:30\ncustomer 29\ncode 15:0');
    await names(page).getByRole('button', { name: 'Remove names' }).click();
    await expect(names(page)).toHaveCount(0);
    await expect.poll(height).toBe(plain);
  });

  test('are given to bits that were chosen, by keyboard alone', async ({ page, enter, expectAccessible }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 0xdeadbeef, intResolution: 32 });
    await tool.word(32, 1).bits.focus();
    await page.keyboard.press('Control+g');
    await page.keyboard.type('31:26');
    await page.keyboard.press('Enter');
    await page.keyboard.press('Shift+F10');
    await page.getByRole('menuitem', { name: 'Name these bits…' }).press('Enter');
    await expect(page.getByRole('textbox', { name: 'Name of [31:26]' })).toBeFocused();
    await expect(page.getByText('Kept until the document is closed, saved nowhere')).toBeVisible();
    await expectAccessible();
    await page.keyboard.type('OPCODE');
    await page.keyboard.press('Enter');
    await expect(names(page)).toContainText('OPCODE 31:26 = 55 0x37');
    await expect(tool.word(32, 1).bits).toBeFocused();
  });

  test('can overlap and be many, and are drawn over their bits', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: '0x123456789abcdef0' });
    const rows = [tool.word(64, 1), tool.word(32, 2)];
    await rows[0]!.bits.focus();
    const before = await Promise.all(rows.map(({ bits }) => pixels(bits)));
    const lines = [
      ...Array.from({ length: 64 }, (_, bit) => `bit_${bit} ${bit}`),
      'low 31:0',
      'middle 40:20',
      'all 63:0',
    ];
    await copyElsewhere(page, lines.join('\n'));
    await page.keyboard.press('Control+v');
    await expect(tool.status).toContainText('67 names');
    await expect(names(page).getByRole('button')).toHaveCount(69);
    await expect(names(page)).toContainText(`middle 40:20 = ${(0x123456789abcdef0n >> 20n) & 0x1fffffn}`);
    for (const [at, { bits }] of rows.entries()) await expect.poll(() => pixels(bits)).not.toBe(before[at]);
    const { x, y, width, height } = (await rows[0]!.bits.boundingBox())!;
    await page.mouse.click(x + (width / 64) * 60.5, y + height - 23);
    await expect(names(page).getByRole('button', { name: 'bit_3 3 = 1' })).toBeVisible();
  });

  test('with a fault in their list are refused by name, and a list can be typed', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 1, intResolution: 32 });
    await tool.word(32, 1).bits.focus();
    await copyElsewhere(page, 'low 3:0\nhigh 40:33');
    await page.keyboard.press('Control+v');
    await expect(tool.status).toHaveText('high: Sheet has bits 0 to 31');
    await expect(names(page)).toHaveCount(0);
    await page.keyboard.press('Shift+F10');
    await page.getByRole('menuitem', { name: 'Paste…' }).press('Enter');
    await page.getByRole('textbox', { name: 'Text' }).fill('low 3:0');
    await page.keyboard.press('Enter');
    await expect(names(page)).toContainText('low 3:0 = 1 0x1');
  });

  test('belong to a sheet and end with the document, which knows nothing of them', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { id: 'a', displayName: 'A', int: 3 }, { id: 'b', displayName: 'B' });
    await tool.word(64, 1).bits.focus();
    await copyElsewhere(page, 'low 3:0');
    await page.keyboard.press('Control+v');
    await expect(names(page)).toContainText('low 3:0 = 3 0x3');
    await expect(page.getByRole('button', { name: 'Save', exact: true })).toBeDisabled();
    await page.getByRole('tab', { name: 'B' }).click();
    await expect(names(page)).toHaveCount(0);
    await page.getByRole('tab', { name: 'A' }).click();
    await expect(names(page)).toContainText('low 3:0');
    const stored = await page.evaluate(() => JSON.stringify({ ...localStorage, ...sessionStorage }));
    expect(stored).not.toContain('low');
    await page.getByRole('button', { name: 'New', exact: true }).click();
    await page.getByRole('button', { name: 'Add sheet' }).waitFor();
    await expect(names(page)).toHaveCount(0);
  });
});
