import { expect, test } from '@playwright/test';
import { execFileSync } from 'node:child_process';
import { statSync } from 'node:fs';
import { filesIn, run, version, vscodePackage, withoutLicence } from './packages';

const packed = (name: string) => run('unzip', '-p', vscodePackage, `extension/${name}`);

test('the extension has less than 500 kB, and the licences of every library in it', () => {
  expect(statSync(vscodePackage).size).toBeLessThan(500_000);
  expect(withoutLicence('vscode', packed('LICENSE.txt'))).toEqual([]);
  for (const name of ['jsonc-parser', 'SIL OPEN FONT LICENSE']) expect(packed('LICENSE.txt')).toContain(name);
});

test('the extension has the page\u2019s version and name, and an icon', () => {
  const manifest = JSON.parse(packed('package.json')) as Record<string, unknown>;
  expect(manifest).toMatchObject({ name: 'tessary', displayName: 'Tessary', version, icon: 'icon.png' });
  const icon = execFileSync('unzip', ['-p', vscodePackage, 'extension/icon.png']);
  expect(icon.toString('latin1', 1, 4)).toBe('PNG');
  expect([icon.readUInt32BE(16), icon.readUInt32BE(20)]).toEqual([256, 256]);
});

test('what the README of the extension shows and leads to is in the package', () => {
  const links = [...packed('readme.md').matchAll(/\]\((?!https?:)([^)#]+)\)/g)].map(([, link]) => `extension/${link}`);
  expect(links).toContain('extension/words.png');
  expect(filesIn(vscodePackage)).toEqual(expect.arrayContaining(links));
});

test('the extension holds neither sources nor tests nor maps', () => {
  const others = filesIn(vscodePackage).filter(
    (name) => !/^extension\/page\/assets\/[\w-]+\.(?:js|css|woff2)$/.test(name),
  );
  expect(others).toEqual([
    '[Content_Types].xml',
    'extension.vsixmanifest',
    'extension/LICENSE.txt',
    'extension/extension.cjs',
    'extension/grammar.json',
    'extension/icon.png',
    'extension/package.json',
    'extension/page/bridge.js',
    'extension/page/index.html',
    'extension/readme.md',
    'extension/words.png',
  ]);
});
