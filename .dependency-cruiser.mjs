/**
 * What in web/src may import what. A layer is a folder that imports only from itself and from the layers before it; a
 * file that lies beside them, such as main.tsx, is a layer of its own.
 */
const layers = [
  'model',
  'i18n',
  'ui',
  'document',
  'host',
  'stores',
  'actions',
  'commands',
  'components',
  'pages',
  'app',
  'main.tsx',
];

const inLayers = (names) => `^web/src/(${names.map((name) => name.replace('.', '\\.')).join('|')})(/|$)`;
const source = '^web/src/';
const declaration = '\\.d\\.ts$';
/** Tests and what they are made of, which may import everything. */
const test = '(\\.test\\.tsx?$|^web/src/testing/)';

/** Takes the place of a package, by an alias in vite.config.ts. */
const alias = '^web/src/ui/decodeEntities\\.ts$';

const upwards = layers.slice(0, -1).map((layer, index) => ({
  name: `${layer}-imports-upwards`,
  severity: 'error',
  from: { path: inLayers([layer]), pathNot: test },
  to: { path: inLayers(layers.slice(index + 1)) },
}));

export default {
  forbidden: [
    ...upwards,
    { name: 'circle', severity: 'error', from: { path: source }, to: { circular: true } },
    {
      name: 'outside-the-layers',
      severity: 'error',
      from: {},
      module: { path: source, pathNot: [inLayers(layers), test], numberOfDependentsMoreThan: 0 },
    },
    {
      name: 'test-code-in-the-page',
      severity: 'error',
      from: { path: source, pathNot: test },
      to: { path: test },
    },
    {
      name: 'not-installed-for-users',
      comment: 'What the page imports is a dependency, not a development dependency.',
      severity: 'error',
      from: { path: source, pathNot: [test, declaration] },
      to: { dependencyTypes: ['npm-dev', 'npm-no-pkg', 'npm-unknown', 'unknown', 'undetermined'] },
    },
    {
      name: 'unused',
      comment: 'Only tests import it, or nothing does.',
      severity: 'error',
      from: { path: '^web/src/main\\.tsx$' },
      to: { path: source, pathNot: [test, declaration, alias], reachable: false },
    },
  ],
  options: {
    tsConfig: { fileName: 'web/tsconfig.json' },
    tsPreCompilationDeps: true,
    doNotFollow: { path: 'node_modules' },
    exclude: { path: '\\.css$' },
  },
};
