let last = 'value';

/** The kind of field that the user typed into last, as its focus key; the main field until then. */
export function lastTypedField(): string {
  return last;
}

export function noteTypedField(focusKey: string): void {
  last = focusKey;
}
