import { expectWholeAfterKill, savedLengths } from '../stories/cutOffSaves';
import { test } from '../support/windowsFixtures';

for (const length of savedLengths) {
  test(`a program that is killed while it saves ${length} bytes leaves one whole text`, async ({ open, place }) => {
    const seen = place.write('mine.words.tessary', 'a'.repeat(length));
    await expectWholeAfterKill(await open(), place.windowsPath('mine.words.tessary'), seen, length);
  });
}
