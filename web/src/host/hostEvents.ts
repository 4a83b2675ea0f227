import { isCppBackend } from './hostFlags';

/** What the native host sends to the page's window, each with a name of its own. */
export type HostEventName = 'tessary-close' | 'tessary-work' | 'tessary-end';

/**
 * Listens to an event of the native host, which may ask for all that the page has. What `answer` gives is the answer, as
 * JSON; undefined leaves the event unanswered. Nothing happens in other hosts.
 */
export function onHostEvent(name: HostEventName, answer: (question: { whole?: boolean }) => unknown): void {
  if (!isCppBackend) return;
  window.addEventListener(name, (event) => {
    const { detail } = event as CustomEvent<{ whole?: boolean; answer?: unknown }>;
    const given = answer(detail);
    if (given === undefined) return;
    detail.answer = given;
    event.preventDefault();
  });
}
