import { proxy } from 'valtio';

/** How long a message stays unless another one comes, in milliseconds. */
const LIFETIME = 5000;

/** What the status line reports of the last command; empty when it has nothing to report. */
export const statusMessage = proxy({ text: '' });

let timer: ReturnType<typeof setTimeout> | undefined;

/** Shows a message in the status line, where a screen reader hears it once. */
export function showStatus(text: string): void {
  clearTimeout(timer);
  statusMessage.text = text;
  timer = setTimeout(clearStatus, LIFETIME);
}

export function clearStatus(): void {
  statusMessage.text = '';
}
