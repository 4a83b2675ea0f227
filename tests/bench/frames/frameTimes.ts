// The frames of a page as the page itself sees them.
import type { Inspector } from '../../e2e/support/linux/inspector';

/** What is put off until the input has come to rest, such as storing scroll positions, belongs to an action. In milliseconds. */
const REST = 500;

type Recording = { moments?: number[] };

/** Notes each frame of the page while something is done. @returns milliseconds from each frame to the next, at least one */
export async function framesWhile(page: Inspector, act: () => void): Promise<number[]> {
  await page.evaluate(begin);
  act();
  const moments = await page.evaluate(end, REST);
  return moments.slice(1).map((moment, at) => moment - moments[at]!);
}

// These two run in the page and know nothing of their surroundings.
function begin(): Promise<void> {
  const moments: number[] = [];
  (window as Recording).moments = moments;
  return new Promise((resolve) => {
    const note = () => {
      if ((window as Recording).moments !== moments) return;
      moments.push(performance.now());
      resolve();
      requestAnimationFrame(note);
    };
    requestAnimationFrame(note);
  });
}

async function end(rest: number): Promise<number[]> {
  await new Promise((resolve) => setTimeout(resolve, rest));
  await new Promise(requestAnimationFrame);
  const { moments = [] } = window as Recording;
  delete (window as Recording).moments;
  return moments;
}
