#!/usr/bin/env node
// The web page against its own limits, measured in one run, in Debian's chromium:
//
//  1. a week of the rules in the page (the same wasm, its boxes answered at once, nothing
//     drawn) against the same weeks played natively by tourvane-script, both after as many
//     weeks untimed, for the code to be warm: at most 2 times;
//  2. the title screen ready for clicks against a bare page that fetches and instantiates the
//     same tourvane.js and tourvane.wasm and does nothing else (medians of interleaved pairs,
//     each in a fresh browser context): at most 1.5 times;
//  3. a Next Week click in the office to the page drawn again and laid out, median and 95th
//     percentile: within a 16 ms frame at the 95th;
//  4. the bytes a first visit downloads, each part gzip-compressed: at most 1.5 MB in all.
//
//   node bench/web.mjs [--pairs N] [--weeks N] [--clicks N] [--seed N]
//
// It serves build-web/site (scripts/web --build-only) with bench/web/bare.html beside it, and
// runs build/bin/tourvane-script; the test packages come from tests/web (npm ci there).

import { spawnSync } from 'node:child_process';
import { readdirSync, readFileSync, statSync } from 'node:fs';
import path from 'node:path';
import { fileURLToPath } from 'node:url';
import { gzipSync } from 'node:zlib';
import { driver, launchChromium, serve, siteDir } from '../tests/web/browser.mjs';

const here = path.dirname(fileURLToPath(import.meta.url));
const options = { pairs: 15, weeks: 150, clicks: 200, seed: 20010901 };
for (let i = 2; i < process.argv.length; i += 2) {
  const name = process.argv[i].replace(/^--/, '');
  if (!(name in options) || !/^\d+$/.test(process.argv[i + 1] || '')) {
    console.error('usage: node bench/web.mjs [--pairs N] [--weeks N] [--clicks N] [--seed N]');
    process.exit(2);
  }
  options[name] = Number(process.argv[i + 1]);
}

const median = (v) => {
  const s = [...v].sort((a, b) => a - b);
  return s.length % 2 ? s[(s.length - 1) / 2] : (s[s.length / 2 - 1] + s[s.length / 2]) / 2;
};
const percentile = (v, p) => [...v].sort((a, b) => a - b)[Math.ceil((p / 100) * v.length) - 1];
const ms = (v) => `${v.toFixed(v < 10 ? 2 : 1)} ms`;

// Isolated from other sites, the page's clock reads to 5 µs rather than 100 µs.
const site = await serve(siteDir, { '/bare.html': path.join(here, 'web', 'bare.html') },
                         { 'Cross-Origin-Opener-Policy': 'same-origin',
                           'Cross-Origin-Embedder-Policy': 'require-corp' });
const browser = await launchChromium();

/// A fresh context (no cache, no storage) on a window of 1366x768.
async function freshPage() {
  const context = await browser.newContext({ viewport: { width: 1366, height: 768 } });
  await context.addInitScript(() => {
    document.addEventListener('tourvane:drawn', () => {
      window.tourvaneDrawn = (window.tourvaneDrawn || 0) + 1;
      if (!window.firstDrawn) window.firstDrawn = performance.now();
    });
  });
  return { context, page: await context.newPage() };
}

// ---- 1. A week of the rules, in the page and natively ---------------------------------------

/// The same clicks as a script for the driver: a new game, four hired, `weeks` Next Weeks
/// (every question answered No, as the bare page answers it; memos read after each).
/// The weeks timed are those after the first `options.weeks`, untimed on both sides.
function script(weeks) {
  return ['input "Bench"', 'input "Bench"', 'click Form1.New', ...Array(4).fill('click main.hire'),
          ...Array(weeks).fill('click main.command6'), ''].join('\n');
}

function nativeRun(weeks) {
  const start = process.hrtime.bigint();
  const run = spawnSync(driver, ['--seed', String(options.seed)], { input: script(weeks) });
  const took = Number(process.hrtime.bigint() - start) / 1e6;
  if (run.status !== 0) throw new Error(`tourvane-script: ${run.stderr}`);
  return { took, ended: /^end$/m.test(run.stdout.toString()) };
}

async function pageWeeks() {
  const { context, page } = await freshPage();
  await page.goto(`${site.url}bare.html`);
  await page.waitForFunction(() => window.bareModule);
  const result = await page.evaluate(async ({ weeks, seed }) => {
    const m = window.bareModule;
    const click = (form, control, index = -1) =>
      m.ccall('tourvane_click', 'number', ['string', 'string', 'number'], [form, control, index],
              { async: true });
    await m.ccall('tourvane_start', 'number', ['string'], [String(seed)], { async: true });
    await click('Form1', 'New');
    for (let i = 0; i < 4; ++i) await click('main', 'hire');
    // Next Week, timed, and the memos read after it, untimed.
    let times = [];
    const week = async () => {
      const start = performance.now();
      const done = await click('main', 'command6');
      times.push(performance.now() - start);
      while (await click('messageForm', 'command1') === 0);
      return done === 0;
    };
    for (let i = 0; i < weeks; ++i) if (!await week()) return { ended: true };
    times = [];
    for (let i = 0; i < weeks; ++i) if (!await week()) return { ended: true };
    return { times, ended: false, isolated: window.crossOriginIsolated };
  }, options);
  await context.close();
  return result;
}

// ---- 2. The title screen against the bare page -----------------------------------------------

/// Milliseconds from the navigation's start to the page ready: a first visit, and a return
/// to it in the same browser (the saves' storage there already; nothing cached).
async function startOnce(bare) {
  const { context, page } = await freshPage();
  const visit = async () => {
    if (bare) {
      await page.goto(`${site.url}bare.html`);
      return page.waitForFunction(() => window.bareReady).then((h) => h.jsonValue());
    }
    await page.goto(site.url);
    return page.waitForFunction(() => window.firstDrawn).then((h) => h.jsonValue());
  };
  const first = await visit();
  const again = await visit();
  await context.close();
  return { first, again };
}

// ---- 3. Next Week clicked in the office, to the page drawn again -----------------------------

async function clicks() {
  const { context, page } = await freshPage();
  await page.goto(`${site.url}?seed=${options.seed}`);
  await page.waitForFunction(() => window.firstDrawn);
  const times = await page.evaluate(async (count) => {
    const drawn = () => new Promise((r) => document.addEventListener('tourvane:drawn', r, { once: true }));
    const answer = (text) => {
      const box = document.getElementById('inputbox');
      box.querySelector('input').value = text;
      box.querySelector('button[value=ok]').click();
    };
    const wait = (test) => new Promise((resolve) => {
      const look = () => (test() ? resolve() : setTimeout(look, 5));
      look();
    });
    // A new game and a band of three: a week that asks no question, so that every click is
    // the machine's time alone.
    document.querySelector('#screen-Form1 [data-control=New]').click();
    await wait(() => document.getElementById('inputbox').open);
    answer('Bench Band');
    await wait(() => document.getElementById('inputbox').open);
    const office = drawn();
    answer('Bench');
    await office;
    for (let i = 0; i < 3; ++i) {
      const next = drawn();
      document.querySelector('#screen-main [data-control=hire]').click();
      await next;
    }
    const times = [];
    const button = document.querySelector('#screen-main [data-control=command6]');
    for (let i = 0; i < count; ++i) {
      const next = drawn();
      const start = performance.now();
      button.click();
      await next;
      void document.body.offsetHeight;  // the style and layout the change asks for
      times.push(performance.now() - start);
      // The memos are read, untimed.
      for (let ok; (ok = document.querySelector('#screen-messageForm:not([hidden]) [data-control=command1]'));) {
        const read = drawn();
        ok.click();
        await read;
      }
      if (document.getElementById('ended').hidden === false) break;
    }
    return times;
  }, options.clicks);
  await context.close();
  return times;
}

// ---- 4. What a first visit downloads ---------------------------------------------------------

async function firstVisit() {
  const { context, page } = await freshPage();
  const parts = new Map();
  page.on('response', async (response) => {
    const url = new URL(response.url());
    if (url.origin !== new URL(site.url).origin) return;
    parts.set(url.pathname, (await response.body()).length);
  });
  await page.goto(site.url);
  await page.waitForFunction(() => window.firstDrawn &&
                                    [...document.images].every((i) => i.complete));
  await page.waitForLoadState('networkidle');
  await context.close();
  return [...parts.keys()].sort().map((name) => {
    const file = path.join(siteDir, name === '/' ? 'index.html' : name);
    const bytes = readFileSync(file);
    return { name: name === '/' ? '/index.html' : name, bytes: bytes.length,
             gzip: gzipSync(bytes, { level: 9 }).length };
  });
}

function everyPart() {
  const out = [];
  const walk = (folder) => {
    for (const name of readdirSync(folder)) {
      const file = path.join(folder, name);
      if (statSync(file).isDirectory()) walk(file);
      else out.push({ name: `/${path.relative(siteDir, file)}`,
                      gzip: gzipSync(readFileSync(file), { level: 9 }).length });
    }
  };
  walk(siteDir);
  return out;
}

// ---- The run -----------------------------------------------------------------------------------

try {
  console.log(`# The web page against its limits (chromium ${browser.version()}, seed ${options.seed})\n`);

  const weeks = options.weeks;
  const inPage = [];
  for (let i = 0; i < 7; ++i) {
    const run = await pageWeeks();
    if (run.ended) throw new Error('the game ended before its weeks were played: try another seed');
    if (!run.isolated) throw new Error('the page was not isolated: its clock is too coarse');
    inPage.push(...run.times);
  }
  // The clicks the processor spent on other work in between (a few take milliseconds on a
  // busy machine) are left out of the mean: the slowest tenth.
  const kept = [...inPage].sort((a, b) => a - b).slice(0, Math.floor(inPage.length * 0.9));
  const pageMean = kept.reduce((a, b) => a + b, 0) / kept.length;
  // The driver's own weeks: its runs of twice the weeks less those of the untimed ones, the
  // quickest of many runs of each (the start of a process varies by far more than the weeks).
  const before = [];
  const all = [];
  for (let i = 0; i < 21; ++i) {
    before.push(nativeRun(weeks).took);
    all.push(nativeRun(2 * weeks).took);
  }
  const nativeWeek = (Math.min(...all) - Math.min(...before)) / weeks;
  const us = (v) => `${(v * 1000).toFixed(1)} µs`;
  console.log(`1. A week of the rules: Next Week in weeks ${weeks + 1} to ${2 * weeks} of a band ` +
              'of four, every box answered at once, the memos read after it untimed:');
  console.log(`   in the page ${us(pageMean)} a click (the quicker nine tenths of 7 runs; ` +
              `median ${us(median(inPage))}, 95th percentile ${us(percentile(inPage, 95))}); ` +
              `tourvane-script ${us(nativeWeek)} a week (${ms(Math.min(...all))} for ${2 * weeks} ` +
              `weeks against ${ms(Math.min(...before))} for ${weeks}, quickest of 21): ` +
              `${(pageMean / nativeWeek).toFixed(2)} times (limit 2). The rules alone, natively: ` +
              'build/bin/tourvane-bench --benchmark_filter=BM_PageWeek\n');

  const game = [];
  const bare = [];
  for (let i = 0; i < options.pairs; ++i) {
    const first = i % 2 === 0;
    if (first) game.push(await startOnce(false));
    bare.push(await startOnce(true));
    if (!first) game.push(await startOnce(false));
  }
  console.log(`2. Ready for clicks after the navigation began (${options.pairs} interleaved pairs, medians):`);
  for (const visit of ['first', 'again']) {
    const g = median(game.map((r) => r[visit]));
    const b = median(bare.map((r) => r[visit]));
    console.log(`   ${visit === 'first' ? 'a first visit' : 'a return    '}: the title screen ` +
                `${ms(g)}, the bare page ${ms(b)}: ${(g / b).toFixed(2)} times (limit 1.5)`);
  }
  console.log('');

  const times = await clicks();
  console.log(`3. Next Week clicked to the page drawn and laid out, ${times.length} clicks:`);
  console.log(`   median ${ms(median(times))}, 95th percentile ${ms(percentile(times, 95))}, ` +
              `slowest ${ms(Math.max(...times))} (limit 16 ms at the 95th)\n`);

  const parts = await firstVisit();
  const total = parts.reduce((a, p) => a + p.gzip, 0);
  console.log('4. A first visit, to the title screen (gzip -9 of each part):');
  for (const p of parts) console.log(`   ${p.name.padEnd(28)} ${String(p.bytes).padStart(8)} B  ${String(p.gzip).padStart(8)} B gzipped`);
  console.log(`   in all ${(total / 1024).toFixed(1)} KiB gzipped (limit 1.5 MB)`);
  const whole = everyPart().reduce((a, p) => a + p.gzip, 0);
  console.log(`   every file of the site, each screen's pictures at both sizes: ${(whole / 1024).toFixed(1)} KiB gzipped`);
} finally {
  await browser.close();
  await site.close();
}
