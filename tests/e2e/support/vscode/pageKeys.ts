import { runnerImport } from 'vite';
import { root } from '../shared/paths';

const ENTRY = '\0page-commands';
const NO_STYLES = '\0no-styles';

/** The page's commands in any host, of all its modules of commands; their styles are left out. */
const commandsOnly = {
  name: 'commands-only',
  enforce: 'pre' as const,
  resolveId: (id: string) => (id === ENTRY ? id : id.endsWith('.css') ? NO_STYLES : undefined),
  load: (id: string) => {
    if (id === NO_STYLES) return 'export default {}';
    if (id === ENTRY)
      return "export default import.meta.glob(['/src/commands/*.ts', '!**/*.test.ts'], { eager: true })";
    return undefined;
  },
};

/** Every key that the page has a command for in one host or another, such as "Control+ArrowLeft". */
export async function pageKeys(): Promise<string[]> {
  const { module } = await runnerImport<{ default: unknown }>(ENTRY, {
    root: `${root}web`,
    configFile: false,
    logLevel: 'error',
    plugins: [commandsOnly],
  });
  const keys = [...JSON.stringify(module.default).matchAll(/"keys":\[(.*?)\]/g)].flatMap(
    ([, list]) => JSON.parse(`[${list}]`) as string[],
  );
  const pressed = keys.filter((key) => !/^Digit|~/.test(key)).map(asPressed);
  if (pressed.length < 40) throw new Error(`The page's commands have other forms now: ${pressed.join(' ')}`);
  return [...new Set(pressed)];
}

/** As Playwright names the key. */
function asPressed(chord: string): string {
  return chord
    .replace(/^(?:Mod|Ctrl)\+/, 'Control+')
    .replace(/Plus$/, '+')
    .replace(/Minus$/, '-');
}
