import { type BitFieldPicture, drawBitField } from './drawBitField';

type Marks = Pick<BitFieldPicture, 'hovered' | 'cursor' | 'outlines'>;
type Content = Omit<BitFieldPicture, keyof Marks>;

/** What is to be drawn, in the order in which it was asked for. */
const waiting = new Map<BitFieldPainter, () => void>();

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
   */
  show(canvas: HTMLCanvasElement, content: Content): void {
    if (waiting.size === 0) queueMicrotask(drawWaiting);
    waiting.set(this, () => this.showNow(canvas, content));
  }

  /** Marks bits, or none where a mark is given as undefined. A mark that is not given stays. */
  mark(marks: Partial<Marks>): void {
    this.marks = { ...this.marks, ...marks };
    if (this.drawn) this.draw(this.drawn);
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

function drawWaiting(): void {
  const draws = [...waiting.values()];
  waiting.clear();
  for (const draw of draws) draw();
}
