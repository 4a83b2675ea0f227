import { expect, test } from '../support/linux/fixtures';
import type { Program } from '../support/linux/program';
import { documentText } from '../support/shared/documents';
import { until } from '../support/shared/until';

const MIDDLE = { x: 400, y: 300 };

/** What the page has room for: the window's size in pixels, divided by the zoom. */
const width = (program: Program) => program.page.evaluate(() => innerWidth);

/** Waits until the page is laid out at a width. */
async function hasWidth(program: Program, wanted: number) {
  await until(`a page ${wanted} pixels wide`, async () => (await width(program)) === wanted);
  const painted = () => new Promise((done) => requestAnimationFrame(() => requestAnimationFrame(() => done(true))));
  await program.page.evaluate(painted);
}

async function openSheet(open: (args: string[]) => Promise<Program>, file: string): Promise<Program> {
  const program = await open([file]);
  await until('the sheet', () => program.page.evaluate(() => document.querySelector('[data-word] canvas') !== null));
  program.desktop.focus(program.window);
  await hasWidth(program, 800);
  return program;
}

/** Parts of the page that stick out of it to the right, though nothing scrolls there. */
const clippedParts = (program: Program) =>
  program.page.evaluate(() =>
    [...document.querySelectorAll('button, input, [role="tab"], [role="switch"], [role="status"]')]
      .filter((part) => !part.closest('[data-scroller="row"]'))
      .filter((part) => part.getBoundingClientRect().right > innerWidth + 0.5)
      .map((part) => part.ariaLabel ?? part.textContent),
  );

test('Ctrl with plus, minus and 0 zooms the page between 80 and 300 percent', async ({ open, sandbox }) => {
  const program = await openSheet(open, sandbox.write('mine.words.tessary', documentText({ int: '0xC0000094' })));
  program.desktop.press('ctrl+plus');
  await hasWidth(program, 727); // 110%
  program.desktop.press('ctrl+equal', 'ctrl+KP_Add', 'ctrl+plus', 'ctrl+plus');
  await hasWidth(program, 400);
  expect(await clippedParts(program)).toEqual([]);
  expect(await program.page.evaluate(() => document.documentElement.scrollWidth)).toBe(400);
  program.desktop.press(...Array<string>(6).fill('ctrl+plus'));
  await hasWidth(program, 266);
  program.desktop.press(...Array<string>(14).fill('ctrl+minus'));
  await hasWidth(program, 1000);
  program.desktop.press('ctrl+0');
  await hasWidth(program, 800);
  const left = await program.page.evaluate(() => ({
    focus: document.activeElement?.ariaLabel,
    scrolled: document.querySelector('[data-scroller="sheet"]')!.scrollTop,
  }));
  expect(left).toEqual({ focus: 'Value', scrolled: 0 });
});

test('Ctrl with the wheel zooms, and the wheel alone scrolls', async ({ open, sandbox }) => {
  const program = await openSheet(open, sandbox.write('mine.words.tessary', documentText({ int: '0x5' })));
  program.desktop.wheel(program.window, MIDDLE, -2, 'ctrl');
  await hasWidth(program, 640); // 125%
  program.desktop.wheel(program.window, MIDDLE, 3, 'ctrl');
  await hasWidth(program, 888); // 90%
  const scrolled = () => program.page.evaluate(() => document.querySelector('[data-scroller="sheet"]')!.scrollTop);
  expect(await scrolled()).toBe(0);
  program.desktop.wheel(program.window, MIDDLE, 2);
  await until('the sheet to scroll', async () => (await scrolled()) > 0);
  expect(await width(program)).toBe(888);
});

test('bits are drawn with the pixels of the zoom, and pressed where they are seen', async ({ open, sandbox }) => {
  const text = documentText({ int: '0x0', intResolution: 32 });
  const program = await openSheet(open, sandbox.write('mine.words.tessary', text));
  program.desktop.press(...Array<string>(5).fill('ctrl+plus'));
  await hasWidth(program, 400);
  const fineness = () =>
    program.page.evaluate(() => {
      const canvas = document.querySelector<HTMLCanvasElement>('[aria-label="Int 32 word 1"] canvas')!;
      return canvas.width / canvas.getBoundingClientRect().width;
    });
  await until('fine bits', async () => Math.abs((await fineness()) - 2) < 0.01);
  const lowestBit = await program.page.evaluate(() => {
    const canvas = document.querySelector('[aria-label="Int 32 word 1"] canvas')!;
    canvas.scrollIntoView({ block: 'nearest', inline: 'end' });
    const box = canvas.getBoundingClientRect();
    return { x: 2 * (box.right - 10), y: 2 * (box.top + 10) };
  });
  program.desktop.click(program.window, lowestBit);
  const value = () =>
    program.page.evaluate(
      () => document.querySelector<HTMLInputElement>('[aria-label="Int 32 word 1"] input[aria-label="Value"]')?.value,
    );
  await until('the bit', async () => (await value()) === '1');
});

test('the list of keys names those of the zoom', async ({ open }) => {
  const program = await open();
  await program.shows('Open Words Tool');
  program.desktop.focus(program.window);
  program.desktop.press('F1');
  await program.shows('Ctrl+Plus');
});
