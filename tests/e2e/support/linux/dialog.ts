import type { Accessible, DesktopWindow } from '../shared/desktop';
import { until } from '../shared/until';
import type { Program } from './program';

/** What is in the front-most window of this role, with the window itself first; nothing when there is none. */
function contentOf(program: Program, role: string): Accessible[] {
  const all = program.desktop.accessiblesOf(program.process.pid);
  const start = all.findIndex((each) => each.depth === 1 && each.role === role && each.state !== 'hidden');
  if (start < 0) return [];
  const end = all.findIndex((each, index) => index > start && each.depth <= 1);
  return all.slice(start, end < 0 ? undefined : end);
}

/** The program's dialogs and message boxes, without lists that drop down: those have no title and get the program's. */
function boxes(program: Program): DesktopWindow[] {
  return program.windows().filter(({ id, title }) => id !== program.window.id && title !== 'tessary');
}

/** A file dialog of the program, as its user sees it. */
export class FileDialog {
  readonly #program: Program;
  readonly #window: DesktopWindow;

  private constructor(program: Program, window: DesktopWindow) {
    this.#program = program;
    this.#window = window;
  }

  /** Waits until the dialog with this title is there to be used. */
  static async shown(program: Program, title: 'Open' | 'Save As'): Promise<FileDialog> {
    const window = await until(`the "${title}" dialog`, () => boxes(program).find((box) => box.title === title));
    program.desktop.focus(window);
    const dialog = new FileDialog(program, window);
    await until('the dialog to be filled', () => dialog.content()[0]?.name === title && dialog.filters().length > 0);
    return dialog;
  }

  content(): Accessible[] {
    return contentOf(this.#program, 'file chooser');
  }

  /** The file types on offer, in their order. */
  filters(): string[] {
    return this.content()
      .filter(({ role }) => role === 'menu item')
      .map(({ name }) => name);
  }

  chosenFilter(): string | undefined {
    return this.content().find(({ role }) => role === 'combo box')?.name;
  }

  /** The texts in the dialog's list: names of files, and what it shows of them. */
  list(): string[] {
    return this.content()
      .filter(({ role, name }) => role === 'table cell' && name !== '')
      .map(({ name }) => name);
  }

  /** What stands in the box for the file's name, or its location; nothing while there is no such box. */
  typed(): string | undefined {
    return this.content().find(({ role, state }) => role === 'text' && state === 'focused')?.text;
  }

  /** Replaces what is typed as the file's name. A path with folders is allowed. */
  async type(name: string) {
    const { desktop } = this.#program;
    // A dialog that has just come back after a message may not have the keyboard yet. One that was given it before it
    // listened hears nothing when it is given it again: it has to lose it first.
    await until('a box to type into', () => {
      if (this.typed() !== undefined) return true;
      desktop.focus(this.#program.window);
      desktop.focus(this.#window);
      desktop.press('ctrl+l');
      return until('the box', () => this.typed() !== undefined, 2000).catch(() => false);
    });
    // The list of completions, which opens a moment after a slash, may take the key that begins a letter's code point.
    await until(`"${name}" in the box`, async () => {
      desktop.press('ctrl+a', 'BackSpace');
      await until('the box to be empty', () => this.typed() === '');
      desktop.type(name);
      return until('the name', () => this.typed() === name, 3000).catch(() => false);
    });
  }

  /**
   * Presses Return until the dialog closes or asks something. The list of completions, which opens a moment after the
   * last letter, may take the first one for itself.
   */
  async confirm() {
    await this.#press('Return');
  }

  async cancel() {
    await this.#press('Escape');
  }

  async #press(key: string) {
    const before = boxes(this.#program);
    const reacted = () => {
      const now = boxes(this.#program);
      return now.length !== before.length || now.some(({ id }) => id !== this.#window.id);
    };
    await until(`the dialog to react to ${key}`, async () => {
      if (reacted()) return true;
      this.#program.desktop.press(key);
      return until('a reaction', reacted, 2000).catch(() => false);
    });
  }
}

/** A message box of the program. */
export class MessageBox {
  readonly #program: Program;
  readonly #window: DesktopWindow;
  readonly text: string;

  private constructor(program: Program, window: DesktopWindow, text: string) {
    this.#program = program;
    this.#window = window;
    this.text = text;
  }

  /** Waits until a message box is there to be answered. */
  static async shown(program: Program): Promise<MessageBox> {
    const content = await until('a message box', () => {
      const found = contentOf(program, 'alert');
      return found.length > 0 && found;
    });
    const window = boxes(program).at(-1);
    if (!window) throw new Error('The message box has no window');
    program.desktop.focus(window);
    const labels = content.filter(({ role, name }) => role === 'label' && name !== '');
    return new MessageBox(program, window, labels.map(({ name }) => name).join('\n'));
  }

  /** Presses a key to answer, and waits until the box is gone. */
  async answer(key: string) {
    this.#program.desktop.press(key);
    await until('the message box to go', () => boxes(this.#program).every(({ id }) => id !== this.#window.id));
  }
}
