import { execFileSync, spawnSync } from 'node:child_process';
import { copyFileSync, existsSync, readdirSync, readFileSync, readlinkSync, writeFileSync } from 'node:fs';
import { join } from 'node:path';
import { gunzipSync } from 'node:zlib';
import { expect, test as base } from '../e2e/support/linux/fixtures';
import { Inspector } from '../e2e/support/linux/inspector';
import { freePort } from '../e2e/support/linux/program';
import { sampleDocument } from '../e2e/support/shared/paths';
import { ProgramProcess } from '../e2e/support/shared/programProcess';
import { until } from '../e2e/support/shared/until';
import { debianPackage, run, version, withoutLicence } from './packages';

/** The package's files in a folder of their own. */
const test = base.extend<{ tree: string }>({
  tree: async ({ sandbox }, use) => {
    const tree = join(sandbox.folder, 'tree');
    run('dpkg-deb', '--extract', debianPackage, tree);
    await use(tree);
  },
});

const field = (name: string) => run('dpkg-deb', '--field', debianPackage, name).trim();

test('lintian finds no error and nothing to warn of', () => {
  const { status, stdout } = spawnSync('lintian', ['--fail-on', 'error,warning', debianPackage], { encoding: 'utf8' });
  expect({ status, stdout }).toEqual({ status: 0, stdout: '' });
});

test("the package has the page's version and asks for the web engine's libraries", () => {
  expect(field('Version')).toBe(version);
  const depends = field('Depends');
  for (const name of ['libwebkit2gtk-4.1-0', 'libgtk-3-0', 'libstdc++6', 'libc6']) expect(depends).toContain(name);
});

test('the package holds these files, all owned by root', () => {
  const lines = run('dpkg-deb', '--contents', debianPackage).trim().split('\n');
  for (const line of lines) expect(line).toMatch(/^(drwxr-xr-x|-rwxr-xr-x|-rw-r--r--) root\/root /);
  const files = lines.filter((line) => line.startsWith('-')).map((line) => line.split(' ./').at(-1));
  const sizes = ['128x128', '16x16', '192x192', '256x256', '32x32', '48x48', '512x512', '64x64'];
  expect(files.sort()).toEqual([
    'usr/bin/tessary',
    'usr/lib/tessary/tessary',
    'usr/share/applications/tessary.desktop',
    'usr/share/doc/tessary/changelog.gz',
    'usr/share/doc/tessary/copyright',
    ...sizes.map((size) => `usr/share/icons/hicolor/${size}/apps/tessary.png`),
    'usr/share/icons/hicolor/scalable/apps/tessary.svg',
    'usr/share/man/man1/tessary.1.gz',
    'usr/share/metainfo/desktop.tessary.Tessary.metainfo.xml',
    'usr/share/mime/packages/tessary.xml',
  ]);
});

test('menu entry and software-centre data are valid, and state the version', ({ tree }) => {
  run('desktop-file-validate', join(tree, 'usr/share/applications/tessary.desktop'));
  const metainfo = join(tree, 'usr/share/metainfo/desktop.tessary.Tessary.metainfo.xml');
  run('appstreamcli', 'validate', '--no-net', metainfo);
  expect(readFileSync(metainfo, 'utf8')).toContain(`<release version="${version}"`);
});

test('each icon is as large as its folder says', ({ tree }) => {
  const icons = join(tree, 'usr/share/icons/hicolor');
  for (const folder of readdirSync(icons).filter((name) => name !== 'scalable')) {
    const png = readFileSync(join(icons, folder, 'apps/tessary.png'));
    expect(`${png.readUInt32BE(16)}x${png.readUInt32BE(20)}`).toBe(folder);
  }
});

test('the manual page documents the options', ({ tree }) => {
  const manual = gunzipSync(readFileSync(join(tree, 'usr/share/man/man1/tessary.1.gz')));
  const shown = execFileSync('man', ['--warnings', '-l', '-'], { input: manual, encoding: 'utf8' });
  for (const text of ['-h, --help', '-v, --version', `Tessary ${version}`]) expect(shown).toContain(text);
});

test('every library in the program has its licence in the package', ({ tree }) => {
  const licences = readFileSync(join(tree, 'usr/share/doc/tessary/copyright'), 'utf8');
  expect(withoutLicence('linux', licences)).toEqual([]);
  expect(licences).toContain('SIL OPEN FONT LICENSE');
  expect(licences).toContain('Copyright (c) 2017 Serge Zaitsev');
});

test('who holds which rights can be read by machines', ({ tree }) => {
  const paragraphs = readFileSync(join(tree, 'usr/share/doc/tessary/copyright'), 'utf8').trim().split(/\n\n+/);
  expect(paragraphs[0]).toMatch(
    /^Format: https:\/\/www\.debian\.org\/doc\/packaging-manuals\/copyright-format\/1\.0\/\n/,
  );
  for (const paragraph of paragraphs.slice(1)) {
    for (const line of paragraph.split('\n')) expect(line).toMatch(/^(Files|Copyright|License): \S|^ /);
  }
  const fields = (name: string) => paragraphs.filter((text) => new RegExp(`^${name}: `, 'm').test(text)).length;
  expect(fields('Files')).toBeGreaterThan(10);
  expect(fields('Copyright')).toBe(fields('Files'));
});

// The C library of Debian 12 is built without control-flow protection, so that no program can be marked as protected.
test('the program is hardened as Debian hardens its own', ({ tree }) => {
  const { status, stdout } = spawnSync('hardening-check', ['--nocfprotection', join(tree, 'usr/lib/tessary/tessary')], {
    encoding: 'utf8',
  });
  expect({ status, stdout }).toEqual({ status: 0, stdout: expect.stringContaining('Immediate binding: yes') });
});

test('the program is stripped, knows its version and is started by its absolute path', ({ tree }) => {
  const program = join(tree, 'usr/lib/tessary/tessary');
  expect(run('readelf', '--section-headers', '--wide', program)).not.toMatch(/\.symtab|\.debug_/);
  expect(run(program, '--version').trim()).toBe(version);
  expect(readFileSync(join(tree, 'usr/bin/tessary'), 'utf8')).toBe('#!/bin/sh\nexec /usr/lib/tessary/tessary "$@"\n');
});

test("a document is recognised, and opening it from the desktop shows it in the program's window", async ({
  tree,
  sandbox,
  desktop,
  processes,
}) => {
  const share = join(tree, 'usr/share');
  const entry = join(share, 'applications/tessary.desktop');
  const installed = readFileSync(entry, 'utf8');
  expect(installed).toContain('\nExec=/usr/lib/tessary/tessary %f\n');
  writeFileSync(entry, installed.replace('Exec=', `Exec=${tree}`));
  run('update-mime-database', join(share, 'mime'));
  run('update-desktop-database', join(share, 'applications'));

  const file = join(sandbox.documents, 'a document.words.tessary');
  copyFileSync(sampleDocument, file);
  copyFileSync(sampleDocument, join(sandbox.documents, 'short.tessary'));
  const port = await freePort();
  const env = {
    ...sandbox.environment(desktop),
    XDG_DATA_DIRS: `${share}:/usr/share`,
    XDG_CURRENT_DESKTOP: 'GNOME',
    WEBKIT_INSPECTOR_HTTP_SERVER: `127.0.0.1:${port}`,
  };
  for (const name of ['a document.words.tessary', 'short.tessary']) {
    const seen = execFileSync('gio', ['info', '-a', 'standard::content-type,standard::icon', name], {
      cwd: sandbox.documents,
      env,
      encoding: 'utf8',
    });
    expect(seen).toContain('standard::content-type: application/x-tessary-words+json\n');
    expect(seen).toMatch(/standard::icon: tessary,/);
  }

  const logFile = join(tree, 'usr/lib/tessary/debug.log');
  const launch = { command: ['xdg-open', file], cwd: sandbox.documents, env, desktop, logFile };
  const opener = new ProgramProcess({ ...launch, outputFolder: sandbox.folder });
  processes.push(opener);
  const program = await until('the program', () => processOf(join(tree, 'usr/lib/tessary/tessary')));
  try {
    const page = await Inspector.connect(port, () => existsSync(`/proc/${program}`));
    const text = () => page.evaluate(() => (document.body as HTMLElement | null)?.innerText ?? '').catch(() => '');
    await until('the document in the window', async () => (await text()).includes('SHA-256 initial hash'));
    page.disconnect();
    expect(readFileSync(logFile, 'utf8')).toContain(`\n[Backend] Opening file: ${file}\n`);
    const window = await until('the window', () => desktop.windowsOf(program)[0]);
    // Desktops find a window's menu entry by its class.
    expect(installed).toContain(`\nStartupWMClass=${windowClass(desktop.describe('xprop', window, 'WM_CLASS'))}\n`);
    desktop.close(window);
    await until('the end of the program', () => !existsSync(`/proc/${program}`));
  } finally {
    if (existsSync(`/proc/${program}`)) process.kill(program, 'SIGKILL');
  }
});

/** The number of the process that runs a program, once there is one. */
function processOf(program: string): number | undefined {
  const runs = (id: string) => {
    try {
      return readlinkSync(`/proc/${id}/exe`) === program;
    } catch {
      return false; // it has ended meanwhile, or is somebody else's
    }
  };
  const found = readdirSync('/proc').find((name) => /^\d+$/.test(name) && runs(name));
  return found === undefined ? undefined : Number(found);
}

function windowClass(property: string): string | undefined {
  return /"([^"]*)", "[^"]*"/.exec(property)?.[1];
}
