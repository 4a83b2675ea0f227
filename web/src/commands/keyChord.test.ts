import { describe, expect, test } from 'vitest';
import { chordLabels, chordMatches, DIGIT, DIGIT_OR_LETTER } from './keyChord';

const NO_MODIFIERS = { ctrlKey: false, metaKey: false, altKey: false, shiftKey: false };
const press = (key: string, modifiers: Partial<typeof NO_MODIFIERS> = {}) => ({ ...NO_MODIFIERS, key, ...modifiers });

describe('a key chord', () => {
  test.each([
    { chord: 'Mod+S', event: press('s', { ctrlKey: true }) },
    { chord: 'Mod+S', event: press('s', { metaKey: true }) },
    { chord: 'Mod+S', event: press('S', { ctrlKey: true }) },
    { chord: 'Mod+Shift+S', event: press('S', { ctrlKey: true, shiftKey: true }) },
    { chord: 'Space', event: press(' ') },
    { chord: 'Alt+ArrowLeft', event: press('ArrowLeft', { altKey: true }) },
    { chord: 'Ctrl+ArrowLeft', event: press('ArrowLeft', { ctrlKey: true }) },
    { chord: '0', event: press('0') },
    { chord: DIGIT_OR_LETTER, event: press('0') },
    { chord: DIGIT, event: press('7') },
    { chord: DIGIT, event: press('-') },
    { chord: '~', event: press('~', { shiftKey: true }) },
    { chord: '~', event: press('~', { ctrlKey: true, altKey: true }) },
    { chord: DIGIT_OR_LETTER, event: press('F', { shiftKey: true }) },
  ])('$chord is pressed by $event', ({ chord, event }) => {
    expect(chordMatches(chord, event)).toBe(true);
  });

  test.each([
    { chord: 'Mod+S', event: press('s') },
    { chord: 'Mod+S', event: press('S', { ctrlKey: true, shiftKey: true }) },
    { chord: 'Mod+S', event: press('s', { ctrlKey: true, altKey: true }) },
    { chord: 'Mod+S', event: press('s', { ctrlKey: true, metaKey: true }) },
    { chord: 'Ctrl+ArrowLeft', event: press('ArrowLeft', { metaKey: true }) },
    { chord: '0', event: press('0', { ctrlKey: true }) },
    { chord: 'Enter', event: press('Enter', { altKey: true }) },
    { chord: DIGIT_OR_LETTER, event: press('a', { ctrlKey: true }) },
    { chord: DIGIT_OR_LETTER, event: press('Tab') },
    { chord: DIGIT, event: press('a') },
    { chord: DIGIT, event: press('1', { ctrlKey: true }) },
    { chord: '~', event: press('~', { ctrlKey: true }) },
    { chord: DIGIT_OR_LETTER, event: press('+') },
  ])('$chord is not pressed by $event', ({ chord, event }) => {
    expect(chordMatches(chord, event)).toBe(false);
  });

  test.each([
    { chords: ['Mod+Shift+S'], labels: ['Ctrl+Shift+S'] },
    { chords: ['Alt+ArrowLeft', 'Alt+ArrowUp'], labels: ['Alt+Arrow keys'] },
    { chords: ['ArrowLeft', 'ArrowRight', 'Home', 'End'], labels: ['Arrow keys', 'Home', 'End'] },
    { chords: ['ArrowLeft'], labels: ['←'] },
    { chords: ['Ctrl+Shift+ArrowRight'], labels: ['Ctrl+Shift+→'] },
    { chords: ['BrowserRefresh'], labels: ['Browser Refresh'] },
  ])('$chords is read as $labels', ({ chords, labels }) => {
    expect(chordLabels(chords)).toEqual(labels);
  });
});
