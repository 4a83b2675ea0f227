import { readFileSync } from 'node:fs';
import { root } from '../shared/paths';

const { version } = JSON.parse(readFileSync(`${root}web/package.json`, 'utf8')) as { version: string };

export const extensionPackage = `${root}build/packages/tessary-${version}.vsix`;
/** The editor's server, as scripts/bootstrap installs it. */
export const editorServer = `${root}build/tools/vscode/out/server-main.js`;
