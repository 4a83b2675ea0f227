import { readFileSync } from 'node:fs';
import { documentText } from '../support/shared/documents';
import { root } from '../support/shared/paths';
import { defaultKeys, EditorKeyLog } from '../support/vscode/editorKeys';
import { expect, ownWindowTest as test } from '../support/vscode/fixtures';
import { enterPlace, isUsedByPage, keyPlaces } from '../support/vscode/keyPlaces';
import { pageKeys } from '../support/vscode/pageKeys';

const NAME = 'numbers.words.tessary';
const SHEETS = ['A', 'B', 'C', 'D'].map((name) => ({ id: name, displayName: name, int: '0xff' }));

/** Whose keys are by the table of the extension's README. */
function documentedOwners(): Map<string, string> {
  const text = readFileSync(`${root}packaging/vscode/README.md`, 'utf8');
  const rows = [...text.matchAll(/^\| (`.+?) *\| (Tessary's|the editor's)/gm)];
  return new Map(
    rows.flatMap(([, keys, owner]) =>
      [...keys!.matchAll(/`(.+?)`/g)].map(([, key]) => [key!.replace('Ctrl', 'Control'), owner!] as const),
    ),
  );
}

test('of the keys that page and editor both have, one of the two uses each, as the README says', async ({
  editor,
  page,
}) => {
  test.setTimeout(300_000);
  editor.write(NAME, documentText(...SHEETS));
  await editor.enter();
  const editors = await defaultKeys(editor);
  const shared = (await pageKeys()).filter((key) => editors.has(key));
  const log = await EditorKeyLog.start(editor);
  await editor.open(NAME);
  const view = editor.words();
  await view.shown();

  const owners = new Map<string, string>();
  for (const place of keyPlaces(view)) {
    for (const key of shared.filter((each) => !owners.has(each))) {
      await enterPlace(place);
      const command = await log.press(key);
      const isUsed = key !== 'Control+W' && (await isUsedByPage(view)); // which leaves nothing of the page
      expect(isUsed && command, `used by the page as well as by the editor: ${key}`).toBeFalsy();
      if (!isUsed && !command) continue;
      owners.set(key, isUsed ? "Tessary's" : "the editor's");
      await page.keyboard.press('Escape');
      if (command) await editor.bringBack(NAME);
    }
  }
  const documented = documentedOwners();
  const plain = (key: string) => !/Control|Alt|F\d/.test(key); // types, moves or toggles
  for (const [key, owner] of owners) expect(owner, key).toBe(plain(key) ? "Tessary's" : documented.get(key));
  expect(owners.size).toBeGreaterThan(45);
});
