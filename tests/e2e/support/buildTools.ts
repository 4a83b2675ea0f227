import { execFileSync } from 'node:child_process';
import { mkdirSync } from 'node:fs';
import { tools, toolSources } from './paths';

/** Builds what no package of Debian 12 brings: to ask a window to close, and to read what a screen reader is told. */
export default function buildTools() {
  mkdirSync(tools, { recursive: true });
  build('close_window', 'x11');
  build('accessible_tree', 'atspi-2', 'gobject-2.0');
}

function build(name: string, ...libraries: string[]) {
  const flags = execFileSync('pkg-config', ['--cflags', '--libs', ...libraries], { encoding: 'utf8' });
  const options = [
    '-Wall',
    '-Wextra',
    '-o',
    `${tools}/${name}`,
    `${toolSources}/${name}.c`,
    ...flags.trim().split(/\s+/),
  ];
  execFileSync('cc', options, { stdio: 'inherit' });
}
