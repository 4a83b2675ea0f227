import cc from 'classcat';
import { type KeyboardEvent, useLayoutEffect, useRef } from 'react';
import { runCommand } from '../../../commands/command';
import { FIELD_COMMANDS } from '../../../commands/fieldCommands';
import { isAltered, settleText, showText } from '../../../ui/alteredText';
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
  /** Takes over the text; says whether it was accepted and means the same word as before. */
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

  const settle = (text: string) => settleText(element.current!, text);
  // Another element takes over when the text no longer fits one line, and back.
  useLayoutEffect(() => showText(element.current!, shown), [shown, content, source, isMultiline]);

  const onKeyDown = (event: KeyboardEvent<TextElement>) => {
    const isChord = event.ctrlKey || event.metaKey || event.altKey;
    if (readOnly && !isChord && !ALWAYS_ACTING.has(event.key)) return swallow(event);
    if (event.nativeEvent.isComposing) return;
    const field = event.currentTarget;
    const isTaken = runCommand(FIELD_COMMANDS, event, {
      isAltered: () => isAltered(field),
      // No change of the word will bring our own way of writing it.
      commit: () => {
        if (onCommit(field.value)) settle(shown);
      },
      restore: () => settle(restored),
    });
    if (isTaken) event.stopPropagation();
  };

  const shared = {
    'aria-label': name,
    'data-focus-key': focusKey,
    autoComplete: 'off',
    readOnly,
    onKeyDown,
    onBlur: () => settle(restored),
  };
  return (
    <label className={cc([styles.field, place.fullWidth && styles.fullWidth])}>
      {label !== undefined && <span className={styles.label}>{label}</span>}
      {isMultiline ? (
        <textarea
          {...shared}
          ref={element as React.RefObject<HTMLTextAreaElement>}
          rows={place.lines}
          onInput={joinLines}
        />
      ) : (
        <input {...shared} ref={element as React.RefObject<HTMLInputElement>} />
      )}
    </label>
  );
}

function swallow(event: KeyboardEvent): void {
  event.preventDefault();
  event.stopPropagation();
}

/** Pasted line breaks go, as they do in a field of one line. */
function joinLines({ currentTarget }: React.InputEvent<HTMLTextAreaElement>): void {
  if (/[\r\n]/.test(currentTarget.value)) currentTarget.value = currentTarget.value.replace(/[\r\n]+/g, '');
}
