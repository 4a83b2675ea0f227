import { FilePermission, type TextDocument, window, workspace } from 'vscode';

/** Whether the editor keeps no edits of a document, such as one of an older commit. */
export async function isReadOnly({ isUntitled, uri }: TextDocument): Promise<boolean> {
  if (isUntitled) return false;
  if (!workspace.fs.isWritableFileSystem(uri.scheme)) return true; // also texts that another extension makes
  try {
    return (await workspace.fs.stat(uri)).permissions === FilePermission.Readonly;
  } catch {
    return false; // a file that is gone comes back when it is saved
  }
}

/** Says why an edit is not there any more. The editor shows a message once, however often it is given. */
export function reportReadOnly({ uri }: TextDocument): void {
  void window.showWarningMessage(`${uri.path.split('/').at(-1)!} is read-only. Nothing was changed.`);
}
