import { commands, Range, Uri, workspace, WorkspaceEdit } from 'vscode';
import { VIEW_TYPE } from './wordsEditor';

/** Opens a document that has no file yet. @param text - what it holds */
export async function openNewDocument(text: string): Promise<void> {
  const { uri } = await workspace.openTextDocument(freeName());
  const change = new WorkspaceEdit();
  change.replace(uri, new Range(0, 0, 0, 0), text);
  await workspace.applyEdit(change);
  await commands.executeCommand('vscode.openWith', uri, VIEW_TYPE);
}

function freeName(): Uri {
  const open = new Set(workspace.textDocuments.map(({ uri }) => uri.toString()));
  for (let number = 1; ; number++) {
    const uri = Uri.from({ scheme: 'untitled', path: `Untitled-${number}.words.tessary` });
    if (!open.has(uri.toString())) return uri;
  }
}
