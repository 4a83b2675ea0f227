import type { Tab } from './chromium';
import type { FakeWebView2, RuntimeCall } from './fakeWebView2';

/** Gives the page what the runtime gives it: a way to post messages to the program and to hear of messages from it. */
const pageSide = `(() => {
  const { postToProgram: post, reportTitle } = globalThis;
  delete globalThis.postToProgram;
  delete globalThis.reportTitle;
  let title = '';
  const lookAtTitle = () => document.title !== title && reportTitle((title = document.title));
  new MutationObserver(lookAtTitle).observe(document, { childList: true, characterData: true, subtree: true });
  const messages = new EventTarget();
  globalThis.chrome ??= {};
  globalThis.chrome.webview = {
    postMessage: (message) => post(JSON.stringify(message)),
    addEventListener: messages.addEventListener.bind(messages),
    removeEventListener: messages.removeEventListener.bind(messages),
  };
  Object.defineProperty(globalThis, 'hearFromProgram', {
    value: (data) => messages.dispatchEvent(new MessageEvent('message', { data })),
  });
})()`;

/** As the protocol adds them up. */
const MODIFIERS = { ctrl: 2, shift: 8 };
const KEY_CODES: Record<string, number> = { Enter: 13, End: 35 };

interface Evaluated {
  result?: { value?: unknown };
  exceptionDetails?: { text: string; exception?: { description?: string; value?: unknown } };
}

interface PausedRequest {
  requestId: string;
  request: { url: string };
}

/** The program's page in a real browser: what the program asks of its browser runtime is done in a tab of Chromium. */
export class ChromiumWebView {
  readonly #tab: Tab;
  readonly #runtime: FakeWebView2;
  #lastCall: Promise<unknown> = Promise.resolve();

  private constructor(tab: Tab, runtime: FakeWebView2) {
    this.#tab = tab;
    this.#runtime = runtime;
  }

  /** Connects the two. Call it before the program starts. */
  static async connect(tab: Tab, runtime: FakeWebView2): Promise<ChromiumWebView> {
    const page = new ChromiumWebView(tab, runtime);
    await tab.call('Page.enable');
    await tab.call('Runtime.enable');
    await tab.call('Runtime.addBinding', { name: 'postToProgram' });
    await tab.call('Runtime.addBinding', { name: 'reportTitle' });
    await tab.call('Page.addScriptToEvaluateOnNewDocument', { source: pageSide });
    await tab.call('Fetch.enable', { patterns: [{ urlPattern: '*', resourceType: 'Document' }] });
    tab.onEvent((method, params) => {
      if (method === 'Runtime.bindingCalled') page.#hear(params.name as string, params.payload as string);
      if (method === 'Fetch.requestPaused') void page.#decide(params as unknown as PausedRequest);
    });
    // The program's calls happen in their order, also where the browser takes its time.
    runtime.onCall((call) => {
      page.#lastCall = page.#lastCall.then(() => page.#perform(call));
    });
    return page;
  }

  /**
   * Runs a function in the page and waits for what it gives, also when that is a promise.
   * The function knows nothing of its surroundings here: all it needs comes as arguments, which travel as JSON.
   */
  async evaluate<Arguments extends unknown[], Result>(
    work: (...given: Arguments) => Result | Promise<Result>,
    ...given: Arguments
  ): Promise<Result> {
    const expression = `(async () => JSON.stringify([await (${String(work)})(...${JSON.stringify(given)})]))()`;
    const { result, exceptionDetails } = await this.#evaluate(expression, true);
    if (exceptionDetails) {
      const { text, exception } = exceptionDetails;
      throw new Error(exception?.description ?? (typeof exception?.value === 'string' ? exception.value : text));
    }
    return (JSON.parse(result?.value as string) as [Result])[0];
  }

  /** Types a text where the keyboard's focus is. */
  async type(text: string): Promise<void> {
    for (const key of text) await this.press(key);
  }

  /** Presses a key of the keyboard, such as "Enter" or "z", in the page. */
  async press(key: string, ...modifiers: (keyof typeof MODIFIERS)[]): Promise<void> {
    const held = modifiers.reduce((sum, modifier) => sum + MODIFIERS[modifier], 0);
    const isText = key.length === 1 && !modifiers.includes('ctrl');
    const event = { key, modifiers: held, windowsVirtualKeyCode: KEY_CODES[key] ?? key.toUpperCase().charCodeAt(0) };
    const down = isText ? { type: 'keyDown', text: key } : { type: 'rawKeyDown' };
    await this.#tab.call('Input.dispatchKeyEvent', { ...event, ...down });
    await this.#tab.call('Input.dispatchKeyEvent', { ...event, type: 'keyUp' });
  }

  /** A picture of the page, as PNG. */
  async screenshot(): Promise<Buffer> {
    const { data } = await this.#tab.call('Page.captureScreenshot');
    return Buffer.from(data as string, 'base64');
  }

  close(): Promise<void> {
    return this.#tab.close();
  }

  async #evaluate(expression: string, awaitPromise = false): Promise<Evaluated> {
    return this.#tab.call('Runtime.evaluate', { expression, awaitPromise, returnByValue: true, userGesture: true });
  }

  /** The program decides whether the page goes where it is about to go, unless it has sent it elsewhere meanwhile. */
  async #decide({ requestId, request }: PausedRequest) {
    const decision = (await this.#runtime.startNavigation(request.url))
      ? this.#tab.call('Fetch.continueRequest', { requestId })
      : this.#tab.call('Fetch.failRequest', { requestId, errorReason: 'Aborted' });
    await decision.catch(() => undefined);
  }

  #hear(binding: string, payload: string) {
    if (binding === 'reportTitle') return this.#runtime.changeTitle(payload);
    const message: unknown = JSON.parse(payload);
    if (typeof message === 'string') this.#runtime.post(message);
  }

  /** A page that goes away meanwhile loses the call, as in the real runtime. */
  async #perform({ verb, text }: RuntimeCall) {
    try {
      if (verb === 'init') await this.#tab.call('Page.addScriptToEvaluateOnNewDocument', { source: text });
      if (verb === 'navigate') await this.#tab.call('Page.navigate', { url: text });
      if (verb === 'exec') await this.#evaluate(text);
      if (verb === 'evaluate') await this.#answer(text);
      if (verb === 'echo') await this.#evaluate(`globalThis.hearFromProgram?.(${JSON.stringify(text)})`);
      if (verb === 'bounds') await this.#resize(text);
    } catch {
      return;
    }
  }

  /** As in the real runtime, a script that throws gives null, and so does what JSON has no form for. */
  async #answer(text: string) {
    const blank = text.indexOf(' ');
    const number = text.slice(0, blank);
    const given = await this.#evaluate(text.slice(blank + 1)).catch(() => undefined);
    this.#runtime.finishEvaluation(number, given && JSON.stringify(given.result?.value ?? null));
  }

  async #resize(bounds: string) {
    const [width, height] = bounds.split(' ').map(Number);
    await this.#tab.call('Emulation.setDeviceMetricsOverride', { width, height, deviceScaleFactor: 1, mobile: false });
  }
}
