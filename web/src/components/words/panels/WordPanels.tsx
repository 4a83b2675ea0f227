import { type DragEvent, type MouseEvent, type ReactNode, useEffect, useMemo, useState } from 'react';
import { focusedWord, valueOf, widthOf } from '../../../actions/focusedWord';
import { copyAs, copyChoice, pasteText } from '../../../actions/wordClipboard';
import { closePanel, openPanel, originElement, useWordPanel, type WordPanel } from '../../../actions/wordPanel';
import { runCommand, shortcutLabel } from '../../../commands/command';
import { SHEET_COMMANDS } from '../../../commands/rangeCommands';
import { isAtWords, WORD_ACTIONS, WORD_MENU, wordActionTarget } from '../../../commands/wordActions';
import { i18next, labelText } from '../../../i18n';
import { codeFormsFor } from '../../../model/code/codeForms';
import { type BitRange, holds } from '../../../model/range/bitRange';
import { currentRange } from '../../../stores/bitRange';
import { useSheetStore } from '../../../stores/sheetStore';
import { Popup } from '../../../ui/Popup';
import { type MenuItem, PopupMenu } from '../../../ui/PopupMenu';
import { activeBitState } from '../bitField/activeBit';
import { wordOfBlock } from '../wordNavigation';
import { CopiedText } from './CopiedText';
import { OperationForm } from './OperationForm';
import styles from './panels.module.css';
import { PasteForm } from './PasteForm';
import { WordInspector } from './WordInspector';

/** Around the words: their menu, their keys, what is dropped on them, and the forms that act on one of them. */
export function WordPanels({ children }: { children: ReactNode }) {
  const panel = useWordPanel((state) => state.panel);
  useEffect(() => {
    const onKeyDown = (event: KeyboardEvent) => {
      const { activeElement } = document;
      if (!isAtWords(activeElement)) return;
      const target = wordActionTarget(activeElement);
      const isTaken = target
        ? runCommand(WORD_ACTIONS, event, { ...target, bit: bitOf(activeElement) })
        : runCommand(SHEET_COMMANDS, event, undefined);
      if (isTaken) event.stopPropagation();
    };
    addEventListener('keydown', onKeyDown, true);
    return () => removeEventListener('keydown', onKeyDown, true);
  }, []);
  // A panel is about a word of the sheet that is shown.
  const sheetId = useSheetStore((sheet) => sheet.id);
  useEffect(() => () => closePanel(), [sheetId]);

  const onContextMenu = (event: MouseEvent) => {
    const element = event.target as HTMLElement;
    const word = focusedWord();
    // With Shift the browser's own menu comes.
    if (event.shiftKey || !word || !element.closest('[data-word]')) return;
    event.preventDefault();
    const place = { left: event.clientX, top: event.clientY, bottom: event.clientY };
    const field = element.closest<HTMLElement>('input, textarea') ?? undefined;
    const bit = bitOf(element);
    const range = bit === undefined ? undefined : rangeAround(word.bits * word.index + bit);
    openPanel({ ...word, range }, { kind: 'menu', bit, field }, place);
  };
  const onDragOver = (event: DragEvent) => {
    if (!isTextForWord(event)) return;
    event.preventDefault();
    event.stopPropagation();
    event.dataTransfer.dropEffect = 'copy';
  };
  const onDrop = (event: DragEvent) => {
    const block = isTextForWord(event);
    if (!block) return;
    event.preventDefault();
    event.stopPropagation();
    const word = wordOfBlock(block);
    useSheetStore.getState().focus(word.type, word.bits, word.index);
    pasteText(word, event.dataTransfer.getData('text/plain'));
  };

  return (
    <div className={styles.around} onContextMenu={onContextMenu} onDragOver={onDragOver} onDrop={onDrop}>
      {children}
      {panel && <Panel panel={panel} />}
    </div>
  );
}

/** The bit that is shown as the one under the pointer or the keyboard's cursor, where that is in a bit field. */
function bitOf(element: Element | null): number | undefined {
  return element instanceof HTMLCanvasElement ? activeBitState.bit?.bit : undefined;
}

/** The bits that are chosen, if one of them is among them. @param bit - of the sheet */
function rangeAround(bit: number): BitRange | undefined {
  const range = currentRange();
  return range && holds(range, { hi: bit, lo: bit }) ? range : undefined;
}

/** The word under a text that is dragged; in a field the text is the browser's business. */
function isTextForWord({ target, dataTransfer }: DragEvent): Element | null {
  const isText = dataTransfer.types.includes('text/plain') && !dataTransfer.types.includes('Files');
  const element = target as Element;
  return isText && !element.closest('input, textarea') ? element.closest('[data-word]') : null;
}

function Panel({ panel }: { panel: WordPanel }) {
  // eslint-disable-next-line react-hooks/exhaustive-deps -- each panel asks once
  const anchor = useMemo(() => ({ current: originElement() ?? null }), [panel]);
  const shared = { anchor, at: panel.place, onClose: closePanel };
  const { word } = panel;
  switch (panel.kind) {
    case 'menu': {
      const commands = WORD_MENU.filter(({ when }) => when?.(panel) ?? true);
      return (
        <PopupMenu
          {...shared}
          key="menu"
          name={i18next.t('commands.word.menu')}
          items={commands.map((command) => menuItem(command))}
          onChoose={(id) => commands.find((each) => each.id === id)!.run(panel)}
        />
      );
    }
    case 'copyAs':
      return <CopyAsMenu key="copyAs" panel={panel} shared={shared} />;
    case 'inspect':
      return (
        <Popup {...shared} shrinks key="inspect">
          <WordInspector word={word} />
        </Popup>
      );
    case 'paste':
    case 'operation':
    case 'text': {
      const Form = { paste: PasteForm, operation: OperationForm, text: CopiedText }[panel.kind];
      return (
        <Popup {...shared} shrinks key={panel.kind}>
          <Form word={word} initial={panel.text} />
        </Popup>
      );
    }
  }
}

function menuItem(command: (typeof WORD_MENU)[number]): MenuItem {
  const { id, label } = command;
  const beginsGroup = ['word.copy', 'word.swap', 'range.goTo'].includes(id);
  return { id, label: labelText(label), hint: shortcutLabel(command), leadsOn: id === 'word.copyAs', beginsGroup };
}

const LONGEST_PREVIEW = 80;
const ORDERS = ['most', 'least'] as const;

interface CopyAsProps {
  panel: WordPanel & { kind: 'menu' | 'copyAs' };
  shared: Pick<React.ComponentProps<typeof PopupMenu>, 'anchor' | 'at' | 'onClose'>;
}

/** The forms in which a word can be copied, each with what it would be. */
function CopyAsMenu({ panel, shared }: CopyAsProps) {
  const { word } = panel;
  const [order, setOrder] = useState(copyChoice.order);
  const [value, width] = [valueOf(word), widthOf(word)];
  const orders = ORDERS.map((id) => ({
    id,
    label: i18next.t(`panels.byteOrders.${id}`),
    isChecked: id === order,
  }));
  const forms = codeFormsFor(width).map(({ id, write }, position) => ({
    id,
    label: i18next.t(`panels.forms.${id}` as 'panels.forms.hex'),
    preview: write(value, width, order).slice(0, LONGEST_PREVIEW),
    beginsGroup: position === 0,
  }));
  const onChoose = (id: string) => {
    const chosen = ORDERS.find((each) => each === id);
    if (!chosen) return copyAs(word, id);
    copyChoice.order = chosen;
    setOrder(chosen);
  };
  return (
    <PopupMenu
      {...shared}
      name={i18next.t('commands.word.copyAs')}
      items={[...orders, ...forms]}
      initial={copyChoice.form}
      onChoose={onChoose}
      onBack={() => openPanel(word, { ...panel, kind: 'menu' })}
    />
  );
}
