/** Scrolling one row of words scrolls all rows. */
export const SCROLL_LOCK_HORIZONTAL = 'scroll-lock-horizontal';

/** A sheet's switches: the names of those that are on. */
export type FlagOptions = readonly string[];

export function hasFlagOption(options: FlagOptions, option: string): boolean {
  return options.includes(option);
}

/** Turns a switch on or off. Gives a new list, which names no switch twice. */
export function withFlagOption(options: FlagOptions, option: string, on = true): FlagOptions {
  const others = options.filter((each) => each !== option);
  return on ? [...others, option] : others;
}

export function withFlagOptionToggled(options: FlagOptions, option: string): FlagOptions {
  return withFlagOption(options, option, !hasFlagOption(options, option));
}
