import { commands, type Uri, window } from 'vscode';
import type { DocumentReading } from './document';

const OPEN_AS_TEXT = 'Open as Text';
/** Files whose question is still open. */
const asked = new Set<string>();

/** Reports what is wrong with a file that the Words editor cannot show, and offers the text editor for it. */
export async function offerText(uri: Uri, reading: DocumentReading, opening = ''): Promise<void> {
  const key = uri.toString();
  if (reading.kind === 'words' || asked.has(key)) return;
  asked.add(key);
  const name = uri.path.split('/').at(-1)!;
  const problem = reading.kind === 'empty' ? 'is empty' : reading.problem;
  const choice = await window.showWarningMessage(`${opening}${name} ${problem}.`, OPEN_AS_TEXT);
  asked.delete(key);
  if (choice) await commands.executeCommand('vscode.openWith', uri, 'default');
}
