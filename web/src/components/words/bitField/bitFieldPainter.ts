import { type BitFieldPicture, drawBitField } from './drawBitField';

type Content = Omit<BitFieldPicture, 'hovered' | 'cursor'>;
type Marks = Partial<Pick<BitFieldPicture, 'hovered' | 'cursor'>>;

/** Keeps one canvas showing a word's bits and marks, and draws no more of it than has changed. */
export class BitFieldPainter {
  private context: CanvasRenderingContext2D | null = null;
  private drawn: BitFieldPicture | undefined;
  private hovered: number | undefined;
  private cursor: number | undefined;

  /** The pointer or the keyboard is at one of its bits. */
  get isMarked(): boolean {
    return this.hovered !== undefined || this.cursor !== undefined;
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

  /** Marks a bit, or no bit where a mark is given as undefined. A mark that is not given stays. */
  mark(marks: Marks): void {
    if ('hovered' in marks) this.hovered = marks.hovered;
    if ('cursor' in marks) this.cursor = marks.cursor;
    if (this.drawn) this.draw(this.drawn);
  }

  private draw(content: Content): void {
    if (!this.context) return;
    const picture = { ...content, hovered: this.hovered, cursor: this.cursor };
    drawBitField(this.context, picture, this.drawn);
    this.drawn = picture;
  }
}
