// By hand: the component library's brings a positioning engine of 20 kB along.
import {
  cloneElement,
  type CSSProperties,
  type FocusEvent,
  type PointerEvent,
  type ReactElement,
  useEffect,
  useId,
  useLayoutEffect,
  useRef,
  useState,
} from 'react';
import styles from './Tooltip.module.css';

interface TooltipProps {
  text: string;
  /** Below what it is about, by default, or at its right. */
  side?: 'below' | 'right';
  /** The text says more than the name does, so that a screen reader reads it, too. */
  describes?: boolean;
  style?: CSSProperties;
  children: ReactElement<{ 'aria-describedby'?: string | undefined }>;
}

/** How long the pointer rests before the text appears, in milliseconds. */
const DELAY = 150;
const EDGE = 4;

/** A short text beside what the pointer or the keyboard is at. Escape hides it. */
export function Tooltip({ text, side = 'below', describes = false, style, children }: TooltipProps) {
  const id = useId();
  const tip = useRef<HTMLSpanElement>(null);
  const wrapper = useRef<HTMLSpanElement>(null);
  const timer = useRef<ReturnType<typeof setTimeout>>(undefined);
  const [isOpen, setOpen] = useState(false);

  const hide = () => {
    clearTimeout(timer.current);
    setOpen(false);
  };
  useEffect(() => () => clearTimeout(timer.current), []);
  useEffect(() => {
    if (!isOpen) return;
    const onKeyDown = ({ key }: KeyboardEvent) => key === 'Escape' && setOpen(false);
    addEventListener('keydown', onKeyDown, true);
    return () => removeEventListener('keydown', onKeyDown, true);
  }, [isOpen]);
  useLayoutEffect(() => {
    if (isOpen) place(tip.current!, wrapper.current!.getBoundingClientRect(), side);
  });

  const onPointerEnter = ({ pointerType }: PointerEvent) => {
    if (pointerType !== 'touch') timer.current = setTimeout(() => setOpen(true), DELAY);
  };
  const onFocus = ({ target }: FocusEvent) => target.matches(':focus-visible') && setOpen(true);
  return (
    <span
      ref={wrapper}
      className={styles.around}
      style={style}
      onPointerEnter={onPointerEnter}
      onPointerLeave={hide}
      onPointerDown={hide}
      onFocus={onFocus}
      onBlur={hide}
    >
      {cloneElement(children, { 'aria-describedby': describes && isOpen ? id : undefined })}
      {isOpen && (
        <span ref={tip} id={id} role="tooltip" className={styles.tooltip}>
          {text}
        </span>
      )}
    </span>
  );
}

function place(tip: HTMLElement, around: DOMRect, side: 'below' | 'right'): void {
  const { width, height } = tip.getBoundingClientRect();
  const isRight = side === 'right';
  const left = isRight ? around.right + EDGE : around.left + (around.width - width) / 2;
  const top = isRight ? around.top + (around.height - height) / 2 : around.bottom + EDGE;
  tip.style.left = `${Math.max(EDGE, Math.min(left, innerWidth - width - EDGE))}px`;
  tip.style.top = `${Math.max(EDGE, Math.min(top, innerHeight - height - EDGE))}px`;
}
