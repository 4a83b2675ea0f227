import { isCppBackend, isVsCode } from './hostFlags';

/** The hosts that differ in what they leave to the page: the desktop program, an editor's web view, a plain browser. */
export type HostKind = 'native' | 'editor' | 'browser';

export const hostKind: HostKind = isCppBackend ? 'native' : isVsCode ? 'editor' : 'browser';
