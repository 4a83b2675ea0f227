import { beforeEach, expect, test, vi } from 'vitest';
import type { ExtensionMessage } from './messages';

const DOCUMENT: ExtensionMessage = { type: 'document', number: 1, data: { rawContent: '{}' } };
const posted = vi.fn();
let passedOn: string[];
/** A key, as the editor's user presses it. */
let press: (key: string) => void;
/** An edit in the page that it holds back, because it rests after a document. */
let edit: () => void;

const send = (data: ExtensionMessage) => window.dispatchEvent(new MessageEvent('message', { data }));
const types = () => posted.mock.calls.map(([{ type }]) => type);

beforeEach(async () => {
  const [page, place] = [new EventTarget(), new EventTarget()];
  vi.stubGlobal('window', page);
  vi.stubGlobal('document', place);
  const api = { postMessage: posted };
  vi.stubGlobal('acquireVsCodeApi', () => api);
  vi.stubGlobal('KeyboardEvent', class extends Event {});
  posted.mockClear();
  const listen = vi.spyOn(place, 'addEventListener');
  vi.resetModules();
  await import('./bridge');
  const onKey = listen.mock.calls[0]![1] as (event: unknown) => void;
  passedOn = [];
  press = (key) => {
    const event = { key, ctrlKey: true, isTrusted: true, preventDefault: vi.fn(), stopPropagation: vi.fn() };
    onKey(event);
    if (event.stopPropagation.mock.calls.length === 0) passedOn.push(key);
  };
  page.addEventListener('keydown', () => passedOn.push('later'));
  edit = () =>
    page.addEventListener('pagehide', () => window.acquireVsCodeApi!().postMessage({ type: 'updateDocument' }), {
      once: true,
    });
});

test('a key for the editor waits for an edit that the page holds back', () => {
  send(DOCUMENT);
  edit();
  press('w');
  expect(types()).toEqual(['updateDocument']);
  expect(passedOn).toEqual([]);
  send({ type: 'taken' });
  expect(passedOn).toEqual(['later']);
});

test('a key for the editor is passed on at once where all edits are in the text', () => {
  send(DOCUMENT);
  press('w');
  expect(passedOn).toEqual(['w']);
});

test('a save has an edit that the page holds back', () => {
  send(DOCUMENT);
  edit();
  send({ type: 'flush' });
  expect(types()).toEqual(['updateDocument', 'flushed']);
});

test('what is edited in one document is posted as an edit of that, before another one comes', () => {
  send(DOCUMENT);
  edit();
  send({ ...DOCUMENT, number: 2 });
  expect(posted).toHaveBeenCalledExactlyOnceWith({ type: 'updateDocument', seen: 1 });
});
