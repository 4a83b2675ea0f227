import { integerWidths } from './resolutions';

export type NumberType = 'integer' | 'float' | 'color32';

/** A row that a sheet can show. Type and width together identify it. */
export interface NumberDefinition {
  readonly type: NumberType;
  readonly bits: number;
  readonly visible: boolean;
}

/**
 * The rows of a sheet: the integers from the full width down to 8 bits, then the colours.
 * @param resolution - width of the sheet in bits
 * @param existing - rows of before; those with the same type and width keep their visibility, the others are dropped
 */
export function definitionsFor(resolution: number, existing: readonly NumberDefinition[] = []): NumberDefinition[] {
  const rows = integerWidths(resolution).map((bits): NumberDefinition => ({ type: 'integer', bits, visible: true }));
  rows.push({ type: 'color32', bits: 32, visible: true });
  return rows.map((row) => ({ ...row, visible: existing.find((old) => isSameRow(old, row))?.visible ?? row.visible }));
}

/** Shows or hides a row; the first one, the integer of full width, stays as it is. Gives a new list. */
export function withVisibility(
  definitions: readonly NumberDefinition[],
  row: Pick<NumberDefinition, 'type' | 'bits'>,
  visible: boolean,
): NumberDefinition[] {
  return definitions.map((each, position) => (position > 0 && isSameRow(each, row) ? { ...each, visible } : each));
}

/**
 * The rows to show. The first one always is, also when it was hidden while the sheet was wider: its mark is kept, so
 * that it is hidden again when the sheet gets wider again.
 */
export function shownDefinitions(definitions: readonly NumberDefinition[]): NumberDefinition[] {
  return definitions.filter((each, position) => position === 0 || each.visible);
}

/** The rows whose visibility the user may choose: all but the first. */
export function selectableDefinitions(definitions: readonly NumberDefinition[]): NumberDefinition[] {
  return definitions.slice(1);
}

export function definitionLabel({ type, bits }: Pick<NumberDefinition, 'type' | 'bits'>): string {
  if (type === 'integer') return `Int ${bits}`;
  if (type === 'color32') return 'Color 32';
  return `${bits}-bit ${type}`;
}

export function definitionShortLabel({ type, bits }: Pick<NumberDefinition, 'type' | 'bits'>): string {
  if (type === 'integer') return `I${bits}`;
  if (type === 'color32') return 'C32';
  return definitionLabel({ type, bits });
}

function isSameRow(a: Pick<NumberDefinition, 'type' | 'bits'>, b: Pick<NumberDefinition, 'type' | 'bits'>): boolean {
  return a.type === b.type && a.bits === b.bits;
}
