import { loadedPage } from '../shared/runningProgram';
import { until } from '../shared/until';
import type { Program } from './program';

type Marked = { isOld?: boolean };

/** Waits until what was done has brought another page, and the page is loaded. A busy machine may take long. */
export async function untilReloaded(program: Program, reload: () => unknown) {
  await program.page.evaluate(() => void ((window as Marked).isOld = true));
  await reload();
  // What is asked of a page that goes away gets lost.
  const isNew = () => program.page.evaluate(() => !(window as Marked).isOld).catch(() => false);
  await until('another page', async () => (await isNew()) && (await loadedPage(program.page)) !== false, 60_000);
}
