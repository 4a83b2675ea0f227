import { commands, type ExtensionContext, languages, window } from 'vscode';
import { newDocumentText } from './document';
import { showFirstDocuments } from './firstWindow';
import { openNewDocument } from './newDocument';
import { numberHover, SHOW_NUMBER } from './numberHover';
import { showNumber, showSelection } from './showAsWords';
import { VIEW_TYPE, WordsEditor } from './wordsEditor';

/** Called by the editor when the extension is needed for the first time. */
export function activate({ extensionUri, globalState, subscriptions }: ExtensionContext): void {
  subscriptions.push(
    window.registerCustomEditorProvider(VIEW_TYPE, new WordsEditor(extensionUri), {
      // Signs, rows and converters are not part of what a document brings back.
      webviewOptions: { retainContextWhenHidden: true },
      supportsMultipleEditorsPerDocument: true,
    }),
    commands.registerCommand('tessary.newDocument', () => openNewDocument(newDocumentText())),
    commands.registerCommand('tessary.showSelection', showSelection),
    commands.registerCommand(SHOW_NUMBER, showNumber),
    languages.registerHoverProvider('*', numberHover),
  );
  void showFirstDocuments(globalState, VIEW_TYPE);
}
