import { type KeyboardEvent, useEffect, useId, useLayoutEffect, useMemo, useRef, useState } from 'react';
import { flushSync } from 'react-dom';
import { pasteNames } from '../../../actions/rangeNaming';
import { endPreview, previewChange } from '../../../actions/shownChange';
import { applyPaste, pastedOver, readClipboard, readingName } from '../../../actions/wordClipboard';
import { closePanel } from '../../../actions/wordPanel';
import { i18next } from '../../../i18n';
import { readNames } from '../../../model/range/namedRanges';
import { integerWidths, PICKER_RESOLUTIONS } from '../../../model/sheet/resolutions';
import { bitsNeeded, type ItemOrder, type Reading, wordOf } from '../../../model/text/reading';
import { LONGEST_READ_TEXT, readText } from '../../../model/text/readText';
import { useSheetStore } from '../../../stores/sheetStore';
import { blockId, controlOf } from '../wordNavigation';
import type { FormProps } from './formProps';
import styles from './panels.module.css';
import { ValueChange } from './ValueChange';

const ORDERS: readonly ItemOrder[] = ['first', 'last'];

/** Asks how a text is meant and where it goes, and shows what comes of it. */
export function PasteForm({ word, initial }: FormProps) {
  const field = useRef<HTMLTextAreaElement>(null);
  const reasonId = useId();
  const [text, setText] = useState(initial);
  const [chosen, setChosen] = useState<string>();
  const [chosenOrder, setOrder] = useState<ItemOrder>();
  const [target, setTarget] = useState({ bits: word.bits, index: word.index });
  const [resolution, setResolution] = useState(useSheetStore.getState().int.resolution);
  const { id, int } = useSheetStore.getState();

  useLayoutEffect(() => field.current!.select(), []);
  useEffect(() => {
    if (initial !== '') return;
    // Where the clipboard cannot be read, the text comes by key.
    void readClipboard().then((found) => setText((typed) => typed || (found ?? '')));
  }, [initial]);

  const read = useMemo(() => readText(text), [text]);
  const names = useMemo(() => readNames(text, int.resolution), [text, int.resolution]);
  const readings = read.ok && !names ? read.value : [];
  const reading = readings.find((each) => readingName(each) === chosen) ?? likeliest(readings, target.bits);
  const order = chosenOrder ?? reading?.order ?? 'first';
  const result = reading && wordOf(reading, target.bits, order);
  const before = int.withResolution(resolution).getWord(target.bits, target.index);
  const type = target.bits === word.bits && target.index === word.index ? word.type : 'integer';
  const value = result?.ok ? pastedOver({ type, ...target }, result.value, reading!) : undefined;
  const isSame = target.bits <= int.resolution;
  const changed = value === undefined || !isSame ? 0n : (value ^ before) << BigInt(target.bits * target.index);
  useEffect(() => previewChange(id, changed), [id, changed]);
  useEffect(() => endPreview, []);

  const nameNote = names?.ok ? i18next.t('ranges.nameHelp') : names?.reason;
  const reason =
    nameNote ?? (!read.ok ? read.reason : !reading ? i18next.t('panels.unread') : result?.ok ? '' : result!.reason);
  const isListed = reading !== undefined && reading.items.length > 1;

  const apply = () => {
    if (names?.ok) {
      closePanel(false);
      pasteNames(text);
      return;
    }
    if (value === undefined) {
      if (wider !== undefined) takeWidth(wider);
      if (widened !== undefined) widen(widened);
      return field.current!.focus();
    }
    closePanel(false);
    const isWider = resolution !== int.resolution;
    flushSync(() => applyPaste({ type, ...target }, value, reading!, isWider ? resolution : undefined));
    // At another width the field can be another element.
    if (document.activeElement === document.body) focusMainField(target.bits, target.index);
  };
  const onKeyDown = (event: KeyboardEvent) => {
    if (event.key !== 'Enter' || event.shiftKey || event.target instanceof HTMLButtonElement) return;
    event.preventDefault();
    if (!event.nativeEvent.isComposing && !event.repeat) apply();
  };
  const edit = (next: string) => {
    setText(next);
    setChosen(undefined);
    setOrder(undefined);
  };
  const takeWidth = (bits: number) => setTarget({ bits, index: Math.floor((target.index * target.bits) / bits) });
  const widen = (bits: number) => {
    setResolution(bits);
    setTarget({ bits, index: 0 });
  };

  const needed = reading && !result?.ok ? bitsNeeded(reading, order) : 0;
  const wider = needed > 0 ? integerWidths(resolution).findLast((bits) => bits >= needed) : undefined;
  const widened = needed > 0 && !wider ? PICKER_RESOLUTIONS.find((bits) => bits >= needed) : undefined;

  return (
    <div role="dialog" aria-label={i18next.t('panels.paste')} className={styles.form} onKeyDown={onKeyDown}>
      <textarea
        ref={field}
        rows={3}
        spellCheck={false}
        aria-label={i18next.t('panels.text')}
        aria-describedby={reasonId}
        aria-invalid={text !== '' && reason !== '' && !names?.ok}
        value={text.length > LONGEST_READ_TEXT ? '' : text}
        placeholder={text.length > LONGEST_READ_TEXT ? reason : undefined}
        onChange={({ target: { value: typed } }) => edit(typed)}
      />
      <div className={styles.choices}>
        <Choice
          label={i18next.t('panels.reading')}
          value={reading ? readingName(reading) : ''}
          options={[...(reading ? [] : ['']), ...readings.map(readingName)].map((name) => [name, name])}
          onChoose={setChosen}
        />
        {isListed && (
          <Choice
            label={i18next.t('panels.order')}
            value={order}
            options={ORDERS.map((each) => [each, i18next.t(`panels.orders.${each}`)])}
            onChoose={(each) => setOrder(each as ItemOrder)}
          />
        )}
        <Choice
          label={i18next.t('panels.target')}
          value={`${target.bits}`}
          options={integerWidths(resolution).map((bits) => [`${bits}`, `Int ${bits}`])}
          onChoose={(bits) => takeWidth(Number(bits))}
        />
        {target.bits < resolution && (
          <Choice
            label={i18next.t('panels.number')}
            value={`${target.index}`}
            options={Array.from({ length: resolution / target.bits }, (_, index) => [`${index}`, `${index + 1}`])}
            onChoose={(index) => setTarget({ ...target, index: Number(index) })}
          />
        )}
      </div>
      <ValueChange width={target.bits} before={before} after={value} />
      <div className={styles.buttons}>
        <span id={reasonId} className={styles.reason} aria-live="polite">
          {text !== '' && reason}
        </span>
        {wider !== undefined && (
          <button type="button" onClick={() => takeWidth(wider)}>
            {i18next.t('panels.useWidth', { bits: wider })}
          </button>
        )}
        {widened !== undefined && (
          <button type="button" onClick={() => widen(widened)}>
            {i18next.t('panels.widen', { bits: widened })}
          </button>
        )}
        <button type="button" disabled={value === undefined && !names?.ok} onClick={apply}>
          {i18next.t('panels.apply')}
        </button>
        <button type="button" onClick={() => closePanel()}>
          {i18next.t('panels.cancel')}
        </button>
      </div>
    </div>
  );
}

function focusMainField(bits: number, index: number): void {
  const block = document.getElementById(blockId(`integer:${bits}`, index));
  if (block) controlOf(block, 'value')?.focus();
}

/** The first reading; where it is too wide, digits that can be binary, or another register. Mere characters have to be asked for. */
function likeliest(readings: readonly Reading[], width: number): Reading | undefined {
  const [first] = readings;
  if (first?.kind === 'text') return undefined;
  if (!first || wordOf(first, width).ok) return first;
  const isMeant = ({ kind, detail }: Reading) => kind === 'register' || (kind === 'number' && detail === 'base 2');
  return readings.find((each) => isMeant(each) && each.kind === first.kind && wordOf(each, width).ok) ?? first;
}

interface ChoiceProps {
  label: string;
  value: string;
  options: readonly (readonly [value: string, text: string])[];
  onChoose: (value: string) => void;
}

function Choice({ label, value, options, onChoose }: ChoiceProps) {
  return (
    <label>
      {label}
      <select aria-label={label} value={value} onChange={({ target }) => onChoose(target.value)}>
        {options.map(([id, text]) => (
          <option key={id} value={id}>
            {text}
          </option>
        ))}
      </select>
    </label>
  );
}
