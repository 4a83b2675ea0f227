// Renders the icon of the Windows executable: node windows_icon.mjs ICON.svg OUT.ico
import { mkdirSync, readFileSync, writeFileSync } from 'node:fs';
import { dirname } from 'node:path';
import { renderWindowsIcon } from '../web/build/icons.ts';

const [svg, out] = process.argv.slice(2);
mkdirSync(dirname(out), { recursive: true });
writeFileSync(out, renderWindowsIcon(readFileSync(svg, 'utf8')));
