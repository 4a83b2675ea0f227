import fc from 'fast-check';
import { DOCUMENT_RESOLUTIONS } from '../model/sheet/resolutions';

const integerText = fc.oneof(
  fc.bigInt({ min: 0n, max: 2n ** 1100n }).map((value) => `0x${value.toString(16)}`),
  fc.bigInt().map(String),
  fc.constantFrom(
    '',
    ' ',
    '0x',
    '-0x1',
    '0XfF',
    '0o17',
    '0b2',
    ' 12\n',
    '1e3',
    '1_0',
    '1n',
    '+5',
    '--5',
    '٣',
    '\ufeff7',
  ),
  fc.constantFrom('NaN', 'Infinity', 'null', '1.0', '0xZZ', '9'.repeat(5000), '\u0000', '12\u0000'),
);

const definition = fc.record({
  type: fc.constantFrom('integer', 'float', 'color32'),
  bits: fc.oneof(fc.constantFrom(...DOCUMENT_RESOLUTIONS), fc.double({ noNaN: true, noDefaultInfinity: true })),
  visible: fc.boolean(),
});

const sheet = fc.record(
  {
    id: fc.string({ unit: 'binary' }),
    displayName: fc.string({ unit: 'binary' }),
    int: fc.oneof(integerText, fc.integer(), fc.maxSafeInteger()),
    intResolution: fc.constantFrom(...DOCUMENT_RESOLUTIONS),
    signMap: fc.dictionary(fc.string(), fc.boolean()),
    numberDefinitions: fc.array(definition, { maxLength: 4 }),
    converters: fc.array(fc.string(), { maxLength: 4 }),
  },
  { requiredKeys: ['id', 'displayName', 'int', 'intResolution', 'numberDefinitions'] },
);

/** Documents with the right structure; an integer's text may be one that cannot be read. */
const rightDocument = fc.record({
  tool: fc.constant('words'),
  version: fc.integer({ min: 1 }),
  sheets: fc.array(sheet, { maxLength: 3 }),
});

/** JSON texts that are not what stands in their place, and texts that are hardly JSON. */
const hostileJson = fc.oneof(
  fc.constantFrom(
    'null',
    'true',
    '-0',
    '1e999',
    '-1e999',
    '1e-999',
    '0.1',
    '9007199254740993',
    '1e21',
    '""',
    '[]',
    '{}',
  ),
  fc.constantFrom('NaN', 'Infinity', 'undefined', '0x1', '01', '"\u0000"', "'a'", '// a', '', ',', ']', '}'),
  fc.constantFrom('"\\ud800"', '"\\udc00\\ud800"', '"\\u0000"', '"\\u007f"', '"__proto__"', '"words"', '64', '"64"'),
  fc.constantFrom(
    '{"__proto__": {"polluted": 1}}',
    '{"__proto__": null}',
    '{"constructor": {"prototype": {"polluted": 1}}}',
    '{"toString": null, "valueOf": 1, "hasOwnProperty": false}',
    '{"length": 1e9, "0": {}}',
    '{"toJSON": 1, "then": 1}',
    '{"a": true, "a": 2, "a": false}',
  ),
  fc.nat({ max: 20_000 }).map((depth) => '['.repeat(depth) + ']'.repeat(depth)),
  fc.nat({ max: 20_000 }).map((depth) => '{"a":'.repeat(depth) + '1' + '}'.repeat(depth)),
  fc.json(),
  fc.string({ unit: 'binary' }).map((text) => JSON.stringify(text)),
);

const extraKey = fc.oneof(
  fc.constantFrom('__proto__', 'constructor', 'toString', 'toJSON', 'then', 'length', 'sheets', 'tool', 'version'),
  fc.string(),
);

/** A valid document with one value, at any depth, replaced by any JSON text, or with another key beside it. */
const wrongAtOneSpot = fc
  .tuple(rightDocument, fc.nat(), hostileJson, fc.option(extraKey, { nil: undefined }))
  .map(([document, spot, text, key]) => {
    const values = (JSON.stringify(document).match(/:/g) ?? []).length;
    let seen = -1;
    const chosen = spot % (values + 1);
    const marked = JSON.stringify(document, (_, value: unknown) => {
      seen++;
      if (seen !== chosen) return value;
      if (key === undefined || typeof value !== 'object' || value === null || Array.isArray(value)) return MARK;
      return { [MARK]: 0, ...value };
    });
    return marked.replace(`"${MARK}":0`, () => `${JSON.stringify(key)}:${text}`).replace(`"${MARK}"`, () => text);
  });

const MARK = '@ replaced @';

const edit = fc.record({
  at: fc.double({ min: 0, max: 1, noNaN: true }),
  removed: fc.oneof(fc.constant(0), fc.nat({ max: 3 }), fc.nat({ max: 1000 })),
  added: fc.oneof(fc.constant(''), fc.string({ unit: 'binary', maxLength: 3 }), hostileJson),
});

/** A valid document's text, cut off or changed by hand in a few places. */
const damaged = fc.tuple(rightDocument, fc.array(edit, { minLength: 1, maxLength: 4 })).map(([document, edits]) =>
  edits.reduce(
    (text, { at, removed, added }) => {
      const place = Math.floor(at * text.length);
      return text.slice(0, place) + added + text.slice(place + removed);
    },
    JSON.stringify(document, null, 2),
  ),
);

/** Texts of files that may be anything from a good document to nonsense. */
export const hostileText = fc.oneof(
  rightDocument.map((document) => JSON.stringify(document)),
  { arbitrary: wrongAtOneSpot, weight: 4 },
  { arbitrary: damaged, weight: 3 },
  hostileJson,
  fc.string({ unit: 'binary' }),
);

/** Values that an editor's extension could hand over instead of a document. */
export const hostileValue = fc.oneof(
  fc.anything({ withBigInt: true, withMap: true, withSet: true, withDate: true, withTypedArray: true }),
  fc.record({ tool: fc.constant('words'), version: fc.constant(1), sheets: fc.anything({ withSparseArray: true }) }),
  fc.record({
    tool: fc.constant('words'),
    version: fc.constant(1),
    sheets: fc.array(fc.oneof(sheet, fc.anything()), { maxLength: 3 }),
  }),
);
