import fc from 'fast-check';
import { expect, test } from 'vitest';
import type { TextDocument, Webview } from 'vscode';
import type { SheetData, WordsDocumentData } from '../../../web/src/document/schema';
import { readDocument } from './document';
import { FakeDocument, FakeWebview, takeEdit, warnings } from './fakeEditor';
import type { ExtensionMessage, PageMessage } from './messages';
import { Session } from './session';
import { documentText, sheetText } from './testing';

const TEXT = documentText(sheetText({ id: 'left' }), sheetText({ id: 'right' }), sheetText({ id: 'both' }));

/** What a text is for the page. */
function shownOf(text: string): WordsDocumentData {
  const reading = readDocument(text);
  if (reading.kind !== 'words') throw new Error(`not a document: ${text}`);
  return reading.shown;
}

/** A page that posts every edit at once, and whose messages take their time in both directions. */
class Page {
  readonly #view = new FakeWebview();
  readonly #underWay: PageMessage[] = [{ type: 'ready' }];
  #seen = 0;
  shown: WordsDocumentData | undefined;

  constructor(document: FakeDocument) {
    new Session(document as unknown as TextDocument, this.#view as unknown as Webview);
  }

  edit(id: string, changes: Partial<SheetData>): boolean {
    if (!this.shown?.sheets.some((sheet) => sheet.id === id)) return false;
    const sheets = this.shown.sheets.map((sheet) => (sheet.id === id ? { ...sheet, ...changes } : sheet));
    this.shown = { ...this.shown, sheets };
    this.#underWay.push({ type: 'updateDocument', data: this.shown, seen: this.#seen });
    return true;
  }

  /** One of its messages arrives. @returns whether there was one */
  post(): boolean {
    const message = this.#underWay.shift();
    if (message) this.#view.send(message);
    return message !== undefined;
  }

  /** One message for it arrives. @returns whether there was one */
  read(): boolean {
    const message = this.#view.posted.shift() as ExtensionMessage | undefined;
    if (message?.type === 'document') {
      this.#seen = message.number;
      this.shown = shownOf(message.data.rawContent);
    }
    return message !== undefined;
  }
}

/** Lets everything that is under way arrive. */
async function settle(pages: Page[]): Promise<void> {
  let isBusy = true;
  while (isBusy) {
    await new Promise((resolve) => setImmediate(resolve));
    isBusy = [...pages.flatMap((page) => [page.post(), page.read()]), takeEdit()].includes(true);
  }
}

const side = fc.constantFrom(0, 1);
const step = fc.oneof(
  fc.record({ does: fc.constantFrom('post', 'read', 'own', 'shared'), side }),
  fc.constant({ does: 'take', side: 0 }),
);

test('two editors end with the document that is in the text, and no edit of a sheet is lost', async () => {
  await fc.assert(
    fc.asyncProperty(fc.array(step, { maxLength: 60 }), async (steps) => {
      const document = new FakeDocument(TEXT);
      const pages = [new Page(document), new Page(document)];
      await settle(pages);
      const last = ['0xff', '0xff'];
      let value = 0;
      for (const { does, side } of steps) {
        const page = pages[side]!;
        const int = `0x${(++value).toString(16)}`;
        if (does === 'post') page.post();
        else if (does === 'read') page.read();
        else if (does === 'take') takeEdit();
        else if (does === 'shared') page.edit('both', { int });
        else if (page.edit(side === 0 ? 'left' : 'right', { int })) last[side] = int;
        await new Promise((resolve) => setImmediate(resolve));
      }
      await settle(pages);
      const end = shownOf(document.getText());
      for (const { shown } of pages) expect(shown).toEqual(end);
      expect(end.sheets.slice(0, 2).map(({ int }) => int)).toEqual(last);
    }),
  );
});

test('an edit that is under way while the disk changes another sheet is in the text with that', async () => {
  const document = new FakeDocument(TEXT);
  const page = new Page(document);
  await settle([page]);
  page.edit('left', { int: '0x1' });
  document.set(documentText(sheetText({ id: 'left' }), sheetText({ id: 'right', int: '0x2' })));
  await settle([page]);
  expect(shownOf(document.getText()).sheets.map(({ id, int }) => [id, int])).toEqual([
    ['left', '0x1'],
    ['right', '0x2'],
  ]);
  expect(page.shown).toEqual(shownOf(document.getText()));
});

test.each([
  { what: 'an older commit', scheme: 'git' },
  { what: 'another extension', scheme: 'made-up' },
])('an edit of a read-only document of $what is refused, and the page shows its text again', async ({ scheme }) => {
  warnings.length = 0;
  const document = new FakeDocument(TEXT, scheme);
  const page = new Page(document);
  await settle([page]);
  page.edit('left', { int: '0x1' });
  await settle([page]);
  expect(warnings).toEqual(['numbers.tessary is read-only. Nothing was changed.']);
  expect(document.getText()).toBe(TEXT);
  expect(page.shown).toEqual(shownOf(TEXT));
});
