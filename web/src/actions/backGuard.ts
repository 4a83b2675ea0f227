/*
 * Catches going back or forward in the page's history before the router does. The browser has already gone when it
 * reports it, so the guard first returns, then asks, and goes again when the answer is yes.
 * It must be installed before the router starts to listen.
 */

/** Position of an entry of the page's history, as the router numbers them; 0 for one that the router did not make. */
function positionOf(state: unknown): number {
  const position = (state as { idx?: unknown } | null)?.idx;
  return typeof position === 'number' ? position : 0;
}

/** Undefined when leaving one path for another needs no question, else a promise of the answer. */
type MayLeave = (from: string, to: string) => Promise<boolean> | undefined;

export class BackGuard {
  private readonly mayLeave: MayLeave;
  private here = { position: positionOf(history.state), path: location.pathname };
  private expected: 'nothing' | 'return' | 'departure' = 'nothing';

  constructor(mayLeave: MayLeave) {
    this.mayLeave = mayLeave;
  }

  /** Starts to listen; gives a function that stops it. */
  install(): () => void {
    const listener = (event: PopStateEvent) => this.onPopState(event);
    window.addEventListener('popstate', listener);
    return () => window.removeEventListener('popstate', listener);
  }

  /** Notes the entry that the page shows now. To be called after every navigation. */
  note(): void {
    this.here = { position: positionOf(history.state), path: location.pathname };
  }

  private onPopState(event: PopStateEvent): void {
    const { expected } = this;
    this.expected = 'nothing';
    if (expected === 'departure') return;
    if (expected === 'return') {
      event.stopImmediatePropagation();
      return;
    }
    const steps = positionOf(event.state) - this.here.position;
    const answer = steps === 0 ? undefined : this.mayLeave(this.here.path, location.pathname);
    if (!answer) return;
    event.stopImmediatePropagation();
    this.go('return', -steps);
    void answer.then((yes) => {
      if (yes) this.go('departure', steps);
    });
  }

  private go(expected: 'return' | 'departure', steps: number): void {
    this.expected = expected;
    history.go(steps);
  }
}
