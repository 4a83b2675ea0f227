/** Moves the keyboard's cursor of a bit field to one of its bits, by the field's element. */
export const bitCursors = new WeakMap<Element, (bit: number) => void>();
