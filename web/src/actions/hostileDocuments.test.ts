import fc from 'fast-check';
import { beforeEach, expect, test, vi } from 'vitest';
import { withLoading } from '../document/loading';
import { parseToolDocument, parseToolDocumentInSteps } from '../document/parseToolDocument';
import { isWordsDocument } from '../document/wordsDocument';
import { useSheetsStore } from '../stores/sheetsStore';
import { hostileText, hostileValue } from '../testing/hostileDocuments';
import { openDocument } from './documentActions';

const { showError, openFile } = vi.hoisted(() => ({ showError: vi.fn(), openFile: vi.fn() }));
vi.mock('../ui/notifications', () => ({ showError }));
vi.mock('../host/fileService', () => ({ fileService: { openFile } }));

// A page that cannot keep its record says so once, at any later moment: a second message beside the one that is looked for.
const record = new Map<string, string>();
vi.stubGlobal('localStorage', {
  getItem: (key: string) => record.get(key) ?? null,
  setItem: (key: string, text: string) => void record.set(key, text),
  removeItem: (key: string) => void record.delete(key),
});

const REFUSALS = [
  'Failed to parse document data: Invalid JSON',
  'Invalid Tessary document data structure',
  'The provided document is not of a recognized format',
];
const NOT_OPENED = 'An error occurred while opening the file';

/** In characters; the document that broke a property can be huge, and its seed makes it again. */
const LONGEST_REPORT = 4000;

/** Set by scripts/fuzz: how long all properties together look for a document that breaks them. */
const seconds = Number(process.env.TESSARY_FUZZ_SECONDS ?? 0);
const PROPERTIES = 3;
const limit = (seconds * 1000) / PROPERTIES;

async function expectForAll<T>(inputs: fc.Arbitrary<T>, check: (input: T) => Promise<void>): Promise<void> {
  const effort = seconds > 0 ? { numRuns: 1e9, interruptAfterTimeLimit: limit } : { numRuns: 300 };
  const details = await fc.check(fc.asyncProperty(inputs, check), effort);
  if (seconds > 0) console.info(`${details.numRuns} documents`);
  if (!details.failed) return;
  // The reason stands behind the document in the report, where it would be cut off.
  throw new Error(`${String(details.errorInstance)}\n${fc.defaultReportMessage(details)}`.slice(0, LONGEST_REPORT));
}

const builtIns = [Object.prototype, Array.prototype, String.prototype, Function.prototype];
const shapeOfBuiltIns = () => builtIns.map((prototype) => JSON.stringify(Object.getOwnPropertyNames(prototype)));
const untouched = shapeOfBuiltIns();

const store = () => useSheetsStore.getState();
const documentPart = () => {
  const { sheets, activeSheetKey, documentFile, isUnsaved } = store();
  return { sheets, activeSheetKey, documentFile, isUnsaved };
};

beforeEach(() => {
  store().reset();
  store().addSheet();
  store().updateWordsDocumentFileState({ name: 'mine.tessary', path: '/mine.tessary' });
});

/** What a file that was just opened looks like after it was saved and opened again. */
async function expectSaveToKeepIt(): Promise<void> {
  const opened = [...store().sheets.values()];
  const text = store().getWordsDocument().toFileData();
  const parsed = parseToolDocument(text, false);
  if (!parsed.success) throw new Error(`What was saved is refused: ${parsed.error}`);
  await store().loadWordsDocument(parsed.data, { name: 'again', path: '/again' });
  const again = [...store().sheets.values()];
  const kept = ({ id, displayName, intResolution }: (typeof opened)[number]) => ({ id, displayName, intResolution });
  expect(again.map(kept)).toEqual(opened.map(kept));
  expect(again.map(({ int }) => int)).toEqual(
    opened.map(({ int, intResolution }) => (int < 0n ? BigInt.asUintN(intResolution, int) : int)),
  );
  expect(store().getWordsDocument().toFileData()).toBe(text);
}

test(
  'opening any file shows a document that can be saved, or one message while all stays as it was',
  { timeout: limit + 60_000 },
  () =>
    expectForAll(hostileText, async (content) => {
      const before = documentPart();
      const navigate = vi.fn();
      showError.mockClear();
      openFile.mockResolvedValue({ fileHandle: { name: 'other', path: '/other' }, content });

      await openDocument(navigate);

      expect(shapeOfBuiltIns()).toEqual(untouched);
      if (showError.mock.calls.length > 0) {
        expect(showError).toHaveBeenCalledOnce();
        expect([...REFUSALS, NOT_OPENED]).toContain(showError.mock.calls[0]![0]);
        expect(navigate).not.toHaveBeenCalled();
        expect(documentPart()).toEqual(before);
        return;
      }
      expect(navigate).toHaveBeenCalledExactlyOnceWith('/tools/words');
      expect(store().documentFile).toEqual({ name: 'other', path: '/other' });
      expect(store().isUnsaved).toBe(false);
      await expectSaveToKeepIt();
    }),
);

test('a document is judged alike in one go and in steps', { timeout: limit + 60_000 }, () =>
  expectForAll(fc.oneof(hostileText, hostileValue), async (input) => {
    const atOnce = parseToolDocument(input, false);
    const inSteps = await withLoading((loading) => parseToolDocumentInSteps(input, loading, false));
    expect(inSteps.success).toBe(atOnce.success);
    if (inSteps.success) {
      // A parsed text may nest deeper than a comparison of the whole data can go.
      expect(isWordsDocument(inSteps.data)).toBe(true);
      if (typeof input !== 'string') expect(inSteps.data).toBe(input);
      return;
    }
    expect(atOnce).toEqual(inSteps);
    expect(REFUSALS).toContain(inSteps.error);
  }),
);

test('a value from an editor is loaded, or refused while all stays as it was', { timeout: limit + 60_000 }, () =>
  expectForAll(hostileValue, async (value) => {
    const before = documentPart();
    const parsed = parseToolDocument(value, false);
    if (!parsed.success) return;
    const failure = await store()
      .loadWordsDocument(parsed.data)
      .then(
        () => null,
        (error: unknown) => error,
      );
    expect(shapeOfBuiltIns()).toEqual(untouched);
    if (failure === null) return expectSaveToKeepIt();
    expect(failure).toSatisfy((error) => error instanceof SyntaxError || error instanceof RangeError);
    expect(documentPart()).toEqual(before);
  }),
);
