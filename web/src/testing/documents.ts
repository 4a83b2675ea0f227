import { definitionsFor } from '../model/sheet/numberDefinitions';

/** A sheet as a document holds it, with anything replaced. */
export function sheetData(changes: Record<string, unknown> = {}) {
  return {
    id: 'V1StGXR8_Z5jdHi6B-myT',
    displayName: 'Number A',
    int: '0xff',
    intResolution: 64,
    signMap: {},
    numberDefinitions: definitionsFor(64),
    ...changes,
  };
}

/** A Words document as an object, with anything replaced. */
export function documentData(changes: Record<string, unknown> = {}) {
  return { tool: 'words', version: 1, sheets: [sheetData()], ...changes };
}

/** A Words document as the text of its file. */
export function documentText(changes: Record<string, unknown> = {}): string {
  return JSON.stringify(documentData(changes), null, 2);
}
