import { readFileSync } from 'node:fs';
import { askForLongPaths, serverStories } from '../stories/server';
import { expect, test } from '../support/hostFixtures';

serverStories(test);

// A path is matched by a regular expression, which may recurse once per character.
test('long paths are answered on small stacks as well', async ({ open, place }) => {
  const program = await open([], { command: ['sh', '-c', 'ulimit -s 1024; exec "$@"', 'sh', place.program] });
  expect(readFileSync(`/proc/${program.process.pid}/limits`, 'utf8')).toMatch(/Max stack size +1048576 /);
  await askForLongPaths(program);
  expect(await program.close()).toBe(0);
});
