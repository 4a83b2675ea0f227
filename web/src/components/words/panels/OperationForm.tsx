import { type KeyboardEvent, useEffect, useId, useLayoutEffect, useRef, useState } from 'react';
import { flushSync } from 'react-dom';
import { valueOf } from '../../../actions/focusedWord';
import { endPreview, previewChange } from '../../../actions/shownChange';
import { appliedOperations, operate, previewOperation } from '../../../actions/wordOperation';
import { closePanel } from '../../../actions/wordPanel';
import { WORD_MENU } from '../../../commands/wordActions';
import { WORD_OPERATIONS } from '../../../commands/wordCommands';
import { i18next } from '../../../i18n';
import type { ChangedWord } from '../../../stores/changeCause';
import { useSheetsStore } from '../../../stores/sheetsStore';
import { useSheetStore } from '../../../stores/sheetStore';
import { bitCursors } from '../bitField/bitCursors';
import { blockId } from '../wordNavigation';
import type { FormProps } from './formProps';
import { GO_TO_BIT, type OperationOption, operationOptions } from './operationOptions';
import styles from './panels.module.css';
import { ValueChange } from './ValueChange';

/** Asks for an operation on a word, shows what it would make of it, and applies it. */
export function OperationForm({ word, initial }: FormProps) {
  const field = useRef<HTMLInputElement>(null);
  const listId = useId();
  const reasonId = useId();
  const [text, setText] = useState(initial);
  const [active, setActive] = useState(-1);
  const [isTried, setTried] = useState(false);
  const { id, int } = useSheetStore.getState();

  useLayoutEffect(() => field.current!.focus(), []);
  const options = operationOptions(text, offered());
  const bit = GO_PATTERN.exec(text.trim());
  const result = bit ? undefined : previewOperation(word, text);
  const value = result?.ok ? result.value.word : undefined;
  const before = valueOf(word);
  const changed = value === undefined ? 0n : (value ^ before) << BigInt(word.bits * word.index);
  useEffect(() => previewChange(id, changed), [id, changed, int]);
  useEffect(() => endPreview, []);

  const isWritten = /\S\s+\S/.test(text) || isTried;
  const isBitThere = bit !== null && Number(bit[1]) < word.bits;
  const bitReason = bit && !isBitThere ? i18next.t('panels.bitRange', { last: word.bits - 1 }) : '';
  const reason = result && !result.ok && isWritten ? result.reason : bitReason;
  const note = reason || (result?.ok && result.value.isLossy ? i18next.t('panels.lossy') : '');

  const edit = (next: string) => {
    setText(next);
    setActive(-1);
    setTried(false);
  };
  const apply = (whole: string) => {
    const asked = GO_PATTERN.exec(whole.trim());
    if (asked) {
      if (Number(asked[1]) < word.bits) goToBit(word, Number(asked[1]));
      return;
    }
    if (!previewOperation(word, whole).ok) return setTried(true);
    closePanel(false);
    operate(word, whole);
  };
  const choose = ({ text: chosen, isWhole, command }: OperationOption) => {
    if (command !== undefined) {
      closePanel();
      return runById(command, word);
    }
    if (isWhole) return apply(chosen!);
    edit(chosen!);
    field.current!.focus();
  };

  const onKeyDown = (event: KeyboardEvent) => {
    if (event.nativeEvent.isComposing) return;
    const option = options[active];
    const completion = option ?? options[0];
    if (event.key === 'Tab' && !event.shiftKey && completion?.text && completion.text !== text) {
      event.preventDefault();
      event.stopPropagation();
      return edit(completion.text);
    }
    if (event.key === 'ArrowDown' || event.key === 'ArrowUp') {
      event.preventDefault();
      const step = event.key === 'ArrowDown' ? 1 : -1;
      return setActive(Math.max(-1, Math.min(options.length - 1, active + step)));
    }
    if (event.key !== 'Enter') return;
    event.preventDefault();
    const only = options.length === 1 && options[0]!.command !== undefined ? options[0] : undefined;
    const taken = option ?? only;
    if (taken) choose(taken);
    else apply(text);
  };

  return (
    <div role="dialog" aria-label={i18next.t('panels.operation')} className={styles.form} onKeyDown={onKeyDown}>
      <input
        ref={field}
        role="combobox"
        autoComplete="off"
        spellCheck={false}
        aria-label={i18next.t('panels.operation')}
        aria-expanded={options.length > 0}
        aria-controls={listId}
        aria-activedescendant={options[active] ? `${listId}-${active}` : undefined}
        aria-describedby={reasonId}
        aria-invalid={reason !== ''}
        placeholder={i18next.t('panels.operationHelp')}
        value={text}
        onChange={({ target }) => edit(target.value)}
      />
      <ValueChange width={word.bits} before={before} after={value} />
      <span id={reasonId} className={reason ? styles.reason : styles.note} aria-live="polite">
        {note}
      </span>
      <div id={listId} role="listbox" aria-label={i18next.t('panels.operation')} className={styles.options}>
        {options.map((option, place) => (
          <div
            key={option.id}
            ref={place === active ? scrollIntoView : undefined}
            id={`${listId}-${place}`}
            role="option"
            aria-selected={place === active}
            onPointerDown={(event) => event.preventDefault()}
            onClick={() => choose(option)}
          >
            <span>{option.label}</span> <span className={styles.hint}>{option.hint}</span>
          </div>
        ))}
      </div>
    </div>
  );
}

const GO_PATTERN = new RegExp(`^${GO_TO_BIT.name}\\s+(\\d{1,6})$`, 'i');

function scrollIntoView(element: HTMLElement | null): void {
  element?.scrollIntoView({ block: 'nearest' });
}

function offered() {
  const { sheets, activeSheetKey } = useSheetsStore.getState();
  const commands = [...WORD_MENU.filter(({ when, id }) => !when && id !== 'word.operation'), ...WORD_OPERATIONS];
  return {
    history: appliedOperations,
    sheets: [...sheets.values()].filter(({ id }) => id !== activeSheetKey).map(({ displayName }) => displayName),
    commands: commands.map(({ id, label }) => ({ id, label: i18next.t(label) })),
    help: (name: string) => i18next.t(`panels.operations.${name}` as 'panels.operations.swap'),
  };
}

function runById(id: string, word: ChangedWord): void {
  WORD_MENU.find((command) => command.id === id)?.run({ word });
  WORD_OPERATIONS.find((command) => command.id === id)?.run({ width: word.bits, index: word.index });
}

/** Puts the keyboard's cursor on a bit; that of a color is in the row of integers. */
function goToBit({ bits, index }: ChangedWord, bit: number): void {
  flushSync(() => useSheetStore.getState().focus('integer', bits, index));
  closePanel();
  const block = document.getElementById(blockId(`integer:${bits}`, index));
  const canvas = block?.querySelector<HTMLElement>('[data-focus-key="bits"]');
  if (!canvas) return;
  canvas.focus({ preventScroll: true });
  bitCursors.get(canvas)?.(bit);
}
