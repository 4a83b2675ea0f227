import {
  type FocusEvent,
  type KeyboardEvent,
  memo,
  type PointerEvent,
  useContext,
  useEffect,
  useLayoutEffect,
  useRef,
  useState,
} from 'react';
import { BIT_FIELD_COMMANDS } from '../../../commands/bitFieldCommands';
import { runCommand } from '../../../commands/command';
import { i18next } from '../../../i18n';
import { floatFieldAt, floatFormatFor } from '../../../model/float/floatFormats';
import { formatInteger } from '../../../model/integer/formatInteger';
import { readWord } from '../../../model/integer/wordLayout';
import { holds } from '../../../model/range/bitRange';
import { type OutlineKind, useBitOutlines } from '../../../stores/bitOutlines';
import { chooseRange, chosenRange, currentRange } from '../../../stores/bitRange';
import { currentGesture } from '../../../stores/gesture';
import { forgetSince } from '../../../stores/history';
import { useSheetStore } from '../../../stores/sheetStore';
import { isTextField } from '../../../ui/alteredText';
import { bitAt, type BitFieldLayout, cellOf } from '../layout/bitFieldLayout';
import { RowScroller, SheetScroller } from '../scrollers';
import { activeBitState, showBit, updateShownBit } from './activeBit';
import { bitCursors } from './bitCursors';
import styles from './BitField.module.css';
import { BitFieldPainter } from './bitFieldPainter';
import { useBitFieldPalette } from './bitFieldPalette';
import { BitTexts } from './BitTexts';
import type { WordOutlines } from './drawBitField';
import { useNameLabels } from './nameLabels';
import { PressAndHold } from './pressAndHold';

export const READOUT_ID = 'bit-readout';

interface BitFieldProps {
  name: string;
  layout: BitFieldLayout;
  pixelRatio: number;
  isInView: boolean;
  index: number;
  word: bigint;
  signed: boolean;
  sheetId: string | null;
}

/** All bits of a word on a canvas, to be toggled one by one or painted with a drag. */
export const BitField = memo(function BitField({
  name,
  layout,
  pixelRatio,
  isInView,
  index,
  word,
  signed,
  sheetId,
}: BitFieldProps) {
  const width = layout.bits;
  const canvas = useRef<HTMLCanvasElement>(null);
  const row = useContext(RowScroller);
  const sheet = useContext(SheetScroller);
  const [painter] = useState(() => new BitFieldPainter());
  const [press] = useState(() => new PressAndHold());
  const palette = useBitFieldPalette();
  const names = useNameLabels(sheetId, width, index);
  const digits = formatInteger(word, 2, width).padStart(width, '0');
  const [isFocused, setFocused] = useState(false);
  const stroke = useRef<{ value: boolean; last: number } | undefined>(undefined);
  const cursor = useRef(width - 1);
  /** The bit of the sheet where a range begins that is being drawn. */
  const rangeStart = useRef<number | undefined>(undefined);

  useLayoutEffect(() => {
    painter.show(canvas.current!, { layout, pixelRatio, palette, names, digits }, isInView);
    const { bit: shown } = activeBitState;
    if (!shown || !painter.isMarked || shown.width !== width || shown.index !== index) return;
    updateShownBit({ ...shown, isSet: digits[width - 1 - shown.bit] === '1', signed });
  }, [painter, layout, pixelRatio, isInView, palette, names, digits, signed, width, index]);
  useLayoutEffect(
    () => () => {
      if (painter.isMarked) showBit(undefined);
    },
    [painter],
  );

  useLayoutEffect(() => {
    const outline = () => painter.mark({ outlines: outlinesOf(sheetId, width, index) });
    outline();
    return useBitOutlines.subscribe(outline);
  }, [painter, sheetId, width, index]);

  const isSet = (bit: number) => readWord(useSheetStore.getState().int.value, 1, width * index + bit) === 1n;
  const read = (bit: number) => showBit({ width, index, bit, isSet: isSet(bit), signed });
  const setBit = (bit: number, value: boolean) => {
    if (isSet(bit) !== value) useSheetStore.getState().toggleWordBit(index, width, bit);
  };
  const inWord = (bit: number) => Math.max(0, Math.min(width - 1, bit));
  const placeCursor = (bit: number) => {
    cursor.current = inWord(bit);
    painter.mark({ cursor: cursor.current });
    revealCell(canvas.current!, layout, cursor.current, row.current!, sheet.current!);
  };
  const moveCursor = (bit: number) => {
    placeCursor(bit);
    read(cursor.current);
  };
  const sheetBit = (bit: number) => width * index + bit;
  const choose = (anchor: number, head: number) => {
    chooseRange(anchor, head);
    showBit(undefined);
  };
  /** The range that was chosen, if the cursor is at the end of it that moves. */
  const rangeAtCursor = () => {
    const chosen = chosenRange();
    return chosen && inWord(chosen.head - sheetBit(0)) === cursor.current ? chosen : undefined;
  };
  const extendTo = (bit: number) => {
    const anchor = rangeAtCursor()?.anchor ?? sheetBit(cursor.current);
    placeCursor(bit);
    choose(anchor, sheetBit(bit));
  };
  const chosenBits = () => {
    const range = currentRange();
    return range && { type: 'integer' as const, bits: width, index, range };
  };

  useEffect(() => {
    const element = canvas.current!;
    // A finger that chooses bits scrolls nothing, and presses nothing where it is lifted.
    const keepFromEngine = (event: TouchEvent) => {
      if (press.wasHeld) event.preventDefault();
    };
    for (const type of ['touchmove', 'touchend'] as const) {
      element.addEventListener(type, keepFromEngine, { passive: false });
    }
    return () => press.end();
  }, [press]);
  useLayoutEffect(() => void bitCursors.set(canvas.current!, moveCursor));

  const bitUnder = ({ nativeEvent }: PointerEvent) => bitAt(layout, nativeEvent.offsetX, nativeEvent.offsetY);
  const onPointerDown = (event: PointerEvent<HTMLCanvasElement>) => {
    if (event.button !== 0) return;
    const bit = bitUnder(event);
    press.begin(event, () => holdAt(bit));
    if (event.pointerType === 'touch') return;
    event.currentTarget.setPointerCapture(event.pointerId);
    leaveField();
    if (event.shiftKey) return beginRange(event, bit);
    stroke.current = { value: !isSet(bit), last: bit };
    cursor.current = bit;
    setBit(bit, stroke.current.value);
    painter.mark({ cursor: bit, hovered: bit });
    read(bit);
  };
  const beginRange = (event: PointerEvent<HTMLCanvasElement>, bit: number) => {
    // The browser would select the texts from where the focus was.
    event.preventDefault();
    startRange(bit);
    choose(sheetBit(bit), sheetBit(bit));
  };
  const startRange = (bit: number) => {
    cursor.current = bit;
    canvas.current!.focus({ preventScroll: true });
    painter.mark({ cursor: bit, hovered: bit });
    rangeStart.current = sheetBit(bit);
  };
  /** A long press begins a range, or is about the one that it is in. What a pen flipped at first is flipped back. */
  const holdAt = (bit: number) => {
    if (stroke.current) {
      setBit(bit, !stroke.current.value);
      forgetSince(currentGesture());
      stroke.current = undefined;
    }
    leaveField();
    startRange(bit);
    const at = sheetBit(bit);
    const range = currentRange();
    if (!range || !holds(range, { hi: at, lo: at })) choose(at, at);
  };
  const onPointerMove = (event: PointerEvent) => {
    const bit = bitUnder(event);
    press.move(event);
    if ((event.buttons & 1) === 0) rangeStart.current = undefined;
    if (rangeStart.current !== undefined) {
      if (bit === cursor.current) return;
      cursor.current = bit;
      painter.mark({ cursor: bit, hovered: bit });
      return choose(rangeStart.current, sheetBit(bit));
    }
    if (!isPainting(event, layout)) stroke.current = undefined;
    if (stroke.current) paintTo(bit);
    painter.mark({ hovered: bit });
    read(bit);
  };
  const paintTo = (bit: number) => {
    const { value, last } = stroke.current!;
    for (const each of bitsBetween(layout, last, bit)) setBit(each, value);
    stroke.current = { value, last: bit };
  };
  const onPointerLeave = () => {
    painter.mark({ hovered: undefined });
    if (document.activeElement === canvas.current) read(cursor.current);
    else showBit(undefined);
  };
  const endPress = () => {
    press.end();
    stroke.current = undefined;
    rangeStart.current = undefined;
  };
  const onPointerUp = (event: PointerEvent) => {
    const isMenu = press.wasHeld && rangeStart.current === sheetBit(bitUnder(event));
    endPress();
    if (!isMenu) return;
    read(cursor.current);
    askForMenu(event);
  };
  // Some engines ask for the menu while a finger still rests.
  const onContextMenu = (event: React.MouseEvent) => {
    if (!press.hold() && rangeStart.current === undefined) return;
    event.preventDefault();
    event.stopPropagation();
  };
  /** Chooses the byte, or the part of the float. The two presses before it flipped the bit and flipped it back. */
  const onDoubleClick = (event: React.MouseEvent) => {
    if (event.shiftKey) return;
    const bit = bitAt(layout, event.nativeEvent.offsetX, event.nativeEvent.offsetY);
    forgetSince(currentGesture() - 1);
    const { hi, lo } = layout.hasFieldLabels
      ? floatFieldAt(floatFormatFor(width)!, bit)
      : { hi: bit | 7, lo: bit & ~7 };
    choose(sheetBit(hi), sheetBit(lo));
  };
  // A finger that scrolls must not toggle, so a touch counts once it ends as a press.
  const onClick = (event: React.MouseEvent<HTMLCanvasElement>) => {
    const { pointerType, offsetX, offsetY } = event.nativeEvent as globalThis.PointerEvent;
    if (pointerType !== 'touch' || press.wasHeld) return;
    const bit = bitAt(layout, offsetX, offsetY);
    setBit(bit, !isSet(bit));
  };

  const onKeyDown = (event: KeyboardEvent) => {
    runCommand(BIT_FIELD_COMMANDS, event, {
      bits: width,
      bitsPerLine: layout.bitsPerLine,
      cursor: () => cursor.current,
      moveCursor,
      head: () => (rangeAtCursor()?.head ?? sheetBit(cursor.current)) - sheetBit(0),
      extendTo,
      chosen: chosenBits,
      toggle: (bit) => setBit(bit, !isSet(bit)),
      write: setBit,
    });
  };
  const onFocus = ({ currentTarget }: FocusEvent) => {
    setFocused(true);
    if (currentTarget.matches(':focus-visible')) moveCursor(cursor.current);
  };
  const onBlur = () => {
    setFocused(false);
    painter.mark({ cursor: undefined });
    showBit(undefined);
  };

  return (
    <>
      <canvas
        ref={canvas}
        className={styles.bits}
        role="application"
        tabIndex={0}
        aria-label={name}
        aria-describedby={READOUT_ID}
        aria-roledescription={i18next.t('words.bitFieldRole')}
        data-focus-key="bits"
        style={{ width: layout.width, height: layout.height }}
        onPointerDown={onPointerDown}
        onPointerMove={onPointerMove}
        onPointerLeave={onPointerLeave}
        onPointerUp={onPointerUp}
        onPointerCancel={endPress}
        onContextMenu={onContextMenu}
        onDoubleClick={onDoubleClick}
        onClick={onClick}
        onKeyDown={onKeyDown}
        onFocus={onFocus}
        onBlur={onBlur}
      />
      {isFocused && <BitTexts digits={digits} />}
    </>
  );
});

/** Opens the menu of the bits, as the right button of a mouse does. */
function askForMenu({ currentTarget, clientX, clientY }: PointerEvent): void {
  const options = { bubbles: true, cancelable: true, clientX, clientY };
  currentTarget.dispatchEvent(new MouseEvent('contextmenu', options));
}

/** What is outlined of a word of a sheet. */
function outlinesOf(sheetId: string | null, width: number, index: number): WordOutlines {
  const outlines = useBitOutlines.getState();
  const bitsOf = (kind: OutlineKind) => {
    const { sheetId: outlined, bits } = outlines[kind];
    return bits === 0n || outlined !== sheetId ? 0n : readWord(bits, width, index);
  };
  return { changed: bitsOf('changed'), difference: bitsOf('difference'), range: bitsOf('range') };
}

/** A stroke ends with its button, even where nobody reported that, and above and below the lines of its field. */
function isPainting({ buttons, nativeEvent: { offsetY } }: PointerEvent, { height }: BitFieldLayout): boolean {
  return (buttons & 1) === 1 && offsetY >= 0 && offsetY < height;
}

/**
 * Ends what is being typed before a press changes the value: a field that is left afterwards would show its bits as an
 * integer in place of the new float.
 */
function leaveField(): void {
  if (isTextField(document.activeElement)) document.activeElement.blur();
}

/** The bits that a stroke passes from one to another: those between them when they share a line. */
function bitsBetween({ bits, bitsPerLine }: BitFieldLayout, from: number, to: number): number[] {
  const line = (bit: number) => Math.floor((bits - 1 - bit) / bitsPerLine);
  if (line(from) !== line(to)) return [to];
  const first = Math.min(from, to);
  return Array.from({ length: Math.abs(from - to) + 1 }, (_, offset) => first + offset);
}

/** Scrolls row and sheet so that a bit can be seen. */
function revealCell(
  canvas: HTMLElement,
  layout: BitFieldLayout,
  bit: number,
  row: HTMLElement,
  sheet: HTMLElement,
): void {
  const cell = cellOf(layout, bit);
  const field = canvas.getBoundingClientRect();
  const rowBox = row.getBoundingClientRect();
  const sheetBox = sheet.getBoundingClientRect();
  row.scrollLeft += beyond(field.left + cell.x - rowBox.left, cell.width, row.clientWidth);
  sheet.scrollTop += beyond(field.top + cell.y - sheetBox.top, layout.lineHeight, sheet.clientHeight);
}

/** How far a part lies outside a view, with some room around it; 0 when it is inside. */
function beyond(start: number, size: number, viewSize: number): number {
  if (start < 0) return start - size;
  const end = start + size;
  return end > viewSize ? end + size - viewSize : 0;
}
