import { useEffect } from 'react';

/**
 * A held Enter acts on what it was pressed on. Where the focus went meanwhile, as to the button that a form was opened
 * from, it does nothing.
 */
export function useHeldEnter(): void {
  useEffect(() => {
    let pressedOn: EventTarget | null = null;
    const onKeyDown = (event: KeyboardEvent) => {
      if (event.key !== 'Enter') return;
      if (!event.repeat) pressedOn = event.target;
      if (event.target === pressedOn) return;
      event.preventDefault();
      event.stopPropagation();
    };
    window.addEventListener('keydown', onKeyDown, { capture: true });
    return () => window.removeEventListener('keydown', onKeyDown, { capture: true });
  }, []);
}
