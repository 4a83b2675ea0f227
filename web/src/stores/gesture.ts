/*
 * One press of a key or of the pointer, however long it is held, is one gesture: all that it changes is undone together.
 */

let gesture = 0;
let isClicked = false;

/** Grows with every gesture. */
export function currentGesture(): number {
  return gesture;
}

/** Begins the next gesture. */
export function nextGesture(): void {
  gesture++;
  isClicked = false;
}

function onKeyDown({ repeat }: KeyboardEvent): void {
  if (!repeat) nextGesture();
}

// Assistive technology clicks without a key or pointer: each such click is a gesture. One that a held key repeats is not.
function onClick({ detail }: MouseEvent): void {
  if (detail === 0 && isClicked && !isKeyHeld) nextGesture();
  isClicked = true;
}

let isKeyHeld = false;

if (typeof document !== 'undefined') {
  const options = { capture: true };
  addEventListener('keydown', onKeyDown, options);
  addEventListener('keydown', () => (isKeyHeld = true), options);
  addEventListener('keyup', () => (isKeyHeld = false), options);
  addEventListener('pointerdown', nextGesture, options);
  addEventListener('click', onClick, options);
}
