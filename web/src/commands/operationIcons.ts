/** The operations of a word as they are shown, in the order in which they are offered. */
export const OPERATION_ICONS = [
  { id: 'none', icon: '=0' },
  { id: 'all', icon: '=1' },
  { id: 'random', icon: '?' },
  { id: 'bitwise-not', icon: '~' },
  { id: 'shift-left', icon: '<<' },
  { id: 'shift-right', icon: '>>' },
  { id: 'shift-right-unsigned', icon: '>>>' },
] as const;

export type OperationId = (typeof OPERATION_ICONS)[number]['id'];

/** Icons of operations that need a second word; they have no action. */
export const BINARY_OPERATION_ICONS = { 'bitwise-and': '&', 'bitwise-or': '|', 'bitwise-xor': '^' } as const;

const DIRECT_IN_NARROWEST = 5;

/** How many operations a word has room for; the others are in a menu. */
export function directOperations(width: number): number {
  return width === 8 ? DIRECT_IN_NARROWEST : OPERATION_ICONS.length;
}
