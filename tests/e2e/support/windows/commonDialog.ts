import type { DesktopWindow } from '../shared/desktop';
import { until } from '../shared/until';
import type { WindowsProgram } from './windowsProgram';

/** The numbers that common dialogs give to their controls, as Windows publishes them. */
const fileNameControl = 1148;
const filterControl = 1136;
/** A message box gives its text this number. */
const messageControl = 65535;

const fileDialogTitles = ['Open', 'Save As'];

/** The program's windows besides its main window. */
function boxes(program: WindowsProgram): DesktopWindow[] {
  return program.windows().filter(({ id }) => id !== program.window.id);
}

/** One of Windows' own file dialogs, as wine shows it. */
export class CommonDialog {
  readonly #program: WindowsProgram;
  readonly #title: string;
  readonly #window: DesktopWindow;

  private constructor(program: WindowsProgram, title: string, window: DesktopWindow) {
    this.#program = program;
    this.#title = title;
    this.#window = window;
  }

  /** Waits until the dialog with this title is there to be used. */
  static async shown(program: WindowsProgram, title: 'Open' | 'Save As'): Promise<CommonDialog> {
    const window = await until(`the "${title}" dialog`, () => boxes(program).find((box) => box.title === title));
    const dialog = new CommonDialog(program, title, window);
    await until('the dialog to be filled', () => dialog.chosenFilter() !== undefined && dialog.filters().length > 0);
    program.desktop.focus(window);
    return dialog;
  }

  /** The file types on offer, in their order. */
  filters(): string[] {
    const controls = this.#program.controls(this.#title);
    const start = controls.findIndex(({ className, id }) => className === 'ComboBox' && id === filterControl);
    const rest = controls.slice(start + 1);
    const end = rest.findIndex(({ className }) => className !== 'entry');
    return rest.slice(0, end).map(({ text }) => text);
  }

  chosenFilter(): string | undefined {
    return this.#text('ComboBox', filterControl);
  }

  /** What stands in the box for the file's name. */
  typed(): string | undefined {
    return this.#text('Edit', fileNameControl);
  }

  /**
   * Replaces what is typed as the file's name. A path with folders is allowed. Letters that no key gives are put on a
   * spare key for a moment, which a busy program may look at too late: then all is typed again.
   */
  async type(name: string) {
    await until(`"${name}" in the box`, async () => {
      await this.#clear();
      this.#typeOnce(name);
      return until('it', () => this.typed() === name, 2000).catch(() => false);
    });
  }

  /** Presses Return and waits until the dialog closes or asks something. Another dialog may follow at once. */
  async confirm() {
    await this.#press('Return');
  }

  async cancel() {
    await this.#press('Escape');
  }

  async #clear() {
    this.#program.desktop.press('alt+n', 'End', 'shift+Home', 'BackSpace');
    await until('the box to be empty', () => this.typed() === '');
  }

  #typeOnce(name: string) {
    const { desktop } = this.#program;
    for (const part of name.match(/[ -~]+|[^ -~]/gu) ?? []) {
      if (/^[ -~]/.test(part)) desktop.type(part);
      else desktop.press(`U${(part.codePointAt(0) ?? 0).toString(16).padStart(4, '0')}`);
    }
  }

  async #press(key: string) {
    const ids = () =>
      boxes(this.#program)
        .map(({ id }) => id)
        .join(' ');
    const before = ids();
    this.#program.desktop.focus(this.#window);
    this.#program.desktop.press(key);
    await until(`the dialog to react to ${key}`, () => ids() !== before);
  }

  #text(className: string, id: number): string | undefined {
    const controls = this.#program.controls(this.#title);
    return controls.find((control) => control.className === className && control.id === id)?.text;
  }
}

/** A message box of a dialog. */
export class MessageBox {
  readonly #program: WindowsProgram;
  readonly #window: DesktopWindow;
  readonly text: string;

  private constructor(program: WindowsProgram, window: DesktopWindow, text: string) {
    this.#program = program;
    this.#window = window;
    this.text = text;
  }

  /** Waits until a message box is there to be answered. */
  static async shown(program: WindowsProgram): Promise<MessageBox> {
    const window = await until('a message box', () =>
      boxes(program).find(({ title }) => !fileDialogTitles.includes(title)),
    );
    const message = await until('its text', () =>
      program.controls(window.title).find(({ id }) => id === messageControl),
    );
    program.desktop.focus(window);
    return new MessageBox(program, window, message.text);
  }

  /** Presses a key to answer, and waits until the box is gone. */
  async answer(key: string) {
    this.#program.desktop.press(key);
    await until('the message box to go', () => boxes(this.#program).every(({ id }) => id !== this.#window.id));
  }
}
