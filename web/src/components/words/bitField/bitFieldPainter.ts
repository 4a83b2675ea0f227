import { type BitFieldPicture, drawBitField } from './drawBitField';

type Marks = Pick<BitFieldPicture, 'hovered' | 'cursor' | 'outlines'>;
type Content = Omit<BitFieldPicture, keyof Marks>;

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

  show(canvas: HTMLCanvasElement, content: Content): void {
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

  /** Marks bits, or none where a mark is given as undefined. A mark that is not given stays. */
  mark(marks: Partial<Marks>): void {
    this.marks = { ...this.marks, ...marks };
    if (this.drawn) this.draw(this.drawn);
  }

  private draw(content: Content): void {
    if (!this.context) return;
    const picture = { ...content, ...this.marks };
    drawBitField(this.context, picture, this.drawn);
    this.drawn = picture;
  }
}
