// What somebody does with sheets of 1024 bits, with real keys, a real pointer and the real edges of the window.
import { execFileSync } from 'node:child_process';
import type { Program } from '../../e2e/support/linux/program';
import type { Point } from '../../e2e/support/shared/desktop';
import { until } from '../../e2e/support/shared/until';

/** Between two moves of the pointer, notches of the wheel or steps of the window's edge: about a frame, in seconds. */
const STEP = 0.016;
const STEPS = 16;
/** The first of the sizes that the window takes, in pixels. */
const SIZE = { width: 1200, height: 900 };

export interface Action {
  name: string;
  /** Nothing is to be seen of it. */
  isIdle?: boolean;
  /** Puts everything in its place, which is not measured. @returns what gives the input and comes back when all is sent */
  ready: (program: Program, round: number) => Promise<() => void>;
}

const NOTHING: Action = {
  name: 'nothing, half a second',
  isIdle: true,
  ready: async () => () => execFileSync('sleep', ['0.5']),
};

const RESIZE: Action = {
  name: `resize the window in ${STEPS} steps`,
  async ready(program, round) {
    const sizes = Array.from({ length: STEPS }, (_, step) => 12 * (round % 2 ? STEPS - 1 - step : step + 1));
    return () => give(program, ...sizes.map((less) => sizeWindow(program, less)).flatMap(thenWait));
  },
};

export const ACTIONS: Action[] = [
  NOTHING,
  RESIZE,
  {
    name: 'show the other sheet',
    ready: async ({ desktop }, round) => {
      const key = round % 2 ? 'ctrl+Prior' : 'ctrl+Next';
      return () => desktop.press(key);
    },
  },
  {
    name: `draw over bits in ${STEPS} moves`,
    async ready(program, round) {
      const from = await placeOf(program, 'canvas', { x: 80, y: 12 + 20 * (round % 3) });
      const moves = Array.from({ length: STEPS }, (_, step) => pointTo(program, { x: from.x + 12 * step, y: from.y }));
      return () =>
        give(program, ...pointTo(program, from), 'mousedown', '1', ...moves.flatMap(thenWait), 'mouseup', '1');
    },
  },
  {
    name: 'toggle a bit',
    async ready(program, round) {
      const at = await placeOf(program, 'canvas', { x: 60 + 20 * round, y: 12 });
      return () => program.desktop.click(program.window, at);
    },
  },
  {
    name: 'Enter in a field',
    async ready(program, round) {
      program.desktop.click(program.window, await placeOf(program, '[aria-label="Base 16"]', { x: 80, y: 8 }));
      program.desktop.press('ctrl+a');
      const text = hexDigits(round);
      program.desktop.type(text);
      const isTyped = (wanted: string) => (document.activeElement as HTMLTextAreaElement).value === wanted;
      await until('the text in the field', () => program.page.evaluate(isTyped, text));
      return () => program.desktop.press('Return');
    },
  },
  {
    name: 'wheel along the row of bytes and back',
    async ready(program, round) {
      await scrollTo(program, 1e6);
      const at = await placeOf(program, '[role="group"][aria-label="Int 8"] [data-scroller="row"]', { x: 300, y: 40 });
      return () => give(program, ...pointTo(program, at), ...wheel(round % 2 ? RIGHT : LEFT));
    },
  },
  {
    name: 'wheel down the sheet and up',
    async ready(program, round) {
      await scrollTo(program, round % 2 ? 1e6 : 0);
      const at = await placeOf(program, '[data-scroller="sheet"]', { x: 10, y: 300 });
      return () => give(program, ...pointTo(program, at), ...wheel(round % 2 ? UP : DOWN));
    },
  },
  {
    ...RESIZE,
    name: `${RESIZE.name}, at the bytes`,
    async ready(program, round) {
      await scrollTo(program, 1e6);
      return RESIZE.ready(program, round);
    },
  },
];

/** For comparison, in the same window with a page of some lines. */
export const BARE_ACTIONS: Action[] = [NOTHING, RESIZE].map((action) => ({
  ...action,
  name: `bare page: ${action.name}`,
}));

const [UP, DOWN, LEFT, RIGHT] = ['4', '5', '6', '7'];
const NOTCHES = 40;

/** Gives the window the size that all actions begin with. */
export async function prepareWindow(program: Program): Promise<void> {
  program.desktop.focus(program.window);
  give(program, ...sizeWindow(program, 0));
  await until('the size', () => program.page.evaluate((width) => innerWidth === width, SIZE.width));
}

export function hexDigits(seed: number): string {
  const digit = (at: number) => (((at + 3) * (seed + 7) * 40_503) >>> 5).toString(16).at(-1);
  return `F${Array.from({ length: 255 }, (_, at) => digit(at)).join('')}`;
}

function give({ desktop }: Program, ...input: string[]): void {
  execFileSync('xdotool', input, { env: desktop.environment });
}

const thenWait = (input: string[]) => [...input, 'sleep', `${STEP}`];

const pointTo = ({ window }: Program, { x, y }: Point) => ['mousemove', '--window', window.id, `${x}`, `${y}`];

const sizeWindow = ({ window }: Program, less: number) => [
  ...['windowsize', window.id],
  ...[`${SIZE.width - less}`, `${SIZE.height - less}`],
];

const wheel = (button = '') => ['click', '--repeat', `${NOTCHES}`, '--delay', `${1000 * STEP}`, button];

/**
 * Scrolls the first element that matches into view.
 * @returns a point of it, in the window's pixels
 * @param within - from its upper left corner
 */
async function placeOf({ page }: Program, selector: string, within: Point): Promise<Point> {
  const look = async (wanted: string) => {
    const element = document.querySelector(wanted);
    if (!element) return false;
    element.scrollIntoView({ block: 'nearest' });
    await new Promise(requestAnimationFrame);
    await new Promise((resolve) => setTimeout(resolve));
    const { left, top } = element.getBoundingClientRect();
    return { left, top };
  };
  const { left, top } = await until(selector, () => page.evaluate(look, selector));
  return { x: Math.round(left + within.x), y: Math.round(top + within.y) };
}

/** @param top - in CSS pixels; what is beyond the end stands for the end */
async function scrollTo({ page }: Program, top: number): Promise<void> {
  await page.evaluate(async (position) => {
    document.querySelector('[data-scroller="sheet"]')!.scrollTop = position;
    await new Promise(requestAnimationFrame);
    await new Promise((resolve) => setTimeout(resolve));
  }, top);
}
