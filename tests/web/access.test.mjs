// Every screen and panel of the page, toured at one and at two device pixels a page pixel: no
// serious or critical finding of the axe-core scanner on any, each panel on show seen whole in
// a 1366x768 window once it is in front or scrolled to, nothing cut without its ellipsis, and
// a picture of each into build-web/screenshots/ to look at.
import { test } from 'node:test';
import assert from 'node:assert/strict';
import { mkdir } from 'node:fs/promises';
import path from 'node:path';
import { createRequire } from 'node:module';
import { inBrowser, siteDir } from './browser.mjs';
import { tour } from './tour.mjs';

const shots = path.join(siteDir, '..', 'screenshots');
const axe = createRequire(import.meta.url).resolve('axe-core/axe.min.js');

/// The axe findings of serious or critical impact on the page as it stands.
async function findings(page) {
  if (!await page.evaluate(() => 'axe' in window)) await page.addScriptTag({ path: axe });
  const found = await page.evaluate(async () => {
    const result = await window.axe.run(document, { resultTypes: ['violations'] });
    return result.violations;
  });
  return found.filter((v) => v.impact === 'serious' || v.impact === 'critical')
      .map((v) => `${v.id}: ${v.help} (${v.nodes.map((n) => n.target.join(' ')).join('; ')})`);
}

/// What is wrong with the panels on show in the window: a panel not seen whole once scrolled
/// to, or a text cut short with no ellipsis to say so.
async function layoutFaults(page) {
  return page.evaluate(() => {
    const faults = [];
    for (const panel of document.querySelectorAll('.panel:not([hidden])')) {
      panel.scrollIntoView({ block: 'nearest', inline: 'nearest' });
      const r = panel.getBoundingClientRect();
      if (r.left < 0 || r.top < 0 || r.right > innerWidth || r.bottom > innerHeight)
        faults.push(`${panel.id} not whole in the window: ${JSON.stringify(r)}`);
      for (const e of panel.querySelectorAll('.control span, [role=option], .holds')) {
        const s = getComputedStyle(e);
        const cut = e.scrollWidth > e.clientWidth + 1 || e.scrollHeight > e.clientHeight + 1;
        const marked = s.textOverflow === 'ellipsis' || s.webkitLineClamp !== 'none';
        if (cut && !marked && e.getClientRects().length)
          faults.push(`${panel.id}: "${e.textContent}" cut with no ellipsis`);
      }
    }
    return faults;
  });
}

/// Every text of a screen against the picture under it, as the pixels have it: the ratio of
/// the text's colour to its ground (the picture, under whatever the control lays on it) must
/// reach 4.5 (3 for large text) over nine tenths of the text's box.
async function contrastFaults(page) {
  return page.evaluate(() => {
    const rgba = (css) => {
      const m = /rgba?\(([^)]+)\)/.exec(css);
      if (!m) return null;
      const [r, g, b, a = 1] = m[1].split(/[\s,/]+/).filter(Boolean).map(Number);
      return [r, g, b, a];
    };
    const linear = (c) => (c / 255 <= 0.03928 ? c / 255 / 12.92 : ((c / 255 + 0.055) / 1.055) ** 2.4);
    const luminance = ([r, g, b]) => 0.2126 * linear(r) + 0.7152 * linear(g) + 0.0722 * linear(b);
    const ratio = (x, y) => {
      const [a, b] = [luminance(x), luminance(y)].sort((p, q) => q - p);
      return (a + 0.05) / (b + 0.05);
    };
    const over = (top, under) => under.map((u, i) => top[i] * top[3] + u * (1 - top[3]));
    const faults = [];
    for (const panel of document.querySelectorAll('.screen:not([hidden])')) {
      const picture = panel.querySelector('img.backdrop');
      const canvas = document.createElement('canvas');
      canvas.width = picture.naturalWidth;
      canvas.height = picture.naturalHeight;
      const context = canvas.getContext('2d');
      context.drawImage(picture, 0, 0);
      const pixels = context.getImageData(0, 0, canvas.width, canvas.height).data;
      const origin = picture.getBoundingClientRect();
      const k = picture.naturalWidth / origin.width;
      for (const text of panel.querySelectorAll('.control > span')) {
        if (!text.textContent.trim() || !text.getClientRects().length) continue;
        const control = text.closest('.control');
        if (control.getAttribute('aria-hidden') === 'true') continue;  // a shadow, not a text
        const style = getComputedStyle(text);
        const ink = rgba(style.color);
        const layers = [control, text].map((e) => rgba(getComputedStyle(e).backgroundColor))
            .filter((c) => c && c[3] > 0);
        const box = text.getBoundingClientRect();
        const seen = [];
        for (let y = box.top + 1; y < box.bottom - 1; y += 2) {
          for (let x = box.left + 1; x < box.right - 1; x += 2) {
            const px = Math.floor((x - origin.left) * k);
            const py = Math.floor((y - origin.top) * k);
            if (px < 0 || py < 0 || px >= canvas.width || py >= canvas.height) continue;
            const at = (py * canvas.width + px) * 4;
            let ground = [pixels[at], pixels[at + 1], pixels[at + 2]];
            for (const layer of layers) ground = over(layer, ground);
            seen.push(ratio(ink, ground));
          }
        }
        if (!seen.length) continue;
        seen.sort((a, b) => a - b);
        const worst = seen[Math.floor(seen.length / 10)];
        const size = parseFloat(style.fontSize);
        const large = size >= 24 || (size >= 18.6 && Number(style.fontWeight) >= 700);
        if (worst < (large ? 3 : 4.5))
          faults.push(`${panel.id} "${text.textContent.slice(0, 30)}": ${worst.toFixed(2)}`);
      }
    }
    return faults;
  });
}

for (const scale of [1, 2]) {
  test(`every screen at ${scale}x: whole in the window, pictured, and clean for axe`,
       { timeout: 280000 }, () => inBrowser({ scale }, async (page, browser) => {
await mkdir(shots, { recursive: true });
    const stops = [];
    const faults = [];
        await tour(browser, async (name, shown) => {
      stops.push(name);
      await shown.waitFor();
      // Pictures and fonts in place before anything is judged.
      await page.waitForFunction(() => [...document.images].every((i) => i.complete));
      await page.evaluate(() => document.fonts.ready);
      faults.push(...(await layoutFaults(page)).map((f) => `${name}: ${f}`));
      faults.push(...(await contrastFaults(page)).map((f) => `${name}: ${f}`));
      await shown.scrollIntoViewIfNeeded();
      await page.screenshot({ path: path.join(shots, `${name}@${scale}x.png`) });
      if (scale === 1) faults.push(...(await findings(page)).map((f) => `${name}: ${f}`));
    });
    assert.deepEqual(stops, ['title', 'prompt', 'box', 'files', 'office', 'memo', 'chart',
                             'gig', 'report', 'diary', 'graph', 'help', 'saves', 'title-kept',
                             'summary', 'hall']);
    assert.deepEqual(faults, []);
  }));
}
