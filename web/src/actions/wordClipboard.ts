import { i18next } from '../i18n';
import { type ByteOrder, codeFormsFor } from '../model/code/codeForms';
import { colorOfBlock, withColor } from '../model/color/colorWord';
import { rangeMask } from '../model/range/bitRange';
import { OPAQUE_BITS, type Reading, wordOf } from '../model/text/reading';
import { readText } from '../model/text/readText';
import { useSheetStore } from '../stores/sheetStore';
import { isTextField } from '../ui/alteredText';
import { fullText, insertText } from '../ui/longText';
import { showStatus } from '../ui/statusMessage';
import { type BitsTarget, mainText, valueOf, widthOf, writeWord } from './focusedWord';
import { pasteNames } from './rangeNaming';
import { openPanel, type PanelPlace } from './wordPanel';

/** The form that was copied last, and the order of bytes; kept for as long as the page is open. */
export const copyChoice: { form: string; order: ByteOrder } = { form: 'hex', order: 'most' };

/** Puts a text on the clipboard and says so, by default how long it is; where that is refused, the text is shown, to be copied by hand. */
export async function copyText(word: BitsTarget, text: string, report?: string): Promise<void> {
  try {
    await navigator.clipboard.writeText(text);
    showStatus(report ?? i18next.t('panels.copied', { count: text.length }));
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

export function copyWord(word: BitsTarget): void {
  void copyText(word, mainText(word));
}

/** Copies a word in one of the forms of a program, by default the one that was copied last. */
export function copyAs(word: BitsTarget, form = copyChoice.form): void {
  copyChoice.form = form;
  const width = widthOf(word);
  const forms = codeFormsFor(width);
  const { write } = forms.find(({ id }) => id === form) ?? forms[0]!;
  void copyText(word, write(valueOf(word), width, copyChoice.order));
}

/** A word with a one at one of its bits, or the whole value with ones in a range. */
export function copyMask(word: BitsTarget, bit: number | undefined): void {
  const [mask, bits] = word.range
    ? [rangeMask(word.range), useSheetStore.getState().int.resolution]
    : [1n << BigInt(bit ?? 0), word.bits];
  void copyText(word, `0x${mask.toString(16).padStart(bits / 4, '0')}`);
}

/** What a reading is called, such as "number, base 16". */
export function readingName({ kind, detail }: Reading): string {
  const name = i18next.t(`panels.readings.${kind}`);
  return detail === undefined ? name : `${name}, ${detail}`;
}

/** The word that a reading makes of another one: a color that names no alpha keeps that of the word. */
export function pastedOver(word: BitsTarget, value: bigint, { kind, itemBits }: Reading): bigint {
  const keepsAlpha = word.type === 'color32' && kind === 'color' && itemBits === OPAQUE_BITS;
  return keepsAlpha ? withColor(valueOf(word), colorOfBlock(value), false) : value;
}

/**
 * Takes a text over that is one plain number and fits, or a color where one is wanted, or a list of names; asks about any
 * other. A range takes what fits it.
 */
export function pasteText(word: BitsTarget, text: string): void {
  if (pasteNames(text)) return;
  if (word.range) return pasteIntoRange(word, text);
  const readings = readText(text);
  const color =
    readings.ok && word.type === 'color32' ? readings.value.find(({ kind }) => kind === 'color') : undefined;
  const reading = color ?? (readings.ok ? readings.value[0]! : undefined);
  const isPlain = reading?.kind === 'number' || reading === color;
  const value = reading && isPlain ? wordOf(reading, word.bits) : undefined;
  if (!reading || !value?.ok) return openPanel(word, { kind: 'paste', text });
  applyPaste(word, value.value, reading);
}

function pasteIntoRange(target: BitsTarget, text: string): void {
  const readings = readText(text);
  const reading = readings.ok ? readings.value[0] : undefined;
  if (!reading || reading.kind === 'text') return showStatus(i18next.t('panels.unread'));
  const read = wordOf(reading, widthOf(target));
  if (read.ok) applyPaste(target, read.value, reading);
  else showStatus(read.reason);
}

export function applyPaste(word: BitsTarget, read: bigint, reading: Reading, resolution?: number): void {
  const value = pastedOver(word, read, reading);
  writeWord(word, value, i18next.t('panels.pasteStep'), resolution);
  const how = reading.kind === 'number' ? reading.detail! : readingName(reading);
  showStatus(i18next.t('panels.pasted', { value: `0x${value.toString(16)}`, reading: how }));
}

/** Opens the form for pasting, which is filled with what is on the clipboard as far as the page may read it. */
export function askForPaste(word: BitsTarget, place?: PanelPlace): void {
  openPanel(word, { kind: 'paste', text: '' }, place);
}

/** Takes a paste that the browser is about to make, and gives it to a word: outside fields not every engine offers it. */
export function catchPaste(word: BitsTarget): void {
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
      else {
        field.focus();
        insertText(field, text);
      }
    });
    return;
  }
  const selected = fullText(field, value.slice(selectionStart ?? 0, selectionEnd ?? 0));
  if (selected === '') return;
  void navigator.clipboard.writeText(selected).catch(() => undefined);
  if (edit === 'cut') insertText(field, '');
}
