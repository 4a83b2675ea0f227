import { type KeyboardEvent, useEffect, useId, useLayoutEffect, useRef, useState } from 'react';
import { widthOf } from '../../../actions/focusedWord';
import { readNumber, writeNumber } from '../../../actions/rangeEdits';
import { nameRange } from '../../../actions/rangeNaming';
import { closeRangePrompt, type RangePrompt, useRangePrompt } from '../../../actions/rangePrompt';
import { hexOf, rangeReading } from '../../../actions/rangeReading';
import { i18next } from '../../../i18n';
import { type BitRange, rangeMask, writtenRange } from '../../../model/range/bitRange';
import { tidyName } from '../../../model/range/namedRanges';
import { parseRange } from '../../../model/range/parseRange';
import { outlineBits } from '../../../stores/bitOutlines';
import { currentRange } from '../../../stores/bitRange';
import { useSheetStore } from '../../../stores/sheetStore';
import { showStatus } from '../../../ui/statusMessage';
import { goToRange } from './goToRange';
import styles from './RangePromptBar.module.css';

/** Asks for bits, a number or a name in a line above the status line. */
export function RangePromptBar() {
  const prompt = useRangePrompt((state) => state.prompt);
  const sheetId = useSheetStore((sheet) => sheet.id);
  useEffect(() => () => closeRangePrompt(false), [sheetId]);
  return prompt && <PromptForm key={prompt.kind} prompt={prompt} />;
}

function PromptForm({ prompt }: { prompt: RangePrompt }) {
  const field = useRef<HTMLInputElement>(null);
  const noteId = useId();
  const [text, setText] = useState('');
  const answer = answerOf(prompt, text);
  const range = answer.ok ? answer.preview : undefined;

  useLayoutEffect(() => field.current!.focus(), []);
  useEffect(() => {
    if (prompt.kind === 'goTo') outlineRange(range ?? currentRange());
    return () => outlineRange(currentRange());
  }, [prompt, range?.hi, range?.lo]); // eslint-disable-line react-hooks/exhaustive-deps -- a range is its ends

  const onKeyDown = (event: KeyboardEvent) => {
    if (event.key === 'Escape') {
      event.preventDefault();
      closeRangePrompt(true);
    }
    if (event.key !== 'Enter' || event.nativeEvent.isComposing) return;
    event.preventDefault();
    if (!answer.ok) return showStatus(answer.note);
    closeRangePrompt(true);
    answer.take();
  };

  return (
    <div data-popup="" className={styles.bar}>
      <label className={styles.label}>
        {i18next.t(`ranges.${prompt.kind}`, { range: prompt.target?.range ? writtenRange(prompt.target.range) : '' })}{' '}
        <input
          ref={field}
          autoComplete="off"
          spellCheck={false}
          aria-describedby={noteId}
          aria-invalid={text !== '' && !answer.ok}
          value={text}
          onChange={({ target }) => setText(target.value)}
          onKeyDown={onKeyDown}
          onBlur={() => closeRangePrompt(false)}
        />
      </label>
      <span id={noteId} className={styles.note}>
        {text === '' ? i18next.t(`ranges.${prompt.kind}Help`) : answer.note}
      </span>
    </div>
  );
}

type Answer = { ok: boolean; note: string } & ({ ok: false } | { ok: true; preview?: BitRange; take: () => void });

/** What a text would do where it is asked for, or what is wrong with it. */
function answerOf({ kind, target }: RangePrompt, text: string): Answer {
  if (kind === 'goTo') {
    const range = parseRange(text, useSheetStore.getState().int.resolution);
    if (!range.ok) return { ok: false, note: range.reason };
    return { ok: true, preview: range.value, note: rangeReading(range.value), take: () => goToRange(range.value) };
  }
  if (kind === 'name') {
    const note = i18next.t('ranges.nameHelp');
    return tidyName(text) === ''
      ? { ok: false, note }
      : { ok: true, note, take: () => nameRange(target!.range!, text) };
  }
  const bits = readNumber(text, widthOf(target!));
  if (!bits.ok) return { ok: false, note: bits.reason };
  return { ok: true, note: `= ${hexOf(bits.value, 0)}`, take: () => writeNumber(target!, bits.value) };
}

function outlineRange(range: BitRange | undefined): void {
  outlineBits('range', useSheetStore.getState().id, range ? rangeMask(range) : 0n);
}
