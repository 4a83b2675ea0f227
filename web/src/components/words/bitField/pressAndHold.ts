import type { PointerEvent } from 'react';

/** How long a finger or pen rests before it chooses bits, in milliseconds; engines take it for a menu's press then. */
const LONG = 500;
/** By how much a finger that rests still moves, in pixels. */
const SLACK = 8;

/** A finger or pen that rests where it was put down. A mouse has Shift and its right button instead. */
export class PressAndHold {
  /** From when the press was a long one until the next press. */
  wasHeld = false;
  private held: (() => void) | undefined;
  private x = 0;
  private y = 0;
  private timer: ReturnType<typeof setTimeout> | undefined;

  /** @param held - runs once the press is a long one */
  begin({ pointerType, clientX, clientY }: PointerEvent, held: () => void): void {
    this.end();
    this.wasHeld = false;
    if (pointerType === 'mouse') return;
    this.held = held;
    this.x = clientX;
    this.y = clientY;
    this.timer = setTimeout(() => this.hold(), LONG);
  }

  /** Takes the press for a long one. @returns whether there was one that could be */
  hold(): boolean {
    const { held } = this;
    this.end();
    if (!held) return false;
    this.wasHeld = true;
    held();
    return true;
  }

  move({ clientX, clientY }: PointerEvent): void {
    if (Math.hypot(clientX - this.x, clientY - this.y) > SLACK) this.end();
  }

  end(): void {
    clearTimeout(this.timer);
    this.held = undefined;
  }
}
