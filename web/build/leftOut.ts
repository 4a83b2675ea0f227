/** What a library defines and the page never reaches, since it makes no use of what leads there. */
export interface LeftOut {
  /** The end of the library file's path. */
  readonly file: string;
  /** Functions at the top of the file; what calls one nonetheless fails with its name. */
  readonly functions?: readonly string[];
  /** Methods of classes, as `Class.method`. */
  readonly methods?: readonly string[];
  /** Functions whose prototypes get no methods. */
  readonly prototypes?: readonly string[];
}

export const LEFT_OUT: readonly LeftOut[] = [
  {
    file: '/react-dom/cjs/react-dom-client.production.js',
    prototypes: ['FragmentInstance', 'ViewTransitionPseudoElement', 'ReactDOMHydrationRoot'],
    functions: [
      // <ViewTransition>, which no component renders. What looks for one after each transition has to stay.
      ...['startViewTransition', 'commitAfterMutationEffectsOnFiber', 'recursivelyTraverseAfterMutationEffects'],
      ...['measureNestedViewTransitions', 'measureViewTransitionHostInstancesRecursive', 'restoreViewTransitionName'],
      ...['applyViewTransitionToHostInstancesRecursive', 'createViewTransitionInstance'],
      ...['scheduleViewTransitionEvent', 'getViewTransitionClassName'],
      // Pages that a server wrote.
      ...['updateDehydratedSuspenseComponent', 'canHydrateInstance', 'prepareToHydrateHostInstance'],
      ...['clearHydrationBoundary', 'hideOrUnhideDehydratedBoundary', 'getHydratableHoistableCache'],
      ...['throwOnHydrationMismatch', 'attemptExplicitHydrationTarget', 'queueIfContinuousEvent'],
      ...['commitSuspenseHydrationCallbacks', 'commitActivityHydrationCallbacks', 'scheduleReplayQueueIfNeeded'],
      // <Activity> and <SuspenseList>.
      ...['updateActivityComponent', 'updateSuspenseListComponent'],
      // Style sheets, scripts and other parts of the document's head within components, and hints to load them.
      ...['getResource', 'acquireResource', 'suspendResource', 'preload', 'preloadModule', 'preinitScript'],
      ...['preinitStyle', 'preinitModuleScript', 'prefetchDNS', 'preconnect'],
      ...['resolveSingletonInstance', 'commitHostSingletonAcquisition', 'preloadResourceAndSuspendIfNeeded'],
      'insertStylesheetIntoRoot',
      // Refs of fragments.
      ...['FragmentInstance', 'commitNewChildToFragmentInstance', 'deleteChildFromFragmentInstance'],
      'validateDocumentPositionWithFiberTree',
      // Forms with actions, and elements that a page defines.
      ...['startHostTransition', 'runActionStateAction', 'mountActionState', 'updateActionStateImpl'],
      ...['rerenderActionState', 'setPropOnCustomElement'],
      'findCurrentFiberUsingSlowPath',
    ],
  },
  {
    file: '/react-router/dist/production/chunk-7RTFRKQW.mjs',
    functions: ['PrefetchPageLinks'],
  },
  {
    file: '/i18next/dist/esm/i18next.js',
    functions: ['keysFromSelector'],
    methods: [
      // Texts that are loaded later, in other languages, from elsewhere.
      ...['queueLoad', 'loaded', 'read', 'prepareLoading', 'load', 'reload', 'loadOne', 'saveMissing'].map(
        (name) => `Connector.${name}`,
      ),
      ...['addResource', 'addResources', 'addResourceBundle', 'removeResourceBundle', 'addNamespaces'].map(
        (name) => `ResourceStore.${name}`,
      ),
      ...['cloneInstance', 'dir', 'hydrate', 'loadLanguages', 'loadNamespaces', 'toJSON'].map((name) => `I18n.${name}`),
      ...['Translator.getUsedParamsDetails', 'Formatter.add', 'Formatter.addCached'],
    ],
  },
];
