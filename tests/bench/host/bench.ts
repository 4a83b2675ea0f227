import { mkdtempSync, rmSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { compareRests } from './rests.ts';
import { measureBareLibrary, measureServer } from './server.ts';
import { Served, Session } from './session.ts';
import { compareStarts } from './starts.ts';

const [root = '.', rounds = '8'] = process.argv.slice(2);
const tools = join(root, 'build', 'bench', 'host');
const folder = mkdtempSync(join(tmpdir(), 'tessary-bench-'));
const showing = await Session.start(join(folder, 'showing'));
const serving = await Session.start(join(folder, 'serving'));
try {
  if (Number(rounds) > 0) {
    await compareStarts(root, tools, showing, Number(rounds));
    await compareRests(root, tools, folder);
  }
  const served = await Served.start(serving, join(root, 'build', 'linux', 'tessary'));
  await measureServer(root, tools, served);
  await served.stop();
  await measureBareLibrary(tools, serving);
} finally {
  await showing.stop();
  await serving.stop();
  rmSync(folder, { recursive: true, force: true });
}
