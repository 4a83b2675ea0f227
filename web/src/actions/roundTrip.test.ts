import fc from 'fast-check';
import { expect, test } from 'vitest';
import { Loading } from '../document/loading';
import { parseToolDocument } from '../document/parseToolDocument';
import { WordsDocument } from '../document/wordsDocument';
import { sheetOf } from '../model/sheet/bitsSheet';
import { definitionsFor, withVisibility } from '../model/sheet/numberDefinitions';
import { DOCUMENT_RESOLUTIONS } from '../model/sheet/resolutions';
import { sheetsFromDocument } from '../stores/sheetsFromDocument';

const sheets = fc.array(
  fc
    .record({
      id: fc.string({ minLength: 1, unit: 'binary' }),
      displayName: fc.string({ unit: 'binary' }),
      intResolution: fc.constantFrom(...DOCUMENT_RESOLUTIONS),
      signs: fc.dictionary(fc.stringMatching(/^[0-9]{1,3}:[0-9]{1,4}$/), fc.boolean()),
      converters: fc.option(fc.array(fc.constantFrom('A2', 'A8', 'A16', 'A64', 'FLOAT')), { nil: undefined }),
      hidden: fc.constantFrom(...DOCUMENT_RESOLUTIONS),
    })
    .chain((fields) =>
      fc.bigInt({ min: 0n, max: 2n ** BigInt(fields.intResolution) - 1n }).map((int) => {
        const numberDefinitions = withVisibility(
          definitionsFor(fields.intResolution),
          { type: 'integer', bits: fields.hidden },
          false,
        );
        const { signs, converters, ...given } = fields;
        return sheetOf({ ...given, int }).with({
          signMap: new Map(Object.entries(signs)),
          converters,
          numberDefinitions,
        });
      }),
    ),
);

test('500 documents come back with the same sheets in the same order', async () => {
  await fc.assert(
    fc.asyncProperty(sheets, async (written) => {
      const document = new WordsDocument();
      document.addSheets(written);
      const text = document.toFileData();

      // What any other program reads from the file.
      const read = JSON.parse(text) as { tool: string; version: number; sheets: Record<string, unknown>[] };
      expect([read.tool, read.version]).toEqual(['words', 1]);
      expect(
        read.sheets.map(({ id, displayName, int, intResolution }) => [id, displayName, int, intResolution]),
      ).toEqual(
        written.map((sheet) => [sheet.id, sheet.displayName, `0x${sheet.int.toString(16)}`, sheet.intResolution]),
      );
      expect(read.sheets.map(({ signMap }) => signMap)).toEqual(
        written.map((sheet) => Object.fromEntries(sheet.signMap)),
      );

      const parsed = parseToolDocument(text, false);
      if (!parsed.success) throw new Error(parsed.error);
      const opened = [...(await sheetsFromDocument(parsed.data, new Loading())).values()];
      expect(opened.map(({ displayName, int, intResolution }) => [displayName, int, intResolution])).toEqual(
        written.map(({ displayName, int, intResolution }) => [displayName, int, intResolution]),
      );
      expect(new Set(opened.map(({ id }) => id)).size).toBe(written.length);
    }),
    { numRuns: 500 },
  );
});
