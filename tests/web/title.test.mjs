// The page loads, says so while the code comes, and shows the title screen; EXIT ends the game.
import { test } from 'node:test';
import assert from 'node:assert/strict';
import { inBrowser, openTitle, title } from './browser.mjs';

test('the page says it is loading until the game is ready, then shows the title screen',
     () => inBrowser({}, async (page, browser) => {
  // Hold the wasm back, to see the page as it is while the code is on its way.
  let release;
  const held = new Promise((resolve) => { release = resolve; });
  await page.route('**/tourvane.wasm', async (route) => {
    await held;
    await route.continue();
  });
  await page.goto(browser.site.url);
  await page.getByRole('status').getByText('Loading Tourvane…').waitFor();
  assert.equal(await title(page).count(), 0, 'no screen before the code has come');
  release();

  const screen = title(page);
  for (const name of ['NEW GAME', 'LOAD GAME', 'EXIT'])
    assert.ok(await screen.getByRole('button', { name, exact: true }).isEnabled(), name);
  assert.equal(await page.locator('#status').textContent(), '', 'nothing left to say');
  // The title's picture is the one drawn for it, at both densities.
  const picture = screen.locator('img.backdrop');
  // The keys go to NEW GAME, the screen's first control.
  assert.equal(await page.evaluate(() => document.activeElement.textContent), 'NEW GAME');
  assert.match(await picture.getAttribute('srcset'), /title\.png 1x, .*title@2x\.png 2x/);
  await picture.evaluate((img) => new Promise((resolve, reject) => {
    if (img.complete) (img.naturalWidth > 0 ? resolve : reject)();
    img.addEventListener('load', resolve);
    img.addEventListener('error', reject);
  }));
}));

test('at twice the pixels a page pixel the pictures come at twice the pixels', () => inBrowser({ scale: 2 }, async (page, browser) => {
  await openTitle(browser);
  await page.waitForFunction(() => {
    const img = document.querySelector('#screen-Form1 img.backdrop');
    return img && img.complete && img.naturalWidth > 0;
  });
  const picture = title(page).locator('img.backdrop');
  const shown = await picture.evaluate(async (img) => {
    const pixels = await createImageBitmap(await (await fetch(img.currentSrc)).blob());
    return { src: img.currentSrc.replace(/.*\//, ''), width: pixels.width,
             height: pixels.height, onPage: img.getBoundingClientRect().width };
  });
  assert.deepEqual(shown, { src: 'title@2x.png', width: 1272, height: 1000, onPage: 636 });
}));

test('EXIT ends the game and the page offers to start again', () => inBrowser({}, async (page, browser) => {
  await openTitle(browser);
  await title(page).getByRole('button', { name: 'EXIT' }).click();
  await page.getByRole('heading', { name: 'The game has ended.' }).waitFor();
  assert.equal(await title(page).isVisible(), false, 'no screen is left');
  await page.getByRole('button', { name: 'Start again' }).click();
  await title(page).getByRole('button', { name: 'NEW GAME' }).waitFor();
}));

test('a seed that is no whole number is refused and the game does not start', () => inBrowser({}, async (page, browser) => {
  await page.goto(`${browser.site.url}?seed=12x`);
  await page.getByRole('status').getByText('seed= needs a whole number').waitFor();
  assert.equal(await title(page).count(), 0);
}));
