import type { PointerEvent } from 'react';

/**
 * Shows a control's name while the pointer is over it. A title that is always there would be read out a second time, as
 * the description of what it names.
 */
export function hoverTitle(text: string) {
  return {
    onPointerEnter: ({ currentTarget }: PointerEvent<HTMLElement>) => (currentTarget.title = text),
    onPointerLeave: ({ currentTarget }: PointerEvent<HTMLElement>) => currentTarget.removeAttribute('title'),
  };
}
