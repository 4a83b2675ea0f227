import { fileURLToPath } from 'node:url';

const root = fileURLToPath(new URL('../../../', import.meta.url));

/** The program under test. */
export const executable = process.env.TESSARY_EXECUTABLE ?? `${root}build/linux/tessary`;
export const sampleDocument = `${root}sample.words.tessary`;
export const dist = `${root}web/dist`;
/** Where buildTools.ts puts the programs in C that stand beside this file. */
export const tools = `${root}build/e2e`;
export const toolSources = `${root}tests/e2e/support`;
