import { until } from '../shared/until.ts';

interface RemoteValue {
  type: string;
  className?: string;
  objectId?: string;
  value?: unknown;
  description?: string;
}
interface Answer {
  result?: { result?: RemoteValue; wasThrown?: boolean };
  error?: { message: string };
}
interface Message {
  method?: string;
  id?: number;
  error?: { message: string };
  params?: {
    targetId?: string;
    newTargetId?: string;
    message?: string;
    targetInfo?: { targetId: string; isProvisional?: boolean };
  };
}

/** The developer tools of a running page: the engine's inspector, spoken to over its own protocol. */
export class Inspector {
  readonly #port: number;
  readonly #alive: () => boolean;
  readonly #waiting = new Map<number, (answer: Answer) => void>();
  #socket!: WebSocket;
  #target: string | undefined;
  #lastId = 0;

  private constructor(port: number, alive: () => boolean) {
    this.#port = port;
    this.#alive = alive;
  }

  /** Waits until the program offers its page on this port. `alive` is asked meanwhile, so that a crash is reported at once. */
  static async connect(port: number, alive: () => boolean): Promise<Inspector> {
    const inspector = new Inspector(port, alive);
    await inspector.#connect();
    return inspector;
  }

  /** Looks for the page again after its process has died: the tools are not told of that, and wait for ever. */
  async reconnect() {
    this.disconnect();
    await this.#connect();
  }

  /** What is offered right after the page's process has died may still be the dead one, which says nothing. */
  async #connect() {
    await until('a page to inspect', async () => {
      await this.#open();
      const answers = await until('its first message', () => this.#target, 3000).catch(() => undefined);
      if (!answers) this.disconnect();
      return answers;
    });
  }

  async #open() {
    const path = await until('the inspector', async () => {
      if (!this.#alive()) throw new Error('The program ended before its page could be inspected');
      return offeredSocket(this.#port);
    });
    const socket = new WebSocket(`ws://127.0.0.1:${this.#port}${path}`);
    socket.addEventListener('message', (event) => this.#receive(JSON.parse(String(event.data)) as Message));
    socket.addEventListener('close', () => {
      for (const settle of this.#waiting.values()) settle({ error: { message: 'The page is gone' } });
      this.#waiting.clear();
    });
    this.#socket = socket;
    this.#target = undefined;
    await new Promise<void>((resolve, reject) => {
      socket.addEventListener('open', () => resolve());
      socket.addEventListener('error', () => reject(new Error('The inspector refused the connection')));
    });
  }

  disconnect() {
    this.#socket.close();
  }

  /**
   * Runs a function in the page and waits for what it gives, also when that is a promise.
   * The function knows nothing of its surroundings here: all it needs comes as arguments, which travel as JSON.
   */
  async evaluate<Arguments extends unknown[], Result>(
    work: (...given: Arguments) => Result | Promise<Result>,
    ...given: Arguments
  ): Promise<Result> {
    const call = `(async () => JSON.stringify([await (${String(work)})(...${JSON.stringify(given)})]))()`;
    const promise = await this.#ask('Runtime.evaluate', { expression: call, emulateUserGesture: true });
    try {
      const asked = { promiseObjectId: promise.objectId, returnByValue: true };
      const settled = await this.#ask('Runtime.awaitPromise', asked);
      return (JSON.parse(settled.value as string) as [Result])[0];
    } finally {
      // The tools keep what they gave out: a page that is asked for long would grow.
      void this.#send('Runtime.releaseObject', { objectId: promise.objectId });
    }
  }

  async #ask(method: string, parameters: object): Promise<RemoteValue> {
    const answer = await this.#send(method, parameters);
    const value = answer.result?.result;
    if (answer.error || !value) throw new Error(answer.error?.message ?? 'The inspector gave no result');
    if (answer.result?.wasThrown) throw new Error(value.description ?? String(value.value));
    return value;
  }

  #send(method: string, parameters: object): Promise<Answer> {
    const id = ++this.#lastId;
    const message = JSON.stringify({ id, method, params: parameters });
    return new Promise((resolve) => {
      this.#waiting.set(id, resolve);
      const outer = {
        id: ++this.#lastId,
        method: 'Target.sendMessageToTarget',
        params: { targetId: this.#target, message },
      };
      this.#socket.send(JSON.stringify(outer));
    });
  }

  #receive({ method, params }: Message) {
    if (method === 'Target.targetCreated' && !params?.targetInfo?.isProvisional)
      this.#target = params?.targetInfo?.targetId;
    if (method === 'Target.didCommitProvisionalTarget') this.#target = params?.newTargetId;
    if (method !== 'Target.dispatchMessageFromTarget' || params?.message === undefined) return;
    const answer = JSON.parse(params.message) as Answer & { id?: number };
    if (answer.id === undefined) return;
    this.#waiting.get(answer.id)?.(answer);
    this.#waiting.delete(answer.id);
  }
}

async function offeredSocket(port: number): Promise<string | undefined> {
  const list = await fetch(`http://127.0.0.1:${port}/`).then(
    (response) => response.text(),
    () => '',
  );
  return /\/socket\/\d+\/\d+\/WebPage/.exec(list)?.[0];
}
