import type { DesktopWindow } from '../shared/desktop';
import { until } from '../shared/until';
import type { WindowsProgram } from './windowsProgram';

const TITLE = 'Notice - Tessary';

const windowOf = (program: WindowsProgram) => program.windows().find(({ title }) => title === TITLE);

/** Waits until the notice is there and says all of this. */
export async function noticeSays(program: WindowsProgram, ...parts: string[]): Promise<DesktopWindow> {
  await until(`a notice with ${parts.join(', ')}`, () => {
    const texts = program.controls(TITLE).map(({ text }) => text);
    return parts.every((part) => texts.some((text) => text.includes(part)));
  });
  return until('its window', () => windowOf(program));
}

export async function noNotice(program: WindowsProgram) {
  await until('the notice to be gone', () => windowOf(program) === undefined);
}
