import { expect, test, vi } from 'vitest';
import { bitFieldLayout } from '../layout/bitFieldLayout';
import { BitFieldPainter } from './bitFieldPainter';
import { DARK_PALETTE } from './bitFieldPalette';

vi.stubGlobal('document', { createElement: () => ({ getContext: () => null }) });

const layout = bitFieldLayout(32, 640, 640, false);

/** A canvas that notes the digits that are written on it. */
function canvasOf() {
  const written: string[] = [];
  const context = {
    setTransform() {},
    clearRect() {},
    fillRect() {},
    strokeRect() {},
    fillText: (text: string) => written.push(text),
  };
  const canvas = { width: 0, height: 0, getContext: () => context } as unknown as HTMLCanvasElement;
  return { canvas, written };
}

const content = (digits: string) => ({ layout, pixelRatio: 1, palette: DARK_PALETTE, digits });
const ZEROS = '0'.repeat(32);

test('bits are drawn once after all that changes now, as they are at last', async () => {
  const painter = new BitFieldPainter();
  const { canvas, written } = canvasOf();
  painter.show(canvas, content(ZEROS), true);
  await Promise.resolve();
  written.length = 0;
  painter.show(canvas, content(`11${ZEROS.slice(2)}`), true);
  painter.show(canvas, content(`1${ZEROS.slice(1)}`), true);
  expect(written).toEqual([]);
  await Promise.resolve();
  expect(written).toEqual(['1']);
});

test('a bit that is flipped and marked is drawn once', async () => {
  const painter = new BitFieldPainter();
  const { canvas, written } = canvasOf();
  painter.show(canvas, content(ZEROS), true);
  await Promise.resolve();
  written.length = 0;
  painter.mark({ cursor: 31, hovered: 31 });
  painter.show(canvas, content(`1${ZEROS.slice(1)}`), true);
  await Promise.resolve();
  expect(written).toEqual(['1']);
});

test('bits out of view are drawn when they come into view, or when nothing more comes', async () => {
  vi.useFakeTimers();
  const [seen, unseen] = [new BitFieldPainter(), new BitFieldPainter()];
  const [first, second] = [canvasOf(), canvasOf()];
  seen.show(first.canvas, content(ZEROS), false);
  unseen.show(second.canvas, content(ZEROS), false);
  await Promise.resolve();
  expect([first.written, second.written]).toEqual([[], []]);
  seen.show(first.canvas, content(ZEROS), true);
  await Promise.resolve();
  expect(first.written).not.toEqual([]);
  expect(second.written).toEqual([]);
  first.written.length = 0;
  vi.runAllTimers();
  expect(first.written).toEqual([]);
  expect(second.written).not.toEqual([]);
  vi.useRealTimers();
});
