/** Where the keys lead in a row of buttons or tabs: beside the one that has the focus, or to either end. */
export type BarPlace = 'previous' | 'next' | 'first' | 'last';

const PLACES: Readonly<Record<string, BarPlace>> = {
  ArrowLeft: 'previous',
  ArrowRight: 'next',
  Home: 'first',
  End: 'last',
};

export const BAR_KEYS = Object.keys(PLACES);

/** @param chord - one of the keys above, as it came with the command */
export const placeOf = (chord: string | undefined): BarPlace => PLACES[chord ?? ''] ?? 'first';
