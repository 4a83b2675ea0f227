import type { Locator, Page } from '@playwright/test';
import { expect, test } from '../support/browser/fixtures';
import { WordsTool } from '../support/browser/words';

test.use({ viewport: { width: 800, height: 600 }, hasTouch: true });

interface Point {
  x: number;
  y: number;
}

/** The middle of a bit's cell of a field of one line, at the right end of its row. */
async function placeOf(field: Locator, bits: number, bit: number): Promise<Point> {
  const { x, y, width, height } = (await field.boundingBox())!;
  return { x: x + (width / bits) * (bits - 1 - bit + 0.5), y: y + height - 23 };
}

/** One finger, as the browser gets it from its screen. */
async function finger(page: Page) {
  const client = await page.context().newCDPSession(page);
  const send = (type: 'touchStart' | 'touchMove' | 'touchEnd', points: Point[]) =>
    client.send('Input.dispatchTouchEvent', { type, touchPoints: points });
  return {
    down: (at: Point) => send('touchStart', [at]),
    lift: () => send('touchEnd', []),
    async move(from: Point, to: Point) {
      for (let step = 1; step <= 8; step++) {
        const along = (start: number, end: number) => start + ((end - start) * step) / 8;
        await send('touchMove', [{ x: along(from.x, to.x), y: along(from.y, to.y) }]);
      }
    },
  };
}

/** A pen or finger as the page gets it: the protocol has no pen. */
const point = (field: Locator, type: string, { x, y }: Point, pointerType: string, buttons: number) =>
  field.dispatchEvent(type, { clientX: x, clientY: y, pointerType, buttons, button: 0, pointerId: 1, bubbles: true });

test.describe('by touch', () => {
  test('a tap flips a bit, and a finger that moves at once scrolls and flips none', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 0 });
    const { bits, value } = tool.word(64, 1);
    const bit = await placeOf(bits, 64, 4);
    await page.touchscreen.tap(bit.x, bit.y);
    await expect(value).toHaveValue('16');
    const hand = await finger(page);
    const scroller = page.locator('[data-scroller="sheet"]');
    await hand.down(bit);
    await hand.move(bit, { x: bit.x, y: bit.y - 120 });
    await expect.poll(() => scroller.evaluate((element) => element.scrollTop)).toBeGreaterThan(50);
    await hand.lift();
    await expect(value).toHaveValue('16');
    await expect(tool.status).not.toContainText('[4]');
  });

  test('a long press and a drag choose bits, and scroll nothing', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: '0xabcd' });
    const { bits, base } = { bits: tool.word(64, 1).bits, base: tool.word(64, 1).base(16) };
    const [start, end] = [await placeOf(bits, 64, 15), await placeOf(bits, 64, 8)];
    const row = tool.row('Int 64').locator('[data-scroller="row"]');
    const before = await row.evaluate((element) => element.scrollLeft);
    const hand = await finger(page);
    await hand.down(start);
    await expect(tool.status).toContainText('[15] 1 bit');
    await hand.move(start, end);
    await expect(tool.status).toContainText('[15:8] 8 bits = 0xAB');
    await hand.lift();
    await expect(page.getByRole('menu')).toBeHidden();
    await expect(base).toHaveValue('ABCD');
    expect(await row.evaluate((element) => element.scrollLeft)).toBe(before);
    await expect(bits).toBeFocused();
    // The next tap is a tap again.
    const other = await placeOf(bits, 64, 0);
    await page.touchscreen.tap(other.x, other.y);
    await expect(base).toHaveValue('ABCC');
  });

  test('a long press opens the menu of the bits where it ends, which are those chosen if it is among them', async ({
    page,
    enter,
  }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: '0xabcd' });
    const { bits, base } = { bits: tool.word(64, 1).bits, base: tool.word(64, 1).base(16) };
    const hand = await finger(page);
    const [bit, inside] = [await placeOf(bits, 64, 6), await placeOf(bits, 64, 12)];
    await hand.down(bit);
    await expect(tool.status).toContainText('[6] 1 bit');
    await hand.lift();
    await expect(page.getByRole('menuitem', { name: 'Clear the bits chosen' })).toBeVisible();
    await page.keyboard.press('Escape');
    await page.keyboard.press('Control+g');
    await page.keyboard.type('15:8');
    await page.keyboard.press('Enter');
    await tool.word(64, 1).value.focus();
    await hand.down(inside);
    await expect(bits).toBeFocused();
    await expect(tool.status).toContainText('[15:8] 8 bits');
    await hand.lift();
    await page.getByRole('menuitem', { name: 'Clear the bits chosen' }).click();
    await expect(base).toHaveValue('CD');
  });
});

test('a pen that rests chooses bits, and what it flipped at first is as it was', async ({ page, enter }) => {
  const tool = new WordsTool(page);
  await tool.open(enter, { int: '0xabcd' });
  const { bits, base } = { bits: tool.word(64, 1).bits, base: tool.word(64, 1).base(16) };
  // Its pointer cannot be captured.
  await bits.evaluate((canvas) => (canvas.setPointerCapture = () => undefined));
  const [start, end] = [await placeOf(bits, 64, 15), await placeOf(bits, 64, 8)];
  await point(bits, 'pointerdown', start, 'pen', 1);
  await expect(base).toHaveValue('2BCD');
  await expect(base).toHaveValue('ABCD');
  await expect(tool.status).toContainText('[15] 1 bit');
  await point(bits, 'pointermove', end, 'pen', 1);
  await expect(tool.status).toContainText('[15:8] 8 bits = 0xAB');
  await point(bits, 'pointerup', end, 'pen', 0);
  await page.keyboard.press('Control+z');
  await expect(tool.status).toHaveText('Nothing to undo');
});
