import { type BitFieldPicture, drawBitField } from './drawBitField';

type Marks = Pick<BitFieldPicture, 'hovered' | 'cursor' | 'outlines'>;
type Content = Omit<BitFieldPicture, keyof Marks>;

/** What is to be drawn, in the order in which it was asked for. */
const waiting = new Map<BitFieldPainter, () => void>();
/** What nobody sees, to be drawn when nothing more of it was asked for. */
const unseen = new Map<BitFieldPainter, () => void>();
let unseenTimer: ReturnType<typeof setTimeout> | undefined;
/** Rest before that, in milliseconds: a window that is resized asks with each frame. */
const REST = 100;

/** Keeps one canvas showing a word's bits and marks, and draws no more of it than has changed. */
export class BitFieldPainter {
  private context: CanvasRenderingContext2D | null = null;
  private drawn: BitFieldPicture | undefined;
  private marks: Marks = {
    hovered: undefined,
    cursor: undefined,
    outlines: { changed: 0n, difference: 0n, range: 0n },
  };

  /** The pointer or the keyboard is at one of its bits. */
  get isMarked(): boolean {
    return this.marks.hovered !== undefined || this.marks.cursor !== undefined;
  }

  /**
   * Draws after what runs now, still before the next frame. Writing digits makes the engine compute all styles, which would be
   * computed again after each further change of the page.
   * @param isInView - otherwise it is drawn a little later
   */
  show(canvas: HTMLCanvasElement, content: Content, isInView: boolean): void {
    const draw = () => this.showNow(canvas, content);
    if (!isInView) return drawUnseenLater(this, draw);
    unseen.delete(this);
    drawSoon(this, draw);
  }

  /** Marks bits with what is drawn next, or none where a mark is given as undefined. A mark that is not given stays. */
  mark(marks: Partial<Marks>): void {
    this.marks = { ...this.marks, ...marks };
    const { drawn } = this;
    if (!drawn || unseen.has(this) || waiting.has(this)) return;
    drawSoon(this, () => this.draw(drawn));
  }

  private showNow(canvas: HTMLCanvasElement, content: Content): void {
    const { layout, pixelRatio } = content;
    const width = Math.round(layout.width * pixelRatio);
    const height = Math.round(layout.height * pixelRatio);
    // Setting a size clears the canvas, also when it is the same size.
    if (canvas.width !== width || canvas.height !== height) {
      canvas.width = width;
      canvas.height = height;
      this.drawn = undefined;
    }
    this.context ??= canvas.getContext('2d');
    this.draw(content);
  }

  private draw(content: Content): void {
    if (!this.context) return;
    const picture = { ...content, ...this.marks };
    drawBitField(this.context, picture, this.drawn);
    this.drawn = picture;
  }
}

function drawSoon(painter: BitFieldPainter, draw: () => void): void {
  if (waiting.size === 0) queueMicrotask(() => drawAll(waiting));
  waiting.set(painter, draw);
}

function drawUnseenLater(painter: BitFieldPainter, draw: () => void): void {
  waiting.delete(painter);
  unseen.set(painter, draw);
  clearTimeout(unseenTimer);
  unseenTimer = setTimeout(() => drawAll(unseen), REST);
}

function drawAll(asked: Map<BitFieldPainter, () => void>): void {
  const draws = [...asked.values()];
  asked.clear();
  for (const draw of draws) draw();
}
