// What the browser tests share: a static server on the loopback over the built page
// (build-web/site, or TOURVANE_WEB_SITE), Debian's chromium driven through playwright-core with
// a fresh profile for each game, and the few moves that every test makes.

import { createServer } from 'node:http';
import { mkdtemp, readFile, rm, stat } from 'node:fs/promises';
import { tmpdir } from 'node:os';
import path from 'node:path';
import { fileURLToPath } from 'node:url';
import { chromium } from 'playwright-core';

const here = path.dirname(fileURLToPath(import.meta.url));
export const siteDir = path.resolve(process.env.TOURVANE_WEB_SITE ||
                                    path.join(here, '..', '..', 'build-web', 'site'));

const CHROMIUM = process.env.TOURVANE_CHROMIUM || '/usr/bin/chromium';
const FLAGS = ['--headless', '--no-sandbox', '--disable-gpu', '--disable-background-networking',
               '--disable-component-update', '--disable-sync', '--no-first-run'];

const TYPES = {
  '.html': 'text/html; charset=utf-8',
  '.js': 'text/javascript; charset=utf-8',
  '.mjs': 'text/javascript; charset=utf-8',
  '.css': 'text/css; charset=utf-8',
  '.wasm': 'application/wasm',
  '.png': 'image/png',
  '.svg': 'image/svg+xml',
  '.json': 'application/json',
};

/// Serves the site folder on 127.0.0.1 at a free port; resolves to { url, close }.
export async function serve(root = siteDir) {
  const server = createServer(async (request, response) => {
    const { pathname } = new URL(request.url, 'http://127.0.0.1');
    let file = path.join(root, decodeURIComponent(pathname));
    if (!file.startsWith(root + path.sep) && file !== root) {
      response.writeHead(403).end();
      return;
    }
    try {
      if ((await stat(file)).isDirectory()) file = path.join(file, 'index.html');
      const body = await readFile(file);
      response.writeHead(200, {
        'Content-Type': TYPES[path.extname(file)] || 'application/octet-stream',
        'Cache-Control': 'no-store',
      });
      response.end(body);
    } catch {
      response.writeHead(404).end();
    }
  });
  await new Promise((resolve) => server.listen(0, '127.0.0.1', resolve));
  const { port } = server.address();
  return {
    url: `http://127.0.0.1:${port}/`,
    close: () => new Promise((resolve) => server.close(resolve)),
  };
}

/// Starts chromium on a fresh profile with a page open on the site, at `scale` device pixels a
/// page pixel. `failures` collects the page's errors and every request the server could not
/// answer; `done()` closes it all.
export async function openBrowser({ scale = 1 } = {}) {
  const site = await serve();
  const profile = await mkdtemp(path.join(tmpdir(), 'tourvane-chromium-'));
  const context = await chromium.launchPersistentContext(profile, {
    executablePath: CHROMIUM,
    headless: true,
    args: FLAGS,
    viewport: { width: 1366, height: 768 },
    deviceScaleFactor: scale,
  });
  const page = context.pages()[0] || await context.newPage();
  const failures = [];
  page.on('pageerror', (error) => failures.push(`page error: ${error.message}`));
  page.on('console', (message) => {
    if (message.type() === 'error') failures.push(`console: ${message.text()}`);
  });
  page.on('response', (response) => {
    if (response.status() >= 400) failures.push(`${response.status()} ${response.url()}`);
  });
  return {
    site,
    context,
    page,
    failures,
    async done() {
      await context.close();
      await site.close();
      await rm(profile, { recursive: true, force: true });
    },
  };
}

/// Opens the page (with `?seed=N` when a seed is given) and waits for the title screen.
export async function openTitle(browser, seed) {
  const address = browser.site.url + (seed === undefined ? '' : `?seed=${seed}`);
  await browser.page.goto(address);
  await title(browser.page).getByRole('button', { name: 'NEW GAME' }).waitFor();
}

export const title = (page) => page.getByRole('region', { name: 'Tourvane' });
export const office = (page) => page.getByRole('region', { name: 'Office' });
export const memo = (page) => page.getByRole('region', { name: 'Message' });
export const files = (page) => page.getByRole('region', { name: 'Save and Load' });

/// The input box of that title, and the message box, as the rules wait on them.
export function inputBox(page, heading) {
  return page.getByRole('dialog', { name: heading });
}
export function messageBox(page) {
  return page.getByRole('alertdialog', { name: 'Tourvane' });
}

/// Types into the input box of that title and presses OK.
export async function answerInput(page, heading, text) {
  const box = inputBox(page, heading);
  await box.getByRole('textbox').fill(text);
  await box.getByRole('button', { name: 'OK' }).click();
}

/// NEW GAME with both names given: the office opens.
export async function newGame(page, band = 'The Testers', boss = 'Sam') {
  await title(page).getByRole('button', { name: 'NEW GAME' }).click();
  await answerInput(page, 'NEW BAND', band);
  await answerInput(page, 'PLAYER NAME', boss);
  await office(page).waitFor();
}
