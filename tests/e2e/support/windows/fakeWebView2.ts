import { type AddressInfo, createServer, type Server, type Socket } from 'node:net';
import { createInterface } from 'node:readline';
import { until } from '../shared/until';

/** One call of the program, as the fake runtime reports it, such as "navigate" with an address. */
export interface RuntimeCall {
  verb: string;
  text: string;
}

/** The driver's end of the fake runtime: hears of all that the program asks of its browser runtime, and plays the page. */
export class FakeWebView2 {
  readonly calls: RuntimeCall[] = [];
  readonly #server: Server;
  readonly #listeners: ((call: RuntimeCall) => void)[] = [];
  #socket: Socket | undefined;

  private constructor(server: Server) {
    this.#server = server;
    server.on('connection', (socket) => this.#serve(socket));
  }

  static async listen(): Promise<FakeWebView2> {
    const server = createServer();
    await new Promise<void>((resolve) => server.listen(0, '127.0.0.1', resolve));
    return new FakeWebView2(server);
  }

  /** What the program needs in its environment to find this driver. */
  get environment(): Record<string, string> {
    return { TESSARY_TEST_RUNTIME_PORT: String((this.#server.address() as AddressInfo).port) };
  }

  onCall(listener: (call: RuntimeCall) => void) {
    this.#listeners.push(listener);
  }

  /** The texts of all calls with this verb so far. */
  texts(verb: string): string[] {
    return this.calls.filter((call) => call.verb === verb).map(({ text }) => text);
  }

  /** Waits for a call that the program makes sooner or later, and gives its text. */
  async reported(verb: string, accepts: (text: string) => boolean = () => true): Promise<string> {
    const [text] = await until(`the call "${verb}"`, () => {
      const found = this.texts(verb).filter(accepts);
      return found.length > 0 && found;
    });
    return text ?? '';
  }

  /** The page posts a message to the program. */
  post(message: string) {
    this.#send('message', message);
  }

  /** The page asks for a permission. Kinds are numbers of the runtime's interface. */
  askForPermission(kind: string) {
    this.#send('permission', kind);
  }

  /** The page is about to go to an address. Whether the program lets it. */
  startNavigation(address: string): Promise<boolean> {
    return this.#mayGo('navigating', 'navigation', address);
  }

  /** The page asks for a new window with an address. Whether the program lets it have one. */
  requestNewWindow(address: string): Promise<boolean> {
    return this.#mayGo('new-window', 'new-window', address);
  }

  /** A script that the program ran has this result, as JSON; nothing when there is no page to run it. */
  finishEvaluation(number: string, json: string | undefined) {
    this.#send('evaluated', json === undefined ? number : `${number} ${json}`);
  }

  /** The page has this title from now on. */
  changeTitle(title: string) {
    this.#send('title', title);
  }

  /** One of the runtime's processes has ended. */
  failProcess(kind: 'browser' | 'page' | 'graphics') {
    this.#send('process-failed', { browser: '0', page: '1', graphics: '6' }[kind]);
  }

  /** The user logs out. */
  endSession() {
    this.#send('end-session', '');
  }

  /** The user closes the program's window. */
  closeWindow() {
    this.#send('close', '');
  }

  stop() {
    this.#socket?.destroy();
    this.#server.close();
  }

  #mayGo(verb: string, answer: string, address: string): Promise<boolean> {
    const before = this.calls.length;
    this.#send(verb, address);
    const answers = [`${answer}-allowed`, `${answer}-refused`];
    return until(`what becomes of ${address}`, () => {
      const found = this.calls.slice(before).find((call) => answers.includes(call.verb) && call.text === address);
      return found && { allowed: found.verb.endsWith('allowed') };
    }).then(({ allowed }) => allowed);
  }

  #serve(socket: Socket) {
    this.#socket = socket;
    // A program that ends in the midst of a call is an error to the socket, and to who reads its lines.
    socket.on('error', () => socket.destroy());
    createInterface({ input: socket, crlfDelay: Infinity })
      .on('line', (line) => this.#hear(line))
      .on('error', () => socket.destroy());
  }

  #hear(line: string) {
    const blank = line.indexOf(' ');
    const text = line.slice(blank + 1).replace(/\\(.)/gs, (_, letter: string) => unescaped[letter] ?? letter);
    const call = { verb: line.slice(0, blank), text };
    this.calls.push(call);
    for (const listener of this.#listeners) listener(call);
  }

  #send(verb: string, text: string) {
    this.#socket?.write(`${verb} ${text.replace(/[\\\n\r]/g, (letter) => escaped[letter] ?? letter)}\n`);
  }
}

const escaped: Record<string, string> = { '\\': '\\\\', '\n': '\\n', '\r': '\\r' };
const unescaped: Record<string, string> = { n: '\n', r: '\r' };
