/** A sheet as people write it by hand: some of it on one line, and with a key that the page does not have. */
export function sheetText(changes: Record<string, unknown> = {}): string {
  const { id = 'one', displayName = 'Number A', int = '0xff', intResolution = 64, signMap = {}, ...more } = changes;
  const lines = [
    ...Object.entries({ id, displayName, int, intResolution, signMap }).map(([key, value]) => [
      key,
      JSON.stringify(value),
    ]),
    ['numberDefinitions', '[{ "type": "integer", "bits": 64, "visible": true }]'],
    ...Object.entries(more).map(([key, value]) => [key, JSON.stringify(value)]),
    ['remark', '"kept"'],
  ];
  return `    {\n${lines.map(([key, value]) => `      "${key}": ${value}`).join(',\n')}\n    }`;
}

/** The text of a document with these sheets. */
export function documentText(...sheets: string[]): string {
  return `{\n  "tool": "words",\n  "version": 1,\n  "sheets": [\n${sheets.join(',\n')}\n  ]\n}\n`;
}
