// What the page shows, and where its controls are. These functions run in the page and know nothing of their surroundings.
import type { Point } from '../../e2e/support/shared/desktop';

/** What a user can read of the sheet that is shown. */
export interface Screen {
  tabs: string[];
  active: number;
  resolution: number;
  /** The whole integer in base 16; undefined while its row is scrolled out of the window. */
  digits: string | undefined;
  /** The document's file name, with a star at its end when something is not saved. */
  file: string;
  messages: string[];
}

export function readScreen(): Screen {
  const tabs = [...document.querySelectorAll('[role=tab]')];
  const [, width = '0'] =
    /Resolution\s*(\d+)/.exec(document.querySelector('[role=group][aria-label=Sheet]')?.textContent ?? '') ?? [];
  const widest = document.querySelector(`[aria-label="Int ${width} word 1"]`);
  return {
    tabs: tabs.map(({ textContent }) => textContent),
    active: tabs.findIndex((tab) => tab.ariaSelected === 'true'),
    resolution: Number(width),
    digits: widest?.querySelector<HTMLInputElement>('[aria-label="Base 16"]')?.value,
    file: document.querySelector('[role=toolbar][aria-label=Document] > :last-child')?.textContent ?? '',
    messages: [...document.querySelectorAll('[role=alert]')].map(({ textContent }) => textContent),
  };
}

/** Something to press, where the pointer reaches it. */
export interface Target {
  /** Its middle. */
  at: Point;
  /** How far to the left and to the right of the middle it can be pressed too, at most. */
  left: number;
  right: number;
  /** What the control says of itself. */
  name: string;
  /** The word that it belongs to, such as "Int 8 word 3"; empty outside the words. */
  word: string;
}

/** All controls that match a selector and are not covered or scrolled away in their middle. */
export function reachable(selector: string): Target[] {
  const targets: Target[] = [];
  for (const element of document.querySelectorAll<HTMLElement>(selector)) {
    const { left, top, width, height } = element.getBoundingClientRect();
    const at = { x: left + width / 2, y: top + height / 2 };
    const isHit = (x: number) => {
      const hit = document.elementFromPoint(x, at.y);
      return hit !== null && (element.contains(hit) || (element.closest('label')?.contains(hit) ?? false));
    };
    if (!isHit(at.x)) continue;
    const reach = (step: number) => {
      let x = at.x;
      while (Math.abs(x + step - at.x) < width / 2 && isHit(x + step)) x += step;
      return x;
    };
    const word = element.closest('[role=group][aria-label^="Int "][aria-label*=" word "]')?.ariaLabel ?? '';
    targets.push({ at, left: reach(-4), right: reach(4), name: element.ariaLabel ?? element.textContent, word });
  }
  return targets;
}

type Watched = { released?: Promise<void> };

/** From now on the page notes when the pointer's button is let go. */
export function watchForRelease(): void {
  (window as Watched).released = new Promise((resolve) =>
    addEventListener('pointerup', () => resolve(), { once: true, capture: true }),
  );
}

/** Waits until the page has worked through all that the pointer did before its button was let go. */
export async function whenReleased(): Promise<void> {
  await (window as Watched).released;
  await new Promise(requestAnimationFrame);
}
