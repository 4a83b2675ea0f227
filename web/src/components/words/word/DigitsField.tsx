import cc from 'classcat';
import { type FocusEvent, type KeyboardEvent, useLayoutEffect, useRef, useState } from 'react';
import { runCommand } from '../../../commands/command';
import { FIELD_COMMANDS } from '../../../commands/fieldCommands';
import { isAltered, showText } from '../../../ui/alteredText';
import { noteTypedField } from '../lastTypedField';
import type { FieldPlace } from '../layout/fieldLayout';
import styles from './DigitsField.module.css';

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
  /** Takes over the text. @returns whether it was accepted */
  onCommit: (text: string) => boolean;
}

type TextElement = HTMLInputElement | HTMLTextAreaElement;

/** Keys that act in a field that cannot be edited. */
const ALWAYS_ACTING = new Set(['ArrowLeft', 'ArrowRight', 'Tab', 'Home', 'End']);

/** A text that takes effect with Enter and goes back with Escape or when it is left. */
export function DigitsField(props: DigitsFieldProps) {
  const { name, label, focusKey, place, shown, restored, content, source, readOnly, onCommit } = props;
  const element = useRef<TextElement>(null);
  const isMultiline = place.lines > 1;
  // After Enter a new element takes over, so that the browser's undo brings nothing back that was typed before.
  const [commits, setCommits] = useState(0);
  const selection = useRef<readonly [start: number | null, end: number | null]>(undefined);

  // Another element takes over, too, when the text no longer fits one line, and back.
  useLayoutEffect(() => showText(element.current!, shown), [shown, content, source, isMultiline, commits]);
  useLayoutEffect(() => {
    if (!selection.current) return;
    element.current!.focus({ preventScroll: true });
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
        const { selectionStart, selectionEnd } = field;
        if (!onCommit(field.value)) return;
        selection.current = [selectionStart, selectionEnd];
        setCommits(commits + 1);
      },
      restore: () => showText(field, restored),
    });
    if (isTaken) event.stopPropagation();
  };

  const shared = {
    'aria-label': name,
    'data-focus-key': focusKey,
    autoComplete: 'off',
    readOnly,
    onKeyDown,
    onInput({ currentTarget }: React.InputEvent<TextElement>) {
      noteTypedField(focusKey);
      if (isMultiline) joinLines(currentTarget);
    },
    onBlur: ({ currentTarget }: FocusEvent<TextElement>) => showText(currentTarget, restored),
  };
  return (
    <label className={cc([styles.field, place.fullWidth && styles.fullWidth])}>
      {label !== undefined && <span className={styles.label}>{label}</span>}
      {isMultiline ? (
        <textarea {...shared} key={commits} ref={element as React.RefObject<HTMLTextAreaElement>} rows={place.lines} />
      ) : (
        <input {...shared} key={commits} ref={element as React.RefObject<HTMLInputElement>} />
      )}
    </label>
  );
}

function swallow(event: KeyboardEvent): void {
  event.preventDefault();
  event.stopPropagation();
}

/** Pasted line breaks go, as they do in a field of one line. */
function joinLines(field: TextElement): void {
  if (/[\r\n]/.test(field.value)) field.value = field.value.replace(/[\r\n]+/g, '');
}
