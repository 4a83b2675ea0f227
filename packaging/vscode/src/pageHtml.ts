/** What changes from one web view to the next. */
export interface PagePlace {
  /** The address of the page's folder, without a slash at its end. */
  base: string;
  /** What the web view's own files come from, as a content policy says it. */
  source: string;
  /** Lets the page's two scripts run, and no other. */
  nonce: string;
}

/** Fills the page that the build prepared. */
export function pageHtml(prepared: string, { base, source, nonce }: PagePlace): string {
  const places: Record<string, string> = { base, source, nonce };
  return prepared.replace(/@(base|source|nonce)@/g, (_, name: string) => places[name]!);
}

/** 128 bits that nobody can guess. */
export function newNonce(): string {
  return crypto.randomUUID().replaceAll('-', '');
}
