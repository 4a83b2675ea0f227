import type { Locator, Page } from '@playwright/test';
import { expect, test } from '../support/browser/fixtures';
import { WordsTool } from '../support/browser/words';

test.use({ viewport: { width: 1280, height: 800 } });

/** The middle of a bit's cell, in a field of one line without labels. */
async function placeOf(field: Locator, bits: number, bit: number): Promise<{ x: number; y: number }> {
  const { x, y, width, height } = (await field.boundingBox())!;
  return { x: x + (width / bits) * (bits - 1 - bit + 0.5), y: y + height - 13 - 10 };
}

async function dragWithShift(page: Page, field: Locator, bits: number, from: number, to: number) {
  const [start, end] = [await placeOf(field, bits, from), await placeOf(field, bits, to)];
  await page.keyboard.down('Shift');
  await page.mouse.move(start.x, start.y);
  await page.mouse.down();
  await page.mouse.move(end.x, end.y, { steps: 4 });
  await page.mouse.up();
  await page.keyboard.up('Shift');
}

const pixels = (field: Locator) => field.evaluate((canvas: HTMLCanvasElement) => canvas.toDataURL());
const REGISTER = 0x5_3ab_7c1;

test.describe('a range of bits', () => {
  test('is chosen by dragging with Shift, read in the status line and outlined in every row, and changes nothing', async ({
    page,
    enter,
    expectAccessible,
  }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: REGISTER, intResolution: 32 });
    const { bits, value } = tool.word(32, 1);
    const others = [tool.word(16, 1).bits, tool.word(8, 3).bits];
    const before = await Promise.all(others.map(pixels));
    const untouched = await pixels(tool.word(8, 1).bits);
    await dragWithShift(page, bits, 32, 23, 12);
    await expect(tool.status).toContainText('[23:12] 12 bits = 0x3AB = 939, signed 939, mask 0x00FFF000');
    for (const [at, other] of others.entries()) expect(await pixels(other)).not.toBe(before[at]);
    expect(await pixels(tool.word(8, 1).bits)).toBe(untouched);
    await expect(value).toHaveValue(`${REGISTER}`);
    await expectAccessible();
    await page.keyboard.press('Escape');
    await page.mouse.move(10, 10);
    await expect(tool.status).not.toContainText('[23:12]');
    await expect.poll(() => pixels(others[0]!)).toBe(before[0]);
    await expect(page.getByRole('button', { name: 'Save', exact: true })).toBeDisabled();
  });

  test('is chosen by Shift and arrow keys at the cursor, beyond the word too', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 0xffff_0f0f });
    const { bits } = tool.word(8, 2);
    await tool.word(8, 2).base(16).focus();
    await page.keyboard.press('Tab');
    await expect(bits).toBeFocused();
    await page.keyboard.press('Shift+ArrowRight');
    await page.keyboard.press('Shift+ArrowRight');
    await page.keyboard.press('Shift+ArrowRight');
    await expect(tool.status).toContainText('[15:12], Int 8 word 2 [7:4] 4 bits = 0x0 = 0');
    await page.keyboard.press('Shift+End');
    await expect(tool.status).toContainText('[15:8], Int 8 word 2 [7:0] 8 bits = 0xF = 15');
    await page.keyboard.press('Shift+ArrowRight');
    await expect(tool.status).toContainText('[15:7] 9 bits = 0x1E = 30');
    await page.keyboard.press('Shift+ArrowLeft');
    await page.keyboard.press('Shift+ArrowLeft');
    await expect(tool.status).toContainText('[15:9], Int 8 word 2 [7:1] 7 bits = 0x7 = 7');
    await page.keyboard.press('Control+Shift+ArrowLeft');
    await expect(tool.status).toContainText('[17:15] 3 bits = 0x6 = 6, signed -2');
    await page.keyboard.press('ArrowRight');
    await expect(tool.status).toContainText('bit 6 of word 2, 0');
    await page.keyboard.press('Shift+ArrowRight');
    await expect(tool.status).toContainText('[14:13], Int 8 word 2 [6:5] 2 bits');
  });

  test('of 1024 bits goes on from line to line', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: `0x${'f'.repeat(256)}`, intResolution: 1024 });
    await page.keyboard.press('Control+g');
    await page.keyboard.type('700:650');
    await expect(page.getByText('[700:650] 51 bits = 0x7FFFFFFFFFFFF = 2251799813685247, signed -1')).toBeVisible();
    await page.keyboard.press('Enter');
    await expect(tool.word(1024, 1).bits).toBeFocused();
    await page.keyboard.press('Shift+ArrowDown');
    await expect(tool.status).toContainText('[700:586] 115 bits');
    await page.keyboard.press('Delete');
    await page.keyboard.press('Control+g');
    await page.keyboard.type('0+1024');
    await page.keyboard.press('Enter');
    await page.keyboard.press('~');
    await page.keyboard.press('Escape');
    const expected = ((1n << 115n) - 1n) << 586n;
    await expect(tool.word(1024, 1).base(16)).toHaveValue(expected.toString(16).toUpperCase());
  });

  test('is a byte after a double-click, or a part of the float, and nothing is left to undo', async ({
    page,
    enter,
  }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: '0x400921fb54442d18' });
    const { bits, value } = tool.word(64, 1);
    const before = await value.inputValue();
    const byte = await placeOf(bits, 64, 43);
    await page.mouse.dblclick(byte.x, byte.y);
    await expect(tool.status).toContainText('[47:40] 8 bits = 0x21 = 33');
    await expect(value).toHaveValue(before);
    await tool.setConverters('FLOAT');
    for (const [bit, text] of [
      [63, '[63] 1 bit = 0x0 = 0'],
      [56, '[62:52] 11 bits = 0x400 = 1024'],
      [3, '[51:0] 52 bits = 0x921FB54442D18'],
    ] as const) {
      const place = await placeOf(bits, 64, bit);
      await page.mouse.dblclick(place.x, place.y);
      await expect(tool.status).toContainText(text);
    }
    await expect(value).toHaveValue(before);
    await page.keyboard.press('Control+z');
    await expect(tool.status).toHaveText('Undid converters, Number A');
  });

  test('takes a number that is typed, is cleared and inverted, each as one step', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: REGISTER, intResolution: 32 });
    const { bits, base } = { bits: tool.word(32, 1).bits, base: tool.word(32, 1).base(16) };
    await dragWithShift(page, bits, 32, 12, 23);
    await page.keyboard.type('0x12c');
    await expect(page.getByRole('textbox', { name: 'Write into [23:12]' })).toHaveValue('0x12c');
    await page.keyboard.press('Enter');
    await expect(base).toHaveValue('5012C7C1'.replace('50', '5'));
    await expect(bits).toBeFocused();
    await page.keyboard.press('~');
    await expect(base).toHaveValue('5ED37C1');
    await page.keyboard.press('Delete');
    await expect(base).toHaveValue('50007C1');
    await page.keyboard.type('-1');
    await page.keyboard.press('Enter');
    await expect(base).toHaveValue('5FFF7C1');
    await page.keyboard.type('4096');
    await expect(page.getByText('13 bits, room for 12')).toBeVisible();
    await page.keyboard.press('Enter');
    await expect(tool.status).toHaveText('13 bits, room for 12');
    await page.keyboard.press('Escape');
    await expect(bits).toBeFocused();
    await expect(base).toHaveValue('5FFF7C1');
    for (const [step, text] of [
      ['write', '50007C1'],
      ['clear', '5ED37C1'],
      ['invert', '512C7C1'],
      ['write', '53AB7C1'],
    ]) {
      await page.keyboard.press('Control+z');
      await expect(tool.status).toHaveText(`Undid ${step} [23:12], Int 32 word 1`);
      await expect(base).toHaveValue(text!);
    }
  });

  test('is what the command box, copying and pasting are about', async ({ page, context, enter }) => {
    await context.grantPermissions(['clipboard-read', 'clipboard-write']);
    const tool = new WordsTool(page);
    await tool.open(enter, { int: REGISTER, intResolution: 32 });
    const { bits, base } = { bits: tool.word(32, 1).bits, base: tool.word(32, 1).base(16) };
    const clipboard = () => page.evaluate(() => navigator.clipboard.readText());
    await dragWithShift(page, bits, 32, 23, 12);
    await page.keyboard.press('Control+c');
    await expect.poll(clipboard).toBe('939');
    await page.keyboard.press('Shift+F10');
    await page.getByRole('menuitem', { name: 'Copy as' }).press('Enter');
    await page.getByRole('menuitem', { name: 'Verilog literal' }).click();
    await expect.poll(clipboard).toBe("12'h3ab");
    await page.keyboard.press('Shift+F10');
    await page.getByRole('menuitem', { name: 'Copy mask' }).click();
    await expect.poll(clipboard).toBe('0x00fff000');
    await page.keyboard.press('Control+k');
    await page.keyboard.type('rol 4');
    await page.keyboard.press('Enter');
    await expect(base).toHaveValue('5AB37C1');
    await page.keyboard.press('Control+k');
    await page.keyboard.type('swap');
    await page.keyboard.press('Enter');
    await expect(page.getByText('Only whole bytes can be swapped')).toBeVisible();
    await page.keyboard.press('Escape');
    await page.evaluate(() => navigator.clipboard.writeText('0x123'));
    await page.keyboard.press('Control+v');
    await expect(base).toHaveValue('51237C1');
    await page.evaluate(() => navigator.clipboard.writeText('0x12345'));
    await page.keyboard.press('Control+v');
    await expect(tool.status).toHaveText('17 bits, room for 12');
    await page.keyboard.press('Control+k');
    await page.keyboard.type('clear the bits');
    await page.keyboard.press('Enter');
    await expect(base).toHaveValue('50007C1');
  });

  test('belongs to its sheet, and ends where the sheet has not all of its bits', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { id: 'a', displayName: 'A' }, { id: 'b', displayName: 'B' });
    await page.keyboard.press('Control+g');
    await page.keyboard.type('40:33');
    await page.keyboard.press('Enter');
    await expect(tool.status).toContainText('[40:33] 8 bits');
    await page.getByRole('tab', { name: 'B' }).click();
    await expect(tool.status).not.toContainText('[40:33]');
    await page.getByRole('tab', { name: 'A' }).click();
    await expect(tool.status).toContainText('[40:33] 8 bits');
    await tool.choose(tool.resolution, '32');
    await expect(tool.status).not.toContainText('[40:33]');
  });
});

test.describe('going to bits', () => {
  for (const [text, read] of [
    ['37', '[37] 1 bit'],
    ['12:23', '[23:12] 12 bits'],
    ['0x20+8', '[39:32] 8 bits'],
    ['3.7', '[31] 1 bit'],
  ] as const) {
    test(`"${text}" is asked for in the status line, by keyboard alone`, async ({ page, enter, expectAccessible }) => {
      const tool = new WordsTool(page);
      await tool.open(enter, { int: 5 });
      await tool.word(64, 1).value.focus();
      await page.keyboard.press('Control+g');
      await expect(page.getByRole('textbox', { name: 'Go to bits' })).toBeFocused();
      await expectAccessible();
      await page.keyboard.type(text);
      await page.keyboard.press('Enter');
      await expect(tool.word(64, 1).bits).toBeFocused();
      await expect(tool.status).toContainText(read);
    });
  }

  test('beyond the sheet is refused with the bits that it has, and Escape leaves everything as it was', async ({
    page,
    enter,
  }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 5 });
    const { value, bits } = tool.word(64, 1);
    await value.focus();
    await page.keyboard.type('12');
    const before = await pixels(bits);
    await page.keyboard.press('Control+g');
    await page.keyboard.type('40:20');
    await expect.poll(() => pixels(bits)).not.toBe(before);
    await page.keyboard.press('Control+a');
    await page.keyboard.type('64');
    await page.keyboard.press('Enter');
    await expect(tool.status).toHaveText('Sheet has bits 0 to 63');
    await expect(page.getByRole('textbox', { name: 'Go to bits' })).toBeFocused();
    await page.keyboard.press('Escape');
    await expect(value).toBeFocused();
    await expect(value).toHaveValue(/12/);
    await expect.poll(() => pixels(bits)).toBe(before);
  });

  test('is offered in the menu of a word and in the command box', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 5 });
    await tool.word(16, 2).bits.focus();
    await page.keyboard.press('Shift+F10');
    await page.getByRole('menuitem', { name: 'Go to bit…' }).click();
    await page.keyboard.type('17');
    await page.keyboard.press('Enter');
    await expect(tool.word(16, 2).bits).toBeFocused();
    await expect(tool.status).toContainText('[17], Int 16 word 2 [1] 1 bit = 0x0 = 0');
    await page.keyboard.press('1');
    await expect(tool.word(64, 1).value).toHaveValue(`${5 + 2 ** 17}`);
    await page.keyboard.press('Control+k');
    await page.keyboard.type('go to');
    await page.keyboard.press('Enter');
    await expect(page.getByRole('textbox', { name: 'Go to bits' })).toBeFocused();
  });
});
