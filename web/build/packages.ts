const MARK = '/node_modules/';

/**
 * Finds which npm packages modules come from.
 * @param modules - ids as the bundler gives them: absolute paths, some with a query, and names of its own
 * @returns the packages' folders, each once, in alphabetical order; modules of the page itself have none
 */
export function packageFolders(modules: Iterable<string>): string[] {
  const folders = [...modules].map(packageFolder).filter((folder) => folder !== undefined);
  return [...new Set(folders)].sort();
}

function packageFolder(module: string): string | undefined {
  const path = module.replaceAll('\\', '/');
  const start = path.lastIndexOf(MARK) + MARK.length;
  if (start < MARK.length) return undefined;
  const [first = '', second = ''] = path.slice(start).split('/');
  const name = first.startsWith('@') ? `${first}/${second}` : first;
  return path.slice(path.startsWith('\0') ? 1 : 0, start) + name;
}
