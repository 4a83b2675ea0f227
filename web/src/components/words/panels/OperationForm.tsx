import { type KeyboardEvent, useEffect, useId, useLayoutEffect, useRef, useState } from 'react';
import { type BitsTarget, lowestBitOf, valueOf, widthOf } from '../../../actions/focusedWord';
import { endPreview, previewChange } from '../../../actions/shownChange';
import { appliedOperations, operate, previewOperation } from '../../../actions/wordOperation';
import { closePanel } from '../../../actions/wordPanel';
import { WORD_MENU } from '../../../commands/wordActions';
import { WORD_OPERATIONS } from '../../../commands/wordCommands';
import { i18next, labelText } from '../../../i18n';
import { useSheetsStore } from '../../../stores/sheetsStore';
import { useSheetStore } from '../../../stores/sheetStore';
import type { FormProps } from './formProps';
import { type OperationOption, operationOptions } from './operationOptions';
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
  const options = operationOptions(text, offered(word));
  const result = previewOperation(word, text);
  const value = result.ok ? result.value.word : undefined;
  const before = valueOf(word);
  const changed = value === undefined ? 0n : (value ^ before) << BigInt(lowestBitOf(word));
  useEffect(() => previewChange(id, changed), [id, changed, int]);
  useEffect(() => endPreview, []);

  const isWritten = /\S\s+\S/.test(text) || isTried;
  const reason = !result.ok && isWritten ? result.reason : '';
  const note = reason || (result.ok && result.value.isLossy ? i18next.t('panels.lossy') : '');

  const edit = (next: string) => {
    setText(next);
    setActive(-1);
    setTried(false);
  };
  const apply = (whole: string) => {
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
      <ValueChange width={widthOf(word)} before={before} after={value} />
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

function scrollIntoView(element: HTMLElement | null): void {
  element?.scrollIntoView({ block: 'nearest' });
}

function offered(word: BitsTarget) {
  const { sheets, activeSheetKey } = useSheetsStore.getState();
  const commands = [
    ...WORD_MENU.filter(({ when, id }) => id !== 'word.operation' && (when?.({ word }) ?? true)),
    ...(word.range ? [] : WORD_OPERATIONS),
  ];
  return {
    history: appliedOperations,
    sheets: [...sheets.values()].filter(({ id }) => id !== activeSheetKey).map(({ displayName }) => displayName),
    commands: commands.map(({ id, label }) => ({ id, label: labelText(label) })),
    help: (name: string) => i18next.t(`panels.operations.${name}` as 'panels.operations.swap'),
  };
}

function runById(id: string, word: BitsTarget): void {
  WORD_MENU.find((command) => command.id === id)?.run({ word });
  WORD_OPERATIONS.find((command) => command.id === id)?.run({ width: word.bits, index: word.index });
}
