import { fileURLToPath } from 'node:url';

/** The checkout; ends with "/". */
export const root = fileURLToPath(new URL('../../../../', import.meta.url));
export const sampleDocument = `${root}sample.words.tessary`;
export const dist = `${root}web/dist`;
/** Where buildTools.ts puts the programs in C. */
export const tools = `${root}build/e2e`;
export const toolSources = `${root}tests/e2e/support/tools`;
