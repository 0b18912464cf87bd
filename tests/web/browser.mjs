// What the browser tests share: a static server on the loopback over the built page
// (build-web/site, or TOURVANE_WEB_SITE), Debian's chromium driven through playwright-core with
// a fresh profile for each game, the screens and panels found by role and name, and the moves
// that every test makes: a click that waits until the page is drawn again, the boxes answered,
// the memos read.

import assert from 'node:assert/strict';
import { createServer } from 'node:http';
import { mkdtemp, readFile, rm, stat } from 'node:fs/promises';
import { tmpdir } from 'node:os';
import path from 'node:path';
import { fileURLToPath } from 'node:url';
import { chromium } from 'playwright-core';

const here = path.dirname(fileURLToPath(import.meta.url));
export const siteDir = path.resolve(process.env.TOURVANE_WEB_SITE ||
                                    path.join(here, '..', '..', 'build-web', 'site'));
export const driver = process.env.TOURVANE_SCRIPT ||
                      path.join(here, '..', '..', 'build', 'bin', 'tourvane-script');

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

/// Serves a folder (the site by default) on 127.0.0.1 at a free port; resolves to
/// { url, close }. `extra` maps more paths to files; `headers` go with every answer.
export async function serve(root = siteDir, extra = {}, headers = {}) {
  const server = createServer(async (request, response) => {
    const { pathname } = new URL(request.url, 'http://127.0.0.1');
    let file = extra[pathname] || path.join(root, decodeURIComponent(pathname));
    if (!extra[pathname] && !file.startsWith(root + path.sep) && file !== root) {
      response.writeHead(403).end();
      return;
    }
    try {
      if ((await stat(file)).isDirectory()) file = path.join(file, 'index.html');
      const body = await readFile(file);
      response.writeHead(200, {
        'Content-Type': TYPES[path.extname(file)] || 'application/octet-stream',
        'Cache-Control': 'no-store',
        ...headers,
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

/// Starts chromium with no profile of its own, for fresh contexts made one after another (the
/// benchmark, bench/web.mjs).
export function launchChromium() {
  return chromium.launch({ executablePath: CHROMIUM, headless: true, args: FLAGS });
}

/// Starts chromium on a fresh profile with a page open on the site, at `scale` device pixels a
/// page pixel, in a 1366x768 window. `failures` collects the page's errors and every request
/// the server could not answer; `done()` closes it all.
export async function openBrowser({ scale = 1, extra = {} } = {}) {
  const site = await serve(siteDir, extra);
  const profile = await mkdtemp(path.join(tmpdir(), 'tourvane-chromium-'));
  const context = await chromium.launchPersistentContext(profile, {
    executablePath: CHROMIUM,
    headless: true,
    args: FLAGS,
    viewport: { width: 1366, height: 768 },
    deviceScaleFactor: scale,
    acceptDownloads: true,
  });
  // Counts the page's drawings, for a click to wait on the next one.
  await context.addInitScript(() => {
    document.addEventListener('tourvane:drawn', () => {
      window.tourvaneDrawn = (window.tourvaneDrawn || 0) + 1;
    });
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

/// Runs `play(page, browser)` in a fresh browser opened with `options` (as openBrowser takes
/// them), then checks that the page raised no error and asked for nothing it lacks, and
/// closes it all.
export async function inBrowser(options, play) {
  const browser = await openBrowser(options);
  try {
    await play(browser.page, browser);
    assert.deepEqual(browser.failures, []);
  } finally {
    await browser.done();
  }
}

/// Opens the page (with `?seed=N` when a seed is given) and waits for the title screen.
export async function openTitle(browser, seed) {
  const address = browser.site.url + (seed === undefined ? '' : `?seed=${seed}`);
  await browser.page.goto(address);
  await title(browser.page).getByRole('button', { name: 'NEW GAME' }).waitFor();
}

// ---- Screens and panels, by their names ------------------------------------------------------

/// A panel on show by its title.
export const panel = (page, name) => page.getByRole('region', { name, exact: true });
/// The title screen and the office both carry the program's name; each has its own buttons.
export const title = (page) => panel(page, 'Tourvane')
    .filter({ has: page.getByRole('button', { name: 'NEW GAME' }) });
export const office = (page) => panel(page, 'Tourvane')
    .filter({ has: page.getByRole('button', { name: 'Next Week' }) });
export const memo = (page) => panel(page, 'Message');
export const files = (page) => panel(page, 'Save and Load');
export const gig = (page) => panel(page, 'Play a Gig');
export const report = (page) => panel(page, 'Gig Report');
export const chart = (page) => panel(page, 'Music Chart');
export const diary = (page) => panel(page, 'Diary');
export const graph = (page) => panel(page, 'Week Graph');
export const help = (page) => panel(page, 'Help');
export const saves = (page) => panel(page, 'Saves');

/// The value a screen shows under a name of its own ("Cash", "Date", "From").
export async function value(where, name) {
  return where.getByRole('group', { name, exact: true }).textContent();
}

/// A button by its exact name.
export const button = (where, name) => where.getByRole('button', { name, exact: true });

/// The input box of that title, and the message box, as the rules wait on them.
export function inputBox(page, heading) {
  return page.getByRole('dialog', { name: heading });
}
export function messageBox(page) {
  return page.getByRole('alertdialog', { name: 'Tourvane' });
}

// ---- Moves ---------------------------------------------------------------------------------

/// How many times the page has been drawn.
export const drawings = (page) => page.evaluate(() => window.tourvaneDrawn || 0);

/// Does `act` (a click or a key press) and waits until the page is drawn again, or a box asks.
export async function step(page, act) {
  const before = await drawings(page);
  await act();
  await page.waitForFunction((n) => (window.tourvaneDrawn || 0) > n ||
                                    document.querySelector('dialog[open]'), before);
}

/// Clicks and waits as `step` does.
export const press = (page, locator) => step(page, () => locator.click());

/// Answers each box that asks (the button `answer(text)` names, OK by default) until the page
/// is drawn again; the boxes' texts in order.
export async function answerBoxes(page, answer = () => 'OK') {
  const texts = [];
  const box = messageBox(page);
  while (await box.isVisible()) {
    const text = await box.locator('.box-text').textContent();
    texts.push(text);
    const wanted = answer(text);
    await step(page, () => button(box, wanted).click());
  }
  return texts;
}

/// Reads and acknowledges every memo on show, as [from, text] pairs.
export async function readMemos(page) {
  const read = [];
  while (await memo(page).isVisible()) {
    const sheet = memo(page);
    read.push([await value(sheet, 'From'), await value(sheet, 'Message')]);
    await press(page, button(sheet, 'OK'));
  }
  return read;
}

/// Types into the input box of that title and presses OK.
export async function answerInput(page, heading, text) {
  const box = inputBox(page, heading);
  await box.getByRole('textbox').fill(text);
  await step(page, () => button(box, 'OK').click());
}

/// NEW GAME with both names given: the office opens.
export async function newGame(page, band = 'The Testers', boss = 'Sam') {
  await button(title(page), 'NEW GAME').click();
  await answerInput(page, 'NEW BAND', band);
  await answerInput(page, 'PLAYER NAME', boss);
  await office(page).waitFor();
}

/// Hires the applicant on show until the band is full.
export async function hireBand(page) {
  for (let hired = 0; hired < 4; ++hired) await press(page, button(office(page), 'HIRE'));
}

/// Next Week, answering the practice question as `practise` says (Yes or No) and every other
/// box with OK; returns the boxes' texts and the memos read.
export async function nextWeek(page, practise = 'No') {
  await press(page, button(office(page), 'Next Week'));
  const boxes = await answerBoxes(page, (text) => (/practise/.test(text) ? practise : 'OK'));
  return { boxes, memos: await readMemos(page) };
}
