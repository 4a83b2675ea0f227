import react from '@vitejs/plugin-react';
import { readFileSync } from 'node:fs';
import { fileURLToPath } from 'node:url';
import { defineConfig } from 'vite';
import { VitePWA } from 'vite-plugin-pwa';
import { asciiPlugin } from './build/asciiPlugin.ts';
import { fontPlugin } from './build/fontPlugin.ts';
import { iconPlugin } from './build/iconPlugin.ts';
import { leftOutPlugin } from './build/leftOutPlugin.ts';
import { packagesPlugin } from './build/packagesPlugin.ts';
import { pureRouterPlugin } from './build/pureRouterPlugin.ts';
import { shortNamesPlugin } from './build/shortNamesPlugin.ts';
import { standInsPlugin } from './build/standInsPlugin.ts';
import { themePlugin } from './build/themePlugin.ts';
import { treePlugin } from './build/treePlugin.ts';
import metadata from './package.json' with { type: 'json' };

const iconFile = fileURLToPath(new URL('../resources/icon.svg', import.meta.url));
const decodeEntities = fileURLToPath(new URL('./src/ui/decodeEntities.ts', import.meta.url));
// The package offers the build for development alone, with its warnings.
const routerFile = fileURLToPath(new URL('./node_modules/react-router/dist/production/index.mjs', import.meta.url));
const sampleFile = fileURLToPath(new URL('../sample.words.tessary', import.meta.url));
const packagesFile = fileURLToPath(new URL('../build/page-packages.json', import.meta.url));

// For web servers the page registers its worker. The desktop program's page never does: its port, and with it the
// worker's origin, is another one at each start.
const installable = process.env.TESSARY_PAGE === 'installable';
// For an editor's web view, which shows the page at an address of its own making.
const movable = process.env.TESSARY_PAGE === 'movable';
/** What the worker keeps for the time without a network. The rest of what a browser asks for counts where it is used. */
const cached = ['index.html', 'assets/*.{js,css,woff2}'];
const cachedToo = ['registerSW.js', '**/*.{ico,png,svg}'];

export default defineConfig({
  base: movable ? './' : '/',
  resolve: { alias: { 'html-entities': decodeEntities, 'react-router': routerFile } },
  define: { SAMPLE_DOCUMENT: JSON.stringify(JSON.stringify(JSON.parse(readFileSync(sampleFile, 'utf8')))) },
  plugins: [
    react(),
    fontPlugin(),
    iconPlugin(iconFile),
    leftOutPlugin(),
    standInsPlugin(),
    themePlugin(),
    pureRouterPlugin(),
    shortNamesPlugin(),
    asciiPlugin(),
    packagesPlugin(packagesFile),
    VitePWA({
      disable: movable,
      strategies: 'generateSW',
      injectRegister: installable ? 'script-defer' : false,
      includeManifestIcons: false,
      manifest: {
        name: metadata.displayName,
        short_name: metadata.displayName,
        description: metadata.description,
        start_url: '/',
        display: 'standalone',
        background_color: '#0f1214',
        theme_color: '#0f1214',
        icons: [192, 512].map((size) => ({
          src: `app-icons/app-${size}.png`,
          sizes: `${size}x${size}`,
          type: 'image/png',
        })),
      },
      workbox: { globPatterns: installable ? [...cached, ...cachedToo] : cached, sourcemap: false },
    }),
    !installable && !movable && treePlugin(),
  ],
  css: { modules: { generateScopedName: '[local]-[hash:base64:3]' } }, // shorter than the default: they stand in the script
  build: {
    target: 'es2022',
    assetsInlineLimit: 0,
    modulePreload: false,
    sourcemap: false,
    reportCompressedSize: false,
    chunkSizeWarningLimit: 750, // one script on purpose: everything is loaded at the start
    rolldownOptions: { treeshake: { propertyReadSideEffects: false }, output: { codeSplitting: false } },
  },
});
