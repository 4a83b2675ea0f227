import type { Page } from '@playwright/test';

/** A word as it can be read on the page. */
export interface ShownWord {
  /** The row's name and the word's number in it, counted from 1. */
  readonly row: string;
  readonly number: number;
  /** What the line above the fields says of the word. */
  readonly header: readonly string[];
  /** By the fields' names. */
  readonly fields: Readonly<Record<string, string>>;
  /** The digits on the canvas, the most significant first; undefined for a word without one. */
  readonly bits: string | undefined;
}

export interface ShownSheet {
  readonly rows: readonly string[];
  readonly words: readonly ShownWord[];
  /** The field that the keyboard is in, if it is in one. */
  readonly focused: { readonly word: string; readonly field: string } | undefined;
}

interface WatchedWindow {
  /** The digits that every canvas shows, by their places. */
  digitsOf: WeakMap<HTMLCanvasElement, Map<string, { x: number; y: number; digit: string }>>;
}

/** Lets `readWords` know what canvases show. To be called before the page's scripts run. */
export async function watchCanvases(page: Page): Promise<void> {
  await page.addInitScript(() => {
    const digitsOf: WatchedWindow['digitsOf'] = new WeakMap();
    Object.assign(window, { digitsOf });
    const digits = (canvas: HTMLCanvasElement) => {
      const known = digitsOf.get(canvas) ?? new Map<string, { x: number; y: number; digit: string }>();
      digitsOf.set(canvas, known);
      return known;
    };
    const context = CanvasRenderingContext2D.prototype;
    const { fillText, drawImage, clearRect } = context;
    const forget = (canvas: HTMLCanvasElement, left: number, top: number, width: number, height: number) => {
      const known = digits(canvas);
      for (const [key, { x, y }] of known) {
        if (x >= left && x < left + width && y >= top && y < top + height) known.delete(key);
      }
    };
    context.fillText = function (text, x, y, ...rest) {
      // Digits stand in the middle of their cells, numbers of bits at an edge.
      const isDigit = this.textAlign === 'center' && (text === '0' || text === '1');
      if (isDigit) digits(this.canvas).set(`${x} ${y}`, { x, y, digit: text });
      fillText.call(this, text, x, y, ...rest);
    };
    // A bit can be a picture of its digit.
    context.drawImage = function (image: CanvasImageSource, ...place: number[]) {
      const [left = 0, top = 0, width = 0, height = 0] = place;
      forget(this.canvas, left, top, width, height);
      const pictured = image instanceof HTMLCanvasElement ? [...digits(image).values()] : [];
      const [x, y] = [left + width / 2, top + height / 2 + 0.5];
      for (const { digit } of pictured) digits(this.canvas).set(`${x} ${y}`, { x, y, digit });
      Reflect.apply(drawImage, this, [image, ...place]);
    };
    context.clearRect = function (left, top, width, height) {
      forget(this.canvas, left, top, width, height);
      clearRect.call(this, left, top, width, height);
    };
    for (const length of ['width', 'height'] as const) {
      const property = Object.getOwnPropertyDescriptor(HTMLCanvasElement.prototype, length)!;
      Object.defineProperty(HTMLCanvasElement.prototype, length, {
        ...property,
        set(this: HTMLCanvasElement, value: number) {
          digits(this).clear();
          property.set!.call(this, value);
        },
      });
    }
  });
}

/** Everything that is on the page of the sheet that is shown, also what is scrolled out of the window. */
export function readWords(page: Page): Promise<ShownSheet> {
  return page.evaluate(async () => {
    // What a scroll or a new size brings comes with the next frames.
    for (let frame = 0; frame < 2; frame++) await new Promise(requestAnimationFrame);
    const { digitsOf } = window as unknown as WatchedWindow;
    const blocks = [...document.querySelectorAll('[role=tabpanel] [data-word]')];
    const nameOf = (element: Element) => element.getAttribute('aria-label') ?? '';
    const digitsIn = (canvas: HTMLCanvasElement) =>
      [...(digitsOf.get(canvas)?.values() ?? [])]
        .sort((a, b) => a.y - b.y || a.x - b.x)
        .map(({ digit }) => digit)
        .join('');
    const words = blocks.map((block) => {
      const [, row = '', number = ''] = /^(.*) word (\d+)$/.exec(nameOf(block)) ?? [];
      const texts = [...block.querySelectorAll('span, button:not([data-operation])')].map(
        ({ textContent }) => textContent,
      );
      const fields = [...block.querySelectorAll<HTMLInputElement>('input, textarea')];
      const canvas = block.querySelector('canvas');
      return {
        row,
        number: Number(number),
        header: texts.filter((text) => /^(\d+|\d+[SU]|(LO|HI):\d+)$/.test(text)),
        fields: Object.fromEntries(fields.map((field) => [nameOf(field), field.value])),
        bits: canvas ? digitsIn(canvas) : undefined,
      };
    });
    const { activeElement } = document;
    const block = activeElement?.closest('[data-word]');
    const groups = [...document.querySelectorAll('[role=tabpanel] [role=group]')].map(nameOf);
    return {
      rows: groups.filter((name) => /^(Int \d+|Color 32)$/.test(name)),
      words,
      focused: block && activeElement ? { word: nameOf(block), field: nameOf(activeElement) } : undefined,
    };
  });
}
