import type { Plugin } from 'vite';

const LIBRARY = '/node_modules/react-dom/cjs/react-dom-client.production.js';
/** The files that are handed React DOM's records, too. */
const NEIGHBOURS = /\/node_modules\/(react|react-dom|scheduler)\//;

/**
 * Fields that React DOM gives its own records, which nothing else reads: neither React nor another library, nor the browser.
 * Each is written dozens of times, and minifiers leave the names of fields alone.
 */
const FIELDS = [
  ...['memoizedState', 'memoizedProps', 'pendingProps', 'stateNode', 'alternate', 'elementType', 'dependencies'],
  ...['subtreeFlags', 'deletions', 'dehydrated', 'treeContext'],
  ...['updateQueue', 'baseState', 'baseQueue', 'firstBaseUpdate', 'lastBaseUpdate', 'hiddenUpdates'],
  ...['lastRenderedReducer', 'lastRenderedState'],
  ...['childLanes', 'pendingLanes', 'suspendedLanes', 'pingedLanes', 'expiredLanes', 'warmLanes', 'retryLane'],
  ...['entangledLanes', 'entanglements', 'errorRecoveryDisabledLanes', 'expirationTimes', 'shellSuspendCounter'],
  ...['callbackNode', 'callbackPriority', 'cancelPendingCommit'],
];
const ANY_FIELD = new RegExp(`\\b(?:${FIELDS.join('|')})\\b`, 'g');

/** Gives those fields short names, which the library has for nothing else. */
export function withShortNames(code: string): string {
  return code.replaceAll(ANY_FIELD, (field) => `$${FIELDS.indexOf(field).toString(36)}`);
}

/** Shortens React DOM in the bundle. Stops the build when another file knows one of the names. */
export function shortNamesPlugin(): Plugin {
  return {
    name: 'tessary-short-names',
    apply: 'build',
    enforce: 'pre',
    transform(code, id) {
      if (!NEIGHBOURS.test(id)) return null;
      if (id.endsWith(LIBRARY)) return { code: withShortNames(code), map: null };
      const [known] = code.match(ANY_FIELD) ?? [];
      if (known !== undefined) this.error(`${id} knows ${known}, too: it has to keep its name.`);
      return null;
    },
  };
}
