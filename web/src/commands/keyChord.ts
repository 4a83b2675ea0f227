/**
 * A key with its modifiers as commands name it, such as "Mod+Shift+S", "Alt+ArrowLeft", "F2" or "Space". "Mod" is Ctrl,
 * or Cmd on a Mac; "Ctrl" is Ctrl alone. Letters match in either case.
 */
export type KeyChord = string;

/** Stands for every key that writes a digit or a letter, in either case. */
export const DIGIT_OR_LETTER: KeyChord = 'Digit or letter';

/** Stands for every key that begins a number. */
export const DIGIT: KeyChord = 'Digit';

/** The parts of a keyboard event that make up a chord; DOM events and React's both have them. */
export type ChordEvent = Pick<KeyboardEvent, 'key' | 'ctrlKey' | 'metaKey' | 'altKey' | 'shiftKey'>;

interface ParsedChord {
  readonly key: string;
  readonly modifiers: ReadonlySet<string>;
}

const parsedChords = new Map<KeyChord, ParsedChord>();

export function chordMatches(chord: KeyChord, event: ChordEvent): boolean {
  if (chord === DIGIT_OR_LETTER) return writes(/^[0-9a-z]$/i, event);
  if (chord === DIGIT) return writes(/^[-0-9]$/, event);
  // On which keys it is, and with which others, is different everywhere.
  if (chord === '~') return event.key === '~' && event.ctrlKey === event.altKey;
  const { key, modifiers } = parse(chord);
  return (
    event.key.toLowerCase() === key &&
    event.altKey === modifiers.has('Alt') &&
    event.shiftKey === modifiers.has('Shift') &&
    matchesControl(modifiers, event)
  );
}

function writes(pattern: RegExp, { key, ctrlKey, metaKey, altKey }: ChordEvent): boolean {
  return pattern.test(key) && !ctrlKey && !metaKey && !altKey;
}

function matchesControl(modifiers: ReadonlySet<string>, { ctrlKey, metaKey }: ChordEvent): boolean {
  if (modifiers.has('Mod')) return ctrlKey !== metaKey;
  return ctrlKey === modifiers.has('Ctrl') && !metaKey;
}

function parse(chord: KeyChord): ParsedChord {
  const known = parsedChords.get(chord);
  if (known) return known;
  const parts = chord.split('+');
  const name = parts.pop()!;
  const parsed = { key: name === 'Space' ? ' ' : name.toLowerCase(), modifiers: new Set(parts) };
  parsedChords.set(chord, parsed);
  return parsed;
}

const ARROWS = ['ArrowLeft', 'ArrowRight', 'ArrowUp', 'ArrowDown'];

/** Chords as the user knows them, such as "Ctrl+S" or "Alt+Arrow keys"; two or more arrows are named together. */
export function chordLabels(chords: readonly KeyChord[]): string[] {
  const labels = chords.map((chord) => {
    const parts = chord.split('+');
    const key = parts.pop()!;
    const isOneOfSeveral = ARROWS.includes(key) && chords.filter((each) => /Arrow/.test(each)).length > 1;
    return [...parts.map(modifierLabel), isOneOfSeveral ? 'Arrow keys' : keyLabel(key)].join('+');
  });
  return [...new Set(labels)];
}

const isMac = typeof navigator !== 'undefined' && /^Mac/.test(navigator.platform);

function modifierLabel(modifier: string): string {
  if (modifier === 'Mod') return isMac ? 'Cmd' : 'Ctrl';
  return modifier;
}

const ARROW_SIGNS = '←→↑↓';

function keyLabel(key: string): string {
  return ARROW_SIGNS[ARROWS.indexOf(key)] ?? key.replace(/([a-z])([A-Z])/g, '$1 $2');
}
