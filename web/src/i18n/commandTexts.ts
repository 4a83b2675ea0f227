/** What commands are called where they are listed; those with a button of their own use that button's text. */
export const commandTexts = {
  groups: {
    document: 'Document',
    tabs: 'Sheet tabs',
    words: 'Words',
    fields: 'Text fields',
    bits: 'Bit fields',
  },
  history: { undo: 'Undo', redo: 'Redo' },
  page: { reload: 'Reload' },
  tab: { show: 'Show another sheet', rename: 'Rename the sheet', close: 'Close the sheet' },
  word: {
    move: 'Go to the word beside, above or below',
    type: 'Replace the value, in the base typed last (on a word’s header)',
  },
  field: { commit: 'Take over the text', restore: 'Bring the text back' },
  bits: {
    move: 'Choose a bit',
    moveByByte: 'Choose a bit, by bytes',
    toggle: 'Flip the bit',
    write: 'Write the bit and go on to the next',
  },
} as const;
