import { type AddressInfo, createServer } from 'node:net';
import { type Launch, ProgramProcess } from '../shared/programProcess';
import { loadedPage, RunningProgram } from '../shared/runningProgram';
import { until } from '../shared/until';
import { Inspector } from './inspector';

/** The Linux program, with its page seen through the engine's inspector. */
export class Program extends RunningProgram<Inspector> {
  /** `started` hears of the process before anything can go wrong with it. */
  static async start(launch: Launch, started: (process: ProgramProcess) => void): Promise<Program> {
    const port = await freePort();
    const process = new ProgramProcess(launch, { WEBKIT_INSPECTOR_HTTP_SERVER: `127.0.0.1:${port}` });
    started(process);
    try {
      const page = await Inspector.connect(port, () => process.running);
      const url = await until('the page', () => loadedPage(page));
      const window = await until('the window', () => mainWindow(launch, process));
      return new Program(launch, process, page, window, url);
    } catch (error) {
      throw new Error(`${(error as Error).message}\nstderr: ${process.stderr}`);
    }
  }

  async close(): Promise<number | string> {
    this.page.disconnect();
    this.desktop.close(this.window);
    return this.process.exit();
  }
}

/** There may be a notice beside it. */
const mainWindow = ({ desktop }: Launch, { pid }: ProgramProcess) =>
  desktop.windowsOf(pid).find(({ title }) => title === 'Tessary');

/** A port of the loopback interface that nobody uses now. */
export async function freePort(): Promise<number> {
  const server = createServer();
  await new Promise<void>((resolve) => server.listen(0, '127.0.0.1', resolve));
  const { port } = server.address() as AddressInfo;
  await new Promise((resolve) => server.close(resolve));
  return port;
}
