import { commands, workspace } from 'vscode';
import { VIEW_TYPE } from './wordsEditor';

/** Of the manifest. Its first file extension is the one that the editor proposes for a new document. */
const LANGUAGE = 'tessary';

/**
 * Opens a document that has no file yet. It must have no name of its own either: the editor would take that for a path,
 * and save there without asking.
 * @param content - its text
 */
export async function openNewDocument(content: string): Promise<void> {
  const { uri } = await workspace.openTextDocument({ language: LANGUAGE, content });
  await commands.executeCommand('vscode.openWith', uri, VIEW_TYPE);
}
