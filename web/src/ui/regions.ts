const REGION = '[data-region]';
const MAIN_FIELD = '[data-focus-key="value"]';
const TAB_STOP = '[tabindex="0"], :is(a[href], button, input, textarea):not([tabindex="-1"], :disabled)';

/** What had the focus last in each part of the page. */
const lastFocused = new WeakMap<Element, HTMLElement>();

if (typeof document !== 'undefined') {
  addEventListener('focusin', ({ target }) => {
    if (!(target instanceof HTMLElement)) return;
    const region = target.closest(REGION);
    if (region) lastFocused.set(region, target);
  });
}

/** Gives the focus to the next part of the page, to what had it there last. @param step - 1 forwards, -1 backwards */
export function goToRegion(step: 1 | -1): void {
  const regions = [...document.querySelectorAll(REGION)];
  const here = regions.findIndex((region) => region.contains(document.activeElement));
  const first = here < 0 && step < 0 ? regions.length : here;
  for (let distance = 1; distance <= regions.length; distance++) {
    const region = regions[(first + step * distance + regions.length) % regions.length]!;
    const control = controlIn(region);
    control?.focus();
    if (control && document.activeElement === control) return;
  }
}

function controlIn(region: Element): HTMLElement | null {
  const last = lastFocused.get(region);
  if (last?.isConnected && !last.matches(':disabled')) return last;
  return region.querySelector<HTMLElement>(MAIN_FIELD) ?? region.querySelector<HTMLElement>(TAB_STOP);
}
