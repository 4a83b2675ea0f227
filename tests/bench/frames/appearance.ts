// What the page shows. These functions run in it, or ask it.
import type { Program } from '../../e2e/support/linux/program';

/** All that an action can change where a user sees it. */
export function appearance({ page }: Program): Promise<string> {
  return page.evaluate(() => {
    const fields = [...document.querySelectorAll<HTMLInputElement>('[data-word] input, [data-word] textarea')];
    const scrollers = [...document.querySelectorAll('[data-scroller]')];
    return JSON.stringify([
      [innerWidth, innerHeight],
      scrollers.map(({ scrollLeft, scrollTop }) => [scrollLeft, scrollTop]),
      fields.map(({ value }) => value),
    ]);
  });
}

/** Puts some lines of text, and no script, in the page's place. */
export function makeBare(): void {
  document.open();
  document.close();
  document.body.innerHTML = '<p>A page that shows some lines of text and does nothing else.</p>'.repeat(12);
}
