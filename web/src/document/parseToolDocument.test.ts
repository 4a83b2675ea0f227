import { beforeEach, describe, expect, test, vi } from 'vitest';
import { documentData, documentText, sheetData } from '../testing/documents';
import { withLoading } from './loading';
import { parseToolDocument, parseToolDocumentInSteps } from './parseToolDocument';

const { showError } = vi.hoisted(() => ({ showError: vi.fn() }));
vi.mock('../ui/notifications', () => ({ showError }));
beforeEach(() => showError.mockClear());

const INVALID_JSON = 'Failed to parse document data: Invalid JSON';
const INVALID_STRUCTURE = 'Invalid Tessary document data structure';
const NOT_RECOGNIZED = 'The provided document is not of a recognized format';

describe('parseToolDocument', () => {
  test('gives the object as it stands, its tool and its route', () => {
    const data = documentData({ remark: 'kept' });
    const result = parseToolDocument(data);
    expect(result).toEqual({ success: true, data, tool: 'words', navigationRoute: '/tools/words' });
    expect(result.success && result.data).toBe(data);
    expect(showError).not.toHaveBeenCalled();
  });

  test('reads JSON text', () => {
    expect(parseToolDocument(documentText({ sheets: [], version: 2 }))).toMatchObject({
      success: true,
      data: { sheets: [], version: 2 },
    });
  });

  test.each([
    ['no JSON', '{"tool": "words"', INVALID_JSON],
    ['the empty text', '', INVALID_JSON],
    ['JSON null', 'null', INVALID_STRUCTURE],
    ['no version', '{"tool":"words","sheets":[]}', INVALID_STRUCTURE],
    ['version 0', documentText({ version: 0 }), INVALID_STRUCTURE],
    ['a fractional version', documentText({ version: 1.5 }), INVALID_STRUCTURE],
    ['another tool', documentText({ tool: 'pictures' }), INVALID_STRUCTURE],
    ['a bad header and bad sheets', documentText({ version: 0, sheets: 5 }), INVALID_STRUCTURE],
    ['missing sheets', '{"tool":"words","version":1}', NOT_RECOGNIZED],
    ['a width of 24 bits', documentText({ sheets: [sheetData({ intResolution: 24 })] }), NOT_RECOGNIZED],
  ])('shows and returns what is wrong with %s', async (_, text, error) => {
    expect(parseToolDocument(text)).toEqual({ success: false, error });
    expect(showError).toHaveBeenCalledExactlyOnceWith(error);
    expect(await withLoading((loading) => parseToolDocumentInSteps(text, loading))).toEqual({ success: false, error });
    expect(showError).toHaveBeenCalledTimes(2);
  });

  test('gives the same in steps', async () => {
    const data = documentData({ sheets: [sheetData(), sheetData({ int: 5 })] });
    expect(await withLoading((loading) => parseToolDocumentInSteps(data, loading))).toEqual(parseToolDocument(data));
  });

  test('shows nothing when asked to be quiet', () => {
    expect(parseToolDocument('{', false)).toEqual({ success: false, error: INVALID_JSON });
    expect(showError).not.toHaveBeenCalled();
  });

  test('survives nesting of any depth', () => {
    const depth = 200_000;
    const text = documentText().replace('"tool"', `"deep": ${'['.repeat(depth)}${']'.repeat(depth)}, "tool"`);
    const result = parseToolDocument(text);
    // Engines differ in how deep they read; what counts is a plain answer.
    expect(result.success || result.error === INVALID_JSON).toBe(true);
  });

  test('lets no document reach the prototype of objects', () => {
    parseToolDocument(`{"__proto__": {"polluted": true}, ${documentText().slice(1)}`);
    expect(({} as { polluted?: boolean }).polluted).toBeUndefined();
  });
});
