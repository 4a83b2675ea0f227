import {
  type FocusEvent,
  type KeyboardEvent,
  useEffect,
  useId,
  useLayoutEffect,
  useMemo,
  useRef,
  useState,
} from 'react';
import { VscCheck, VscClose, VscCopy } from 'react-icons/vsc';
import { copyText } from '../../../actions/wordClipboard';
import { closePanel } from '../../../actions/wordPanel';
import { chordMatches } from '../../../commands/keyChord';
import { i18next } from '../../../i18n';
import type { InspectedLine } from '../../../model/inspect/inspectedLine';
import { type InspectedSection, inspectWord } from '../../../model/inspect/inspectWord';
import { wordCount } from '../../../model/integer/wordLayout';
import { definitionLabel } from '../../../model/sheet/numberDefinitions';
import type { ChangedWord } from '../../../stores/changeCause';
import { useSheetStore } from '../../../stores/sheetStore';
import { moveRovingFocus, seekByLetter } from '../../../ui/rovingFocus';
import styles from './WordInspector.module.css';

/** A text of more characters than this scrolls inside its line. */
const LONGEST_UNSCROLLED = 700;

/** Everything that a word can be read as, a line with a copy button for each reading. Follows the word's value. */
export function WordInspector({ word }: { word: ChangedWord }) {
  const { type, bits, index } = word;
  const dialog = useRef<HTMLDivElement>(null);
  const titleId = useId();
  const [copied, setCopied] = useState<string>();
  const value = useSheetStore(({ int }) =>
    index < wordCount(int.resolution, bits) ? int.getWord(bits, index) : undefined,
  );
  const sections = useMemo(() => (value === undefined ? [] : inspectWord(value, bits)), [value, bits]);
  const copyButtons = () => [...dialog.current!.querySelectorAll<HTMLElement>('button[data-name]')];

  // The sheet may become narrower by undo.
  useEffect(() => {
    if (value === undefined) closePanel();
  }, [value]);
  // A reading may go with the value, and take the focus with it.
  useLayoutEffect(() => {
    if (!dialog.current!.contains(document.activeElement)) copyButtons()[0]?.focus();
  }, [sections]);

  const onFocus = ({ target }: FocusEvent) => {
    if ('name' in (target as HTMLElement).dataset) {
      for (const button of copyButtons()) button.tabIndex = button === target ? 0 : -1;
    }
  };
  const onKeyDown = (event: KeyboardEvent) => {
    if (chordMatches('Mod+I', event)) {
      event.preventDefault();
      return closePanel();
    }
    if (!('name' in (event.target as HTMLElement).dataset)) return;
    moveRovingFocus(event, copyButtons());
    seekByLetter(event, copyButtons());
  };
  const copy = (key: string, { text, whole }: InspectedLine) => {
    setCopied(key);
    void copyText(word, whole?.() ?? text);
  };

  const title = i18next.t('inspect.title', { row: definitionLabel({ type, bits }), number: index + 1 });
  return (
    <div
      ref={dialog}
      role="dialog"
      aria-labelledby={titleId}
      className={styles.inspector}
      onFocus={onFocus}
      onKeyDown={onKeyDown}
    >
      <header className={styles.header}>
        <h2 id={titleId}>{title}</h2>
        <button type="button" aria-label={i18next.t('ui.close')} onClick={() => closePanel()}>
          <VscClose aria-hidden />
        </button>
      </header>
      {sections.map((section) => (
        <section key={section.name ?? section.id} aria-label={sectionTitle(section)}>
          <h3>{sectionTitle(section)}</h3>
          <dl>
            {section.lines.map((line) => {
              const key = `${section.name ?? ''} ${line.id}`;
              return <Line key={key} line={line} isCopied={key === copied} onCopy={() => copy(key, line)} />;
            })}
          </dl>
        </section>
      ))}
    </div>
  );
}

function sectionTitle({ id, name }: InspectedSection): string {
  return name ?? i18next.t(`inspect.sections.${id as 'number'}`);
}

interface LineProps {
  line: InspectedLine;
  /** Its text was the last one that was copied. */
  isCopied: boolean;
  onCopy: () => void;
}

function Line({ line: { id, text }, isCopied, onCopy }: LineProps) {
  const textId = useId();
  const label = i18next.t(`inspect.lines.${id as 'unsigned'}`);
  const isLong = text.length > LONGEST_UNSCROLLED;
  return (
    <div className={styles.line}>
      <dt>{label}</dt>
      {/* What scrolls is scrolled by keyboard, too. */}
      <dd {...(isLong && { tabIndex: 0, className: styles.long })}>
        <bdi id={textId}>{text}</bdi>
      </dd>
      <dd>
        <button
          type="button"
          tabIndex={-1}
          data-name={label}
          aria-label={i18next.t('inspect.copy', { reading: label })}
          aria-describedby={textId}
          onClick={onCopy}
        >
          {isCopied ? <VscCheck aria-hidden /> : <VscCopy aria-hidden />}
        </button>
      </dd>
    </div>
  );
}
