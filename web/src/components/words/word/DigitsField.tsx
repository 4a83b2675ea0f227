import cc from 'classcat';
import {
  type CSSProperties,
  type FocusEvent,
  type KeyboardEvent,
  useEffect,
  useId,
  useLayoutEffect,
  useRef,
  useState,
} from 'react';
import { runCommand } from '../../../commands/command';
import { FIELD_COMMANDS } from '../../../commands/fieldCommands';
import { isAltered, noteTyping, showText, type TextElement } from '../../../ui/alteredText';
import { briefMessage } from '../../../ui/briefMessage';
import { fullText } from '../../../ui/longText';
import type { Offer } from '../../../ui/NoticeActions';
import { closeNotices, showWarning } from '../../../ui/notifications';
import { makeTabStop } from '../../../ui/tabStop';
import { noteTypedField } from '../lastTypedField';
import type { DigitColumns, FieldPlace } from '../layout/fieldLayout';
import styles from './DigitsField.module.css';

/** Why a text was not taken over, and what could be done with it instead. */
export interface Refusal {
  readonly reason: string;
  readonly offers?: readonly Offer[];
}

interface DigitsFieldProps {
  name: string;
  /** Visible before the text. */
  label?: string;
  /** Says where the field belongs, for moving between words. */
  focusKey: string;
  place: FieldPlace;
  /** What the field shows whenever the word changes. */
  shown: string;
  /** What it shows after Escape and after it was left. */
  restored: string;
  /** Identifies the content that is shown: when it changes, so does the text. */
  content: unknown;
  /** A second mark of the content. */
  source: unknown;
  readOnly?: boolean;
  /** Whether the Tab key stops here at first, among the fields of a word. */
  isStop: boolean;
  /** Takes over the text, or says why not. */
  onCommit: (text: string) => Refusal | undefined;
}

/** Keys that act in a field that cannot be edited. */
const ALWAYS_ACTING = new Set(['ArrowLeft', 'ArrowRight', 'Tab', 'Home', 'End']);

/** A text that takes effect with Enter and goes back with Escape or when it is left. */
export function DigitsField(props: DigitsFieldProps) {
  const { name, label, focusKey, place, shown, restored, content, source, readOnly, isStop, onCommit } = props;
  const element = useRef<TextElement>(null);
  const isMultiline = place.lines > 1;
  const [commits, setCommits] = useState(0);
  const shownCommits = useRef(commits);
  const [refused, setRefused] = useState<Refusal & { of: unknown }>();
  // What was refused once is over when the word changes.
  const refusal = refused?.of === content ? refused : undefined;
  const reasonId = useId();
  const selection = useRef<readonly [start: number | null, end: number | null]>(undefined);

  // Another element takes over, too, when the text no longer fits one line, and back.
  useLayoutEffect(() => {
    // After Enter the browser's undo brings nothing back that was typed before: it forgets where a text goes.
    if (shownCommits.current !== commits) element.current!.value = '';
    shownCommits.current = commits;
    showText(element.current!, shown);
    alignDigits(element.current!, place);
  }, [shown, content, source, place, commits]);
  // After all words show their new texts: a selection needs the layout, which would be computed once more.
  useEffect(() => {
    if (!selection.current) return;
    if (document.activeElement !== element.current) element.current!.focus({ preventScroll: true });
    element.current!.setSelectionRange(...selection.current);
    selection.current = undefined;
  }, [commits]);

  const onKeyDown = (event: KeyboardEvent<TextElement>) => {
    const isChord = event.ctrlKey || event.metaKey || event.altKey;
    if (readOnly && !isChord && !ALWAYS_ACTING.has(event.key)) return swallow(event);
    if (event.nativeEvent.isComposing) return;
    const field = event.currentTarget;
    const isTaken = runCommand(FIELD_COMMANDS, event, {
      isAltered: () => isAltered(field),
      commit: () => {
        const refusal = onCommit(fullText(field));
        if (refusal) return refuse(refusal, field);
        selection.current = [field.selectionStart, field.selectionEnd];
        renew(field);
      },
      restore: () => show(field),
      takeOffer: refusal?.offers?.[0]?.run,
      beside: (step) => fieldBeside(field, step),
    });
    if (isTaken) event.stopPropagation();
  };

  const renew = (field: TextElement) => {
    showText(field, field.value);
    setRefused(undefined);
    setCommits(commits + 1);
  };
  const show = (field: TextElement) => {
    showText(field, restored);
    alignDigits(field, place);
    setRefused(undefined);
  };
  const refuse = ({ reason: whole, offers = [] }: Refusal, field: TextElement) => {
    const reason = briefMessage(whole);
    const taken = offers.map(({ label, run }) => ({
      label,
      run() {
        closeNotices();
        run();
        selection.current = [null, null];
        renew(field);
      },
    }));
    setRefused({ reason, offers: taken, of: content });
    showWarning(reason, { about: field, offers: taken });
  };

  const shared = {
    'aria-label': name,
    'aria-invalid': refusal && true,
    'aria-describedby': refusal && reasonId,
    tabIndex: isStop ? 0 : -1,
    'data-focus-key': focusKey,
    autoComplete: 'off',
    readOnly,
    onKeyDown,
    onInput({ currentTarget }: React.InputEvent<TextElement>) {
      noteTypedField(focusKey);
      setRefused(undefined);
      if (isMultiline) joinLines(currentTarget);
      alignDigits(currentTarget, place);
      noteTyping(currentTarget);
    },
    onFocus({ currentTarget }: FocusEvent<TextElement>) {
      if (!readOnly) makeTabStop(currentTarget, fieldsBeside(currentTarget));
    },
    onBlur: ({ currentTarget }: FocusEvent<TextElement>) => show(currentTarget),
  };
  return (
    <label
      className={cc([styles.field, place.fullWidth && styles.fullWidth, place.columns && styles.columns])}
      style={place.columns && columnLengths(place.columns)}
    >
      {label !== undefined && <span className={styles.label}>{label}</span>}
      {isMultiline ? (
        <textarea {...shared} ref={element as React.RefObject<HTMLTextAreaElement>} rows={place.lines} />
      ) : (
        <input {...shared} ref={element as React.RefObject<HTMLInputElement>} />
      )}
      {refusal && (
        <span id={reasonId} hidden>
          {refusal.reason}
        </span>
      )}
    </label>
  );
}

/** All fields of the word that a field belongs to, from top to bottom. */
function fieldsBeside(field: TextElement): TextElement[] {
  return [...(field.closest('[data-fields]')?.querySelectorAll<TextElement>('input, textarea') ?? [])];
}

function fieldBeside(field: TextElement, step: 1 | -1): TextElement | undefined {
  const { selectionStart, selectionEnd, value } = field;
  const isAtEdge = step < 0 ? selectionStart === 0 : selectionEnd === value.length;
  if (field instanceof HTMLTextAreaElement && !isAtEdge) return undefined;
  const fields = fieldsBeside(field);
  return fields[fields.indexOf(field) + step];
}

function swallow(event: KeyboardEvent): void {
  event.preventDefault();
  event.stopPropagation();
}

/** Pasted line breaks go, as they do in a field of one line. */
function joinLines(field: TextElement): void {
  if (/[\r\n]/.test(field.value)) field.value = field.value.replace(/[\r\n]+/g, '');
}

function columnLengths({ count, left, pitch }: DigitColumns): CSSProperties {
  return { '--columns': count, '--columns-left': `${left}px`, '--pitch': `${pitch}px` } as CSSProperties;
}

/** Puts the last digit over the last bit, however few there are: the first line begins where its first digit's bit is. */
function alignDigits(field: TextElement, { columns, lines }: FieldPlace): void {
  if (!columns || field instanceof HTMLInputElement) return;
  const { count, pitch } = columns;
  const length = Math.max(1, field.value.length);
  const rows = Math.min(lines, Math.ceil(length / count));
  if (field.rows !== rows) field.rows = rows; // the same number would have the field laid out anew, too
  field.style.textIndent = `${((count - (length % count)) % count) * pitch}px`;
  field.style.paddingTop = `calc(var(--field-padding-y) + ${lines - rows} * var(--field-line-height))`;
}
