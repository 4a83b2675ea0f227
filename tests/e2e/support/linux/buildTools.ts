import { execFileSync } from 'node:child_process';
import { mkdirSync, renameSync } from 'node:fs';
import { tools, toolSources } from '../shared/paths';

/** Builds what no package of Debian 12 brings: to ask a window to close, to read what a
 * screen reader gets, to drag something into a window, to set a clock, and to break a disk. */
export default function buildTools() {
  mkdirSync(tools, { recursive: true });
  build('close_window', 'x11');
  build('accessible_tree', 'atspi-2', 'gobject-2.0');
  build('accessible_events', 'atspi-2', 'gobject-2.0');
  build('drag_source', 'gtk+-3.0');
  compile('fake_clock', 'fake_clock.so', '-shared', '-fPIC');
  compile('failing_flush', 'failing_flush.so', '-shared', '-fPIC');
}

function build(name: string, ...libraries: string[]) {
  const flags = execFileSync('pkg-config', ['--cflags', '--libs', ...libraries], { encoding: 'utf8' });
  compile(name, name, ...flags.trim().split(/\s+/));
}

function compile(source: string, output: string, ...flags: string[]) {
  // Other stories may be using it at the moment.
  const fresh = `${tools}/${output}.${process.pid}`;
  execFileSync('cc', ['-Wall', '-Wextra', '-o', fresh, `${toolSources}/${source}.c`, ...flags], { stdio: 'inherit' });
  renameSync(fresh, `${tools}/${output}`);
}
