import { until } from '../shared/until';
import type { WindowsProgram } from './windowsProgram';

/** Clicks a button or link of the page as soon as it can be used. */
export async function click(program: WindowsProgram, name: string) {
  await until(`"${name}" to be clicked`, () =>
    program.page.evaluate((wanted) => {
      const all = [...document.querySelectorAll<HTMLElement>('a, button:not(:disabled)')];
      const found = all.find((each) => (each.ariaLabel ?? each.innerText).trim() === wanted);
      found?.click();
      return found !== undefined;
    }, name),
  );
}
