import type { Locator } from '@playwright/test';
import { expect, test } from '../support/browser/fixtures';
import { enterText, WordsTool } from '../support/browser/words';

test.use({ viewport: { width: 1280, height: 800 } });

/** The middle of a bit's cell, in a field of one line. */
async function placeOf(field: Locator, bits: number, bit: number): Promise<{ x: number; y: number }> {
  const { width } = (await field.boundingBox())!;
  return { x: (width / bits) * (bits - 1 - bit + 0.5), y: 10 };
}

/** The middles of the digits in a line of a text field, as they are seen. */
function printedIn(field: Locator, line: 'first' | 'last'): Promise<number[]> {
  return field.screenshot().then((picture) =>
    field.evaluate(
      async (element, [bytes, isFirst]) => {
        const image = await createImageBitmap(new Blob([new Uint8Array(bytes)]));
        const { width, height } = image;
        const context = new OffscreenCanvas(width, height).getContext('2d')!;
        context.drawImage(image, 0, 0);
        const { lineHeight, paddingBottom } = getComputedStyle(element);
        const lineSize = parseFloat(lineHeight);
        const top = isFirst ? parseFloat(paddingBottom) : height - parseFloat(paddingBottom) - lineSize;
        // Beside what marks an altered text, and between the field's edges.
        const [left, right] = [6, width - 3];
        const { data } = context.getImageData(0, Math.round(top) + 3, width, lineSize - 6);
        const isInk = (x: number) =>
          Array.from({ length: lineSize - 6 }, (_, y) => data[4 * (y * width + x)]!).some((red) => red > 160);
        const middles: number[] = [];
        for (let x = left, start = -1; x < right; x++) {
          if (isInk(x) && start < 0) start = x;
          if (start >= 0 && !isInk(x + 1)) {
            middles.push((start + x + 1) / 2);
            start = -1;
          }
        }
        return middles;
      },
      [[...picture], line === 'first'] as const,
    ),
  );
}

test.describe('bit fields', () => {
  test('a press toggles the bit under the pointer, the leftmost being the most significant', async ({
    page,
    enter,
  }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 0 });
    const { bits, value } = tool.word(8, 1);
    await bits.click({ position: await placeOf(bits, 8, 7) });
    await expect(value).toHaveValue('128');
    await bits.click({ position: await placeOf(bits, 8, 0) });
    await expect(value).toHaveValue('129');
    await bits.click({ position: await placeOf(bits, 8, 7) });
    await expect(value).toHaveValue('1');
    await expect(tool.word(64, 1).value).toHaveValue('1');
  });

  test('a drag paints bits with the first bit’s new value', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 0b01010000 });
    const { bits, base } = { ...tool.word(8, 1), base: tool.word(8, 1).base(2) };
    const box = (await bits.boundingBox())!;
    const moveTo = async (bit: number) => {
      const { x, y } = await placeOf(bits, 8, bit);
      await page.mouse.move(box.x + x, box.y + y);
    };
    await moveTo(7);
    await page.mouse.down();
    await moveTo(2);
    await page.mouse.up();
    await expect(base).toHaveValue('11111100');
    await moveTo(3);
    await page.mouse.down();
    await moveTo(0);
    await page.mouse.up();
    await expect(base).toHaveValue('11110000');
    await moveTo(6);
    await expect(base).toHaveValue('11110000');
  });

  test('painting stops when the pointer leaves the lines of the field', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 0 });
    const { bits, base } = { ...tool.word(8, 1), base: tool.word(8, 1).base(2) };
    const box = (await bits.boundingBox())!;
    const moveTo = async (bit: number, y = 10) => {
      const { x } = await placeOf(bits, 8, bit);
      await page.mouse.move(box.x + x, box.y + y);
    };
    for (const beyond of [-20, box.height + 20]) {
      await moveTo(7);
      await page.mouse.down();
      await moveTo(6);
      await moveTo(5, beyond);
      await moveTo(3, beyond);
      await moveTo(2);
      await page.mouse.up();
      await expect(base).toHaveValue(beyond < 0 ? '11000000' : '0');
    }
  });

  test('painting stops with its button, also where the release went elsewhere', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 0 });
    const { bits, base } = { ...tool.word(8, 1), base: tool.word(8, 1).base(2) };
    await page.evaluate(() => addEventListener('pointerup', (event) => event.stopPropagation(), { capture: true }));
    await bits.click({ position: await placeOf(bits, 8, 7) });
    await bits.hover({ position: await placeOf(bits, 8, 2) });
    await expect(tool.status).toContainText('bit 2 of word 1, 0');
    await expect(base).toHaveValue('10000000');
  });

  test('the bit under the pointer is marked and named before it is pressed', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: '0x2000000000' });
    const { bits } = tool.word(64, 1);
    const pixels = () => bits.evaluate((canvas: HTMLCanvasElement) => canvas.toDataURL());
    const before = await pixels();
    await bits.hover({ position: await placeOf(bits, 64, 37) });
    await expect(tool.status).toContainText('bit 37 of word 1, 1');
    await expect(tool.status).toContainText('2^37 = 137,438,953,472');
    expect((await pixels()) === before).toBe(false);
    await page.mouse.move(10, 10);
    await expect(tool.status).toHaveText('');
    expect((await pixels()) === before).toBe(true);
  });

  test('the top bit of a signed word takes its weight away', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 0 });
    const byte = tool.word(8, 1);
    await byte.value.click();
    await byte.sign.click();
    await byte.bits.hover({ position: await placeOf(byte.bits, 8, 7) });
    await expect(tool.status).toContainText('−2^7 = −128');
  });

  test('from 100 bits up the bits are laid out in lines below each other', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 0, intResolution: 128 });
    const { bits, base } = { ...tool.word(128, 1), base: tool.word(128, 1).base(16) };
    const { width, height } = (await bits.boundingBox())!;
    await bits.click({ position: { x: width - 12, y: height - 12 } });
    await expect(base).toHaveValue('1');
    await bits.click({ position: { x: 50, y: 10 } });
    await expect(base).toHaveValue(`8${'0'.repeat(30)}1`);
    await bits.click({ position: { x: 50, y: height - 12 } });
    await expect(base).toHaveValue('80000000000000008000000000000001');
  });

  for (const width of [1280, 800, 320]) {
    test(`digits of base 2 stand over their bits in a window ${width} pixels wide`, async ({ page, enter }) => {
      await page.setViewportSize({ width, height: 800 });
      const tool = new WordsTool(page);
      await tool.open(enter, { int: 0, intResolution: 128 });
      const { base, bits, value } = { ...tool.word(128, 1), base: tool.word(128, 1).base(2) };
      const box = (await bits.boundingBox())!;
      /** Presses the bit below, or above, what is printed first or last in a line of the text. */
      const press = async (line: 'first' | 'last', digit: 'first' | 'last') => {
        const printed = await printedIn(base, line);
        const x = digit === 'first' ? printed[0]! : printed.at(-1)!;
        const left = (await base.boundingBox())!.x - box.x;
        await bits.click({ position: { x: left + x, y: line === 'first' ? 10 : box.height - 14 } });
      };
      await enterText(base, '10000001'); // far shorter than a line
      await value.focus();
      await press('last', 'first');
      await expect(base).toHaveValue('1');
      await value.focus();
      await press('last', 'last');
      await expect(base).toHaveValue('0');
      await enterText(base, `1${'0'.repeat(126)}1`);
      await value.focus();
      await press('first', 'first');
      await expect(base).toHaveValue('1');
      await base.fill('11'); // also while it is typed
      await press('last', 'first');
      await expect(value).toHaveValue('3');
    });
  }

  test('a float converter adds the parts of the float and their colors', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: '0xffffffffffffffff' });
    const { bits } = tool.word(16, 1);
    const plain = (await bits.boundingBox())!.height;
    await tool.setConverters('FLOAT');
    expect((await bits.boundingBox())!.height).toBeGreaterThan(plain);
    const colorAt = (bit: number) =>
      bits.evaluate((canvas: HTMLCanvasElement, at) => {
        const x = (canvas.width / 16) * (15 - at + 0.5);
        const y = canvas.height - 13 - 2;
        return [...canvas.getContext('2d')!.getImageData(x, y, 1, 1).data].slice(0, 3);
      }, bit);
    expect(await colorAt(15)).toEqual([0xd3, 0x2f, 0x2f]);
    expect(await colorAt(12)).toEqual([0x19, 0x76, 0xd2]);
    expect(await colorAt(4)).toEqual([0xbe, 0x56, 0x93]);
  });

  test('is sharp on dense screens', async ({ browser, server }) => {
    const context = await browser.newContext({ deviceScaleFactor: 2, viewport: { width: 1280, height: 800 } });
    const page = await context.newPage();
    const tool = new WordsTool(page);
    await tool.open(
      async () => {
        await page.goto(server.url);
      },
      { int: 5 },
    );
    const { bits } = tool.word(8, 1);
    const [drawn, shown] = await bits.evaluate((canvas: HTMLCanvasElement) => [canvas.width, canvas.clientWidth]);
    expect(drawn).toBe(2 * shown);
    await context.close();
  });
});

test.describe('bit fields by keyboard', () => {
  test('arrows move a cursor, Space toggles, 0 and 1 write', async ({ page, enter, expectAccessible }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 0 });
    const { base, bits } = { base: tool.word(16, 2).base(2), bits: tool.word(16, 2).bits };
    await base.focus();
    await tool.word(16, 2).base(16).focus();
    await page.keyboard.press('Tab');
    await expect(bits).toBeFocused();
    await expect(tool.status).toContainText('bit 15 of word 2, 0');
    await expect(bits).toHaveAccessibleDescription(/^bit 15 of word 2, 0/);
    await page.keyboard.press('ArrowRight');
    await page.keyboard.press('Space');
    await expect(tool.status).toContainText('bit 14 of word 2, 1');
    await expect(base).toHaveValue(`1${'0'.repeat(14)}`);
    await page.keyboard.press('End');
    await expect(tool.status).toContainText('bit 0 of word 2, 0');
    await page.keyboard.press('ArrowLeft');
    await page.keyboard.press('Control+ArrowLeft');
    await expect(tool.status).toContainText('bit 9 of word 2, 0');
    await page.keyboard.type('101');
    await expect(base).toHaveValue('100001010000000');
    await page.keyboard.press('Home');
    await expect(tool.status).toContainText('bit 15 of word 2, 0');
    await expectAccessible();
    await page.keyboard.press('Tab');
    await expect(tool.status).toHaveText('');
  });

  test('up and down move by lines in wide words, and the cursor stays in view', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 0, intResolution: 1024 });
    const { bits, group } = tool.word(1024, 1);
    await group.getByRole('textbox').last().focus();
    await page.keyboard.press('Tab');
    await expect(bits).toBeFocused();
    await expect(tool.status).toContainText('bit 1023 of word 1, 0');
    await page.keyboard.press('ArrowDown');
    await expect(tool.status).toContainText('bit 959 of word 1, 0');
    await page.keyboard.press('End');
    await expect(tool.status).toContainText('bit 0 of word 1, 0');
    const { y, height } = (await bits.boundingBox())!;
    expect(y + height).toBeLessThan(800);
    await page.keyboard.press('Space');
    await expect(tool.word(1024, 1).value).toHaveValue('1');
  });
});
