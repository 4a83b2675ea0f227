import { commandTexts } from './commandTexts';
import { compareTexts } from './compareTexts';
import { historyTexts } from './historyTexts';
import { inspectTexts } from './inspectTexts';
import { panelTexts } from './panelTexts';
import { rangeTexts } from './rangeTexts';
import { wordsTexts } from './wordsTexts';

/** Every text of the page. Texts that only name a key in "@( )" repeat that key's text. */
export const en = {
  language: 'English',
  ui: {
    new: 'New',
    open: 'Open',
    save: 'Save',
    saveAs: 'Save As',
    close: 'Close',
    or: 'or',
    cancel: 'Cancel',
    discard: 'Discard',
  },
  messages: {
    unexpectedError: 'An unexpected error occurred',
    document: {
      store: { unstoredDocument: 'Unstored Document' },
      load: {
        invalidJson: 'Failed to parse document data: Invalid JSON',
        invalidStructure: 'Invalid {{tool}} document data structure',
        notToolDocument: 'The provided document is not of a recognized format',
        progress: 'Reading the document…',
      },
    },
    file: {
      open: { error: 'An error occurred while opening the file' },
      save: { error: 'An error occurred while saving the file' },
      path: { unusable: 'The file name holds the control character U+007F: choose another name' },
    },
    storage: {
      unkept:
        'This browser cannot keep the sheets for the next visit: its storage is full or forbidden. Save the document to keep it.',
    },
    restart: {
      restored: 'The page ended unexpectedly and was loaded again. Your sheets are back as they were.',
      empty: 'The page ended unexpectedly and was loaded again.',
    },
    startup: {
      failed: 'Failed to start {{app}}: {{reason}}',
      unreadable: 'Failed to read file: {{reason}}',
      unknownError: 'Unknown error',
    },
  },
  dialogs: {
    unsaved: {
      title: 'Unsaved Changes',
      text: 'You have unsaved changes. Do you want to discard them?',
    },
  },
  tools: {
    words: {
      name: 'Words',
      welcome: 'Welcome to Words tool!',
      getStarted: 'Create or open a document to get started.',
      create: '<create>@(titles.createDocument)</create>',
      createOrOpen: '<create>@(titles.createDocument)</create> @(ui.or) <open>@(titles.openDocument)</open>',
    },
  },
  titles: {
    saveToolDocument: 'Save {{tool}} Document',
    createDocument: 'Create Document',
    openDocument: 'Open Document',
  },
  frame: {
    rail: 'Main',
    about: 'About the app',
    documentBar: 'Document',
    shortcut: '{{action}} ({{keys}})',
    closeNotice: 'Close the notification',
  },
  firstSteps: {
    sample: 'Open a sample document',
    drop: 'Drop a document file anywhere on this page',
    keys: 'See every key',
  },
  welcome: {
    words: {
      text: 'A utility tool to view and manipulate variable integer resolutions and many basic and advanced binary representations and formats.',
      resolutions: 'Supports integers from 32 and up to 1024 bit resolution',
      words: 'View each base integer resolution split words',
      bases: 'Convert each integer to various bases from 2 to 64 and float values',
      colors: 'View and manipulate integer RGBA colors',
      open: 'Open Words Tool',
    },
    download: 'Download',
    resources: 'Resources',
    support: 'Support',
    privacyPolicy: 'Privacy policy',
  },
  commands: commandTexts,
  history: historyTexts,
  words: wordsTexts,
  panels: panelTexts,
  inspect: inspectTexts,
  compare: compareTexts,
  ranges: rangeTexts,
  sheets: {
    tabs: 'Sheets',
    add: 'Add sheet',
    close: 'Close {{name}}',
    rename: 'Sheet name',
  },
} as const;
