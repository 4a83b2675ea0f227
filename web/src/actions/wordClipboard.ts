import { i18next } from '../i18n';
import { type ByteOrder, codeFormsFor } from '../model/code/codeForms';
import { colorOfBlock, withColor } from '../model/color/colorWord';
import { OPAQUE_BITS, type Reading, wordOf } from '../model/text/reading';
import { readText } from '../model/text/readText';
import type { ChangedWord } from '../stores/changeCause';
import { isTextField } from '../ui/alteredText';
import { showStatus } from '../ui/statusMessage';
import { mainText, valueOf, writeWord } from './focusedWord';
import { openPanel, type PanelPlace } from './wordPanel';

/** The form that was copied last, and the order of bytes; kept for as long as the page is open. */
export const copyChoice: { form: string; order: ByteOrder } = { form: 'hex', order: 'most' };

/** Puts a text on the clipboard and says so; where that is refused, the text is shown, to be copied by hand. */
export async function copyText(word: ChangedWord, text: string): Promise<void> {
  try {
    await navigator.clipboard.writeText(text);
    showStatus(i18next.t('panels.copied', { count: text.length }));
  } catch {
    openPanel(word, { kind: 'text', text });
  }
}

/** The text on the clipboard; undefined where the page may not read it. */
export async function readClipboard(): Promise<string | undefined> {
  try {
    return await navigator.clipboard.readText();
  } catch {
    return undefined;
  }
}

export function copyWord(word: ChangedWord): void {
  void copyText(word, mainText(word));
}

/** Copies a word in one of the forms of a program, by default the one that was copied last. */
export function copyAs(word: ChangedWord, form = copyChoice.form): void {
  copyChoice.form = form;
  const forms = codeFormsFor(word.bits);
  const { write } = forms.find(({ id }) => id === form) ?? forms[0]!;
  void copyText(word, write(valueOf(word), word.bits, copyChoice.order));
}

/** A word with a one at one of its bits. */
export function copyMask(word: ChangedWord, bit: number): void {
  void copyText(word, `0x${(1n << BigInt(bit)).toString(16).padStart(word.bits / 4, '0')}`);
}

/** What a reading is called, such as "number, base 16". */
export function readingName({ kind, detail }: Reading): string {
  const name = i18next.t(`panels.readings.${kind}`);
  return detail === undefined ? name : `${name}, ${detail}`;
}

/** The word that a reading makes of another one: a color that names no alpha keeps that of the word. */
export function pastedOver(word: ChangedWord, value: bigint, { kind, itemBits }: Reading): bigint {
  const keepsAlpha = word.type === 'color32' && kind === 'color' && itemBits === OPAQUE_BITS;
  return keepsAlpha ? withColor(valueOf(word), colorOfBlock(value), false) : value;
}

/** Takes a text over that is one plain number and fits, or a color where one is wanted; asks about any other. */
export function pasteText(word: ChangedWord, text: string): void {
  const readings = readText(text);
  const color =
    readings.ok && word.type === 'color32' ? readings.value.find(({ kind }) => kind === 'color') : undefined;
  const reading = color ?? (readings.ok ? readings.value[0]! : undefined);
  const isPlain = reading?.kind === 'number' || reading === color;
  const value = reading && isPlain ? wordOf(reading, word.bits) : undefined;
  if (!reading || !value?.ok) return openPanel(word, { kind: 'paste', text });
  applyPaste(word, value.value, reading);
}

export function applyPaste(word: ChangedWord, read: bigint, reading: Reading, resolution?: number): void {
  const value = pastedOver(word, read, reading);
  writeWord(word, value, i18next.t('panels.pasteStep'), resolution);
  const how = reading.kind === 'number' ? reading.detail! : readingName(reading);
  showStatus(i18next.t('panels.pasted', { value: `0x${value.toString(16)}`, reading: how }));
}

/** Opens the form for pasting, which is filled with what is on the clipboard as far as the page may read it. */
export function askForPaste(word: ChangedWord, place?: PanelPlace): void {
  openPanel(word, { kind: 'paste', text: '' }, place);
}

/** Takes a paste that the browser is about to make, and gives it to a word: outside fields not every engine offers it. */
export function catchPaste(word: ChangedWord): void {
  const before = document.activeElement;
  const catcher = document.createElement('textarea');
  catcher.style.cssText = 'position:fixed;top:0;left:0;width:1px;height:1px;opacity:0';
  catcher.ariaLabel = i18next.t('panels.paste');
  const finish = (text?: string) => {
    removeEventListener('keyup', onKeyUp, true);
    if (!catcher.isConnected) return;
    catcher.onblur = null;
    if (before instanceof HTMLElement) before.focus({ preventScroll: true });
    catcher.remove();
    if (text !== undefined) pasteText(word, text);
  };
  const onKeyUp = () => {
    finish();
    askForPaste(word);
  };
  catcher.onpaste = (event) => {
    event.preventDefault();
    finish(event.clipboardData?.getData('text/plain') ?? '');
  };
  catcher.onblur = () => finish();
  addEventListener('keyup', onKeyUp, true);
  document.body.append(catcher);
  catcher.focus({ preventScroll: true });
}

/** Does in a text field what the browser's own menu would. */
export function editField(field: HTMLElement, edit: 'cut' | 'copy' | 'paste'): void {
  if (!isTextField(field)) return;
  field.focus();
  const { selectionStart, selectionEnd, value } = field;
  if (edit === 'paste') {
    void readClipboard().then((text) => {
      if (text === undefined) showStatus(i18next.t('panels.pasteByKey'));
      else insertText(field, text);
    });
    return;
  }
  const selected = value.slice(selectionStart ?? 0, selectionEnd ?? 0);
  if (selected === '') return;
  void navigator.clipboard.writeText(selected).catch(() => undefined);
  if (edit === 'cut') insertText(field, '');
}

/** Puts a text in the place of the selection, so that the browser's undo takes it back. */
function insertText(field: HTMLElement, text: string): void {
  field.focus();
  // eslint-disable-next-line @typescript-eslint/no-deprecated -- nothing else enters the browser's own history
  document.execCommand(text === '' ? 'delete' : 'insertText', false, text);
}
