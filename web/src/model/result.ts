/** The outcome of something that fails in ordinary use; `reason` is a full sentence for the user. */
export type Result<T> = { ok: true; value: T } | { ok: false; reason: string };

export function success<T>(value: T): Result<T> {
  return { ok: true, value };
}

export function failure(reason: string): { ok: false; reason: string } {
  return { ok: false, reason };
}
