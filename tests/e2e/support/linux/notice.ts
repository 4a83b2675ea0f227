import type { DesktopWindow } from '../shared/desktop';
import { until } from '../shared/until';
import type { Program } from './program';

const TITLE = 'Notice - Tessary';

const windowOf = (program: Program) => program.windows().find(({ title }) => title === TITLE);

/** All texts in the notice, as a screen reader finds them. */
export function noticeText(program: Program): string {
  const all = program.desktop.accessiblesOf(program.process.pid);
  const start = all.findIndex(({ depth, role, name }) => depth === 1 && role === 'alert' && name === TITLE);
  const end = all.findIndex(({ depth }, index) => index > start && depth <= 1);
  const inside = start < 0 ? [] : all.slice(start, end < 0 ? undefined : end);
  return inside
    .filter(({ role }) => role === 'label')
    .map(({ name, text }) => text || name)
    .join('\n');
}

/** Waits until the notice is there and says all of this. */
export async function noticeSays(program: Program, ...parts: string[]): Promise<DesktopWindow> {
  await until(`a notice with ${parts.join(', ')}`, () => {
    const text = noticeText(program);
    return parts.every((part) => text.includes(part));
  });
  return until('its window', () => windowOf(program));
}

export async function noNotice(program: Program) {
  await until('the notice to be gone', () => windowOf(program) === undefined);
}
