export interface SheetFields {
  id?: string;
  displayName?: string;
  int?: unknown;
  intResolution?: number;
}

/** A sheet as a document holds it. */
export function sheet({ id = 'one', displayName = 'Number A', int = '0xff', intResolution = 64 }: SheetFields = {}) {
  const numberDefinitions = [];
  for (let bits = intResolution; bits >= 8; bits /= 2) numberDefinitions.push({ type: 'integer', bits, visible: true });
  numberDefinitions.push({ type: 'color32', bits: 32, visible: true });
  return {
    id,
    displayName,
    int,
    intResolution,
    signMap: {},
    numberDefinitions,
  };
}

/** The text of a Words document with these sheets. */
export function documentText(...sheets: SheetFields[]): string {
  return JSON.stringify({ tool: 'words', version: 1, sheets: sheets.map(sheet) }, null, 2);
}
