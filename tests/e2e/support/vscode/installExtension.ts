import { execFileSync } from 'node:child_process';
import { mkdirSync, mkdtempSync, rmSync, writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { editorServer, extensionPackage } from './paths';

/** Nothing that asks, blinks or waits for the network. What is tried has the defaults of the desktop program. */
const SETTINGS = {
  'chat.disableAIFeatures': true,
  'files.autoSave': 'off', // in a browser the editor saves by itself after a second
  'git.enabled': false, // but for the story of it
  'telemetry.telemetryLevel': 'off',
  'workbench.secondarySideBar.defaultVisibility': 'hidden',
  'workbench.startupEditor': 'none',
};

/** Installs the package into a new home of the editor, which every run makes for itself, and removes that at the end. */
export default function installExtension(): () => void {
  const home = mkdtempSync(join(tmpdir(), 'tessary-editor-'));
  process.env.TESSARY_EDITOR_HOME = home;
  mkdirSync(join(home, 'data/Machine'), { recursive: true });
  writeFileSync(join(home, 'data/Machine/settings.json'), JSON.stringify(SETTINGS));
  const options = ['--accept-server-license-terms', '--server-data-dir', home, '--install-extension', extensionPackage];
  const printed = execFileSync(process.execPath, [editorServer, ...options], { encoding: 'utf8', stdio: 'pipe' });
  if (!printed.includes('successfully installed')) throw new Error(`The package was not installed: ${printed}`);
  return () => rmSync(home, { recursive: true, force: true });
}
