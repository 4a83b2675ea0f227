import { commands, type Memento, type Tab, TabInputText, type Uri, window, workspace } from 'vscode';

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
  if (isChosen()) return;
  for (const { tab, uri } of shownAsTexts()) {
    const { viewColumn } = tab.group;
    await commands.executeCommand('vscode.openWith', uri, viewType, { viewColumn, preview: tab.isPreview });
    const left = shownAsTexts().filter(
      (each) => each.tab.group.viewColumn === viewColumn && each.uri.path === uri.path,
    );
    await window.tabGroups.close(left.map((each) => each.tab));
  }
}

/** Whether the user's settings say how documents are opened. */
function isChosen(): boolean {
  const associations = workspace.getConfiguration('workbench').get<Record<string, string>>('editorAssociations');
  return Object.keys(associations ?? {}).some((pattern) => pattern.endsWith('.tessary'));
}

interface TextTab {
  tab: Tab;
  uri: Uri;
}

/** The unedited documents that are shown as texts. What is in front comes last, so that it stays there. */
function shownAsTexts(): TextTab[] {
  const tabs = window.tabGroups.all.flatMap((group) => group.tabs);
  const shown = tabs.flatMap((tab) => {
    const isText = tab.input instanceof TabInputText && tab.input.uri.path.endsWith('.tessary');
    return isText && !tab.isDirty ? [{ tab, uri: tab.input.uri }] : [];
  });
  const inFront = ({ tab }: TextTab) => Number(tab.isActive) + Number(tab.isActive && tab.group.isActive);
  return shown.sort((a, b) => inFront(a) - inFront(b));
}
