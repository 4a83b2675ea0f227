import { root } from '../shared/paths';

/** The program under test. */
export const executable = process.env.TESSARY_EXECUTABLE ?? `${root}build/linux/tessary`;
/** Where the sanitizers find what they pass over in the system's libraries. */
export const suppressions = `${root}tests/e2e/support/linux`;
