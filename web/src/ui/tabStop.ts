/*
 * Several controls as one stop of the Tab key: the one that had the focus last. Done on the elements, because a render of
 * every control for each move of the focus would cost more than the move.
 */

/** Makes one control the stop of its group. */
export function makeTabStop(control: HTMLElement, group: readonly HTMLElement[]): void {
  for (const each of group) each.tabIndex = each === control ? 0 : -1;
}

/** Gives a group whose stop went away, or was disabled, another one. */
export function keepTabStop(group: readonly HTMLElement[]): void {
  const usable = group.filter((each) => !each.matches(':disabled'));
  const stop = usable.find(({ tabIndex }) => tabIndex === 0) ?? usable[0];
  if (stop) makeTabStop(stop, group);
}
