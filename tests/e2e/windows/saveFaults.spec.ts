import { expectWholeAfterKill, savedLengths } from '../stories/cutOffSaves';
import { test } from '../support/windows/fixtures';

for (const length of savedLengths) {
  test(`a program that is killed while it saves ${length} bytes leaves one whole text`, async ({ open, sandbox }) => {
    const seen = sandbox.write('mine.words.tessary', 'a'.repeat(length));
    await expectWholeAfterKill(await open(), sandbox.windowsPath('mine.words.tessary'), seen, length);
  });
}
