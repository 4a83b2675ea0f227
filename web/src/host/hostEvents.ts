import { isCppBackend } from './hostFlags';

/** What the native host sends to the page's window, each with a name of its own. */
export type HostEventName = 'tessary-close' | 'tessary-end';

/**
 * Listens to an event of the native host. What `answer` gives is the answer, as JSON; undefined leaves the event
 * unanswered. Nothing happens in other hosts.
 */
export function onHostEvent(name: HostEventName, answer: () => unknown): void {
  if (!isCppBackend) return;
  window.addEventListener(name, (event) => {
    const given = answer();
    if (given === undefined) return;
    (event as CustomEvent<{ answer?: unknown }>).detail.answer = given;
    event.preventDefault();
  });
}
