import { commands, type Memento, type Tab, type TabGroup, TabInputText, window, workspace } from 'vscode';

const DONE = 'firstWindow';

/**
 * Shows the documents of the first window in the Words editor. Before its extensions have run once, the editor does not
 * wait for what they offer, and shows the files that a window begins with as texts.
 * @param memory - of the extension, in which it is kept that this was done
 * @param viewType - of the Words editor
 */
export async function showFirstDocuments(memory: Memento, viewType: string): Promise<void> {
  if (memory.get(DONE)) return;
  await memory.update(DONE, true);
  if (wantsText()) return;
  for (const group of window.tabGroups.all) await showGroup(group, viewType);
}

/** Whether the user's settings say how documents are opened. */
function wantsText(): boolean {
  const associations = workspace.getConfiguration('workbench').get<Record<string, string>>('editorAssociations');
  return Object.keys(associations ?? {}).some((pattern) => pattern.endsWith('.tessary'));
}

async function showGroup({ tabs, viewColumn }: TabGroup, viewType: string): Promise<void> {
  const shown = tabs.filter(isDocumentAsText).sort((a, b) => Number(a.isActive) - Number(b.isActive));
  for (const tab of shown) {
    const { uri } = tab.input as TabInputText;
    await commands.executeCommand('vscode.openWith', uri, viewType, { viewColumn, preview: tab.isPreview });
    await window.tabGroups.close(tab);
  }
}

function isDocumentAsText({ input, isDirty }: Tab): boolean {
  return input instanceof TabInputText && input.uri.path.endsWith('.tessary') && !isDirty;
}
