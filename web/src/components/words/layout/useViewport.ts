import { type RefObject, useLayoutEffect, useState, useSyncExternalStore } from 'react';
import { mono } from '../../../ui/tokens';
import { FIELD_FONT_SIZE } from './fieldLayout';

export interface ViewSize {
  readonly width: number;
  readonly height: number;
}

/** The inner size of an element in CSS pixels, without scrollbars; undefined until it is known. */
export function useViewSize(element: RefObject<HTMLElement | null>): ViewSize | undefined {
  const [size, setSize] = useState<ViewSize>();
  useLayoutEffect(() => {
    const target = element.current!;
    const measure = () => {
      const { clientWidth: width, clientHeight: height } = target;
      setSize((before) => (before?.width === width && before.height === height ? before : { width, height }));
    };
    measure();
    const observer = new ResizeObserver(measure);
    observer.observe(target);
    return () => observer.disconnect();
  }, [element]);
  return size;
}

/** Device pixels per CSS pixel; changes with the zoom and when the window moves to another screen. */
export function usePixelRatio(): number {
  return useSyncExternalStore(subscribeToPixelRatio, pixelRatio);
}

/** Kept until the window changes: WebKit asks another process for one of the widths, and lays out the page for the other. */
let knownRatio: number | undefined;
const pixelRatio = () => (knownRatio ??= window.devicePixelRatio * zoomBesideRatio());

/** WebKit does not count its zoom in `devicePixelRatio`. Levels are a multiple of 5%, and widths are rounded. */
function zoomBesideRatio(): number {
  const isWebKit = navigator.vendor.startsWith('Apple');
  return isWebKit && innerWidth > 0 ? Math.round((20 * outerWidth) / innerWidth) / 20 : 1;
}

function subscribeToPixelRatio(changed: () => void): () => void {
  let query: MediaQueryList;
  knownRatio = undefined; // nobody looked after it since the last one listened
  const renew = () => {
    knownRatio = undefined;
    changed();
  };
  const listen = () => {
    query = matchMedia(`(resolution: ${window.devicePixelRatio}dppx)`);
    query.addEventListener('change', onChange, { once: true });
  };
  const onChange = () => {
    renew();
    listen();
  };
  listen();
  window.addEventListener('resize', renew);
  return () => {
    query.removeEventListener('change', onChange);
    window.removeEventListener('resize', renew);
  };
}

/** Width in CSS pixels of one digit in a word's fields. */
export function digitWidth(): number {
  if (measuredDigit) return measuredDigit;
  const context = document.createElement('canvas').getContext('2d');
  if (!context) return USUAL_DIGIT;
  context.font = `${FIELD_FONT_SIZE}px ${mono}`;
  return (measuredDigit = context.measureText('0'.repeat(100)).width / 100);
}

const USUAL_DIGIT = 7.25;
let measuredDigit = 0;
