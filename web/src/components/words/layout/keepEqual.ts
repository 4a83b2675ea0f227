/**
 * What was there before, where it is equal: a component that was given it has nothing to render.
 * @param now - plain data, which is left as it is
 * @returns equal to `now`, with all parts of `before` that are equal to those in the same place
 */
export function keepEqual<Value>(before: unknown, now: Value): Value {
  if (Object.is(before, now) || !isParts(before) || !isParts(now)) return now;
  if (Array.isArray(before) !== Array.isArray(now)) return now;
  const keys = Object.keys(now);
  const kept = keys.map((key) => keepEqual(before[key], now[key]));
  const isKept = (key: string, at: number) => Object.hasOwn(before, key) && Object.is(kept[at], before[key]);
  if (keys.length === Object.keys(before).length && keys.every(isKept)) return before as Value;
  return (Array.isArray(now) ? kept : Object.fromEntries(keys.map((key, at) => [key, kept[at]]))) as Value;
}

/** Keeps of each value what is equal to the one before. */
export function equalPartsKeeper<Value>(): (now: Value) => Value {
  let before: unknown;
  return (now) => {
    const kept = keepEqual(before, now);
    before = kept;
    return kept;
  };
}

function isParts(value: unknown): value is Record<string, unknown> {
  return typeof value === 'object' && value !== null;
}
