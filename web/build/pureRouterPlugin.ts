import type { Plugin } from 'vite';

/**
 * The router's code without the names for developers' tools, and with its components marked as free of effects: what
 * nothing uses can be left out then. The package claims as much, but of its files as a whole.
 */
export function withoutEffects(code: string): string {
  return code
    .replaceAll(/^\w+\.displayName = ".*";$/gm, '')
    .replaceAll(/^(var \w+ = )(React\d*\.(?:forwardRef|memo|createContext)\()/gm, '$1/* @__PURE__ */ $2');
}

/** Leaves the forms, scripts and data routes of the router, which the page has no use for, out of the bundle. */
export function pureRouterPlugin(): Plugin {
  return {
    name: 'tessary-pure-router',
    apply: 'build',
    enforce: 'pre',
    transform: (code, id) =>
      id.includes('/node_modules/react-router/') ? { code: withoutEffects(code), map: null } : null,
  };
}
