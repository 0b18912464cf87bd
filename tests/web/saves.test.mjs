// Saves kept in the browser's storage: a save outlasts the page and loads back with its diary
// and week graph; a slot goes out as the desktop's files and comes back into another; a
// damaged or foreign upload, or a write the storage refuses, changes nothing.
import { test } from 'node:test';
import assert from 'node:assert/strict';
import { readFile } from 'node:fs/promises';
import path from 'node:path';
import {
  answerBoxes, button, diary, files, graph, hireBand, messageBox, newGame, nextWeek, office,
  inBrowser, openTitle, press, saves, siteDir, title, value,
} from './browser.mjs';

const SAVE_BYTES = 759 * 128;

/// Saves the game in the office into a slot (1 to 4) through the files screen.
async function saveInSlot(page, slot) {
  await press(page, button(office(page), 'Save Game'));
  const screen = files(page);
  await press(page, screen.getByRole('radio', { name: `Slot ${slot},` }));
  await press(page, button(screen, 'Save'));
  return answerBoxes(page);
}

/// Loads a slot (1 to 4) from the files screen on show.
async function loadSlot(page, slot) {
  await press(page, files(page).getByRole('radio', { name: `Slot ${slot},` }));
  await press(page, button(files(page), 'Load'));
  return answerBoxes(page);
}

/// The diary's count line and the graph's read-out of the latest week, each opened and closed
/// with its key from the office.
async function lookBack(page) {
  await office(page).getByRole('button', { name: 'Next Week' }).focus();
  await page.keyboard.press('d');
  const count = await diary(page).getByRole('status').textContent();
  const entries = await diary(page).getByRole('row').count();
  await page.keyboard.press('Escape');
  await page.keyboard.press('g');
  const week = await graph(page).getByRole('slider').getAttribute('aria-valuetext');
  await page.keyboard.press('Escape');
  return { count, entries, week };
}

/// The slot's line in the saves panel: what it holds.
async function holds(page, slot) {
  return saves(page).getByRole('listitem').filter({ hasText: `Slot ${slot}` })
      .locator('.holds').textContent();
}

test('a save outlasts a reload of the page and loads back with its diary and graph',
     () => inBrowser({}, async (page, browser) => {
  await openTitle(browser, 7);
  await newGame(page, 'Kept Band', 'Robin');
  await hireBand(page);
  await nextWeek(page, 'No');
  await nextWeek(page, 'No');
  const desk = office(page);
  const played = { date: await value(desk, 'Date'), cash: await value(desk, 'Cash') };
  const before = await lookBack(page);

  await press(page, button(desk, 'Save Game'));
  // The top slot is chosen when the screen opens, and it is empty; the saves stand beside.
  const slots = files(page);
  const first = slots.getByRole('radio', { name: 'Slot 1, empty' });
  assert.ok(await first.isChecked());
  assert.ok(await saves(page).isVisible(), 'the saves open beside the save screen');
  assert.match(await saves(page).textContent(), /Clearing the browser's data for this site deletes them/);
  await press(page, button(slots, 'Save'));
  assert.deepEqual(await answerBoxes(page), ['Game Saved']);
  assert.equal(await files(page).count(), 0);
  assert.equal(await saves(page).count(), 0, 'and close with it');

  // A new page, a new game: only the browser's storage holds the save now.
  await page.reload();
  await button(title(page), 'LOAD GAME').click();
  const kept = files(page).getByRole('radio',
                                      { name: `Slot 1, Kept Band, ${played.date}, ${played.cash}` });
  assert.ok(await kept.isChecked(), 'slot 1 holds the band');
  assert.equal(await button(files(page), 'Save').count(), 0, 'no saving from the title screen');
  assert.deepEqual(await loadSlot(page, 1), ['Game Loaded']);
  assert.equal(await value(office(page), 'Office'), "Robin's Office");
  assert.equal(await value(office(page), 'Date'), played.date);
  assert.equal(await value(office(page), 'Cash'), played.cash);

  // The diary has the career's entries back, and the box of the load; the graph its weeks.
  const after = await lookBack(page);
  assert.match(before.count, /^\d+ messages$/);
  assert.equal(after.entries, before.entries + 1);
  assert.equal(after.week, before.week.replace(/^Week 2 of 2, ending/, 'Game loaded,'));
}));

test('a slot downloads as the desktop files and uploads into another slot', () => inBrowser({}, async (page, browser) => {
  await openTitle(browser, 11);
  await newGame(page, 'Travelling Band', 'Ada');
  await hireBand(page);
  await nextWeek(page, 'No');
  const saved = await lookBack(page);
  await saveInSlot(page, 2);

  // From the office's bar, reachable by the keyboard too.
  await page.getByRole('button', { name: 'Saves', exact: true }).focus();
  await page.keyboard.press('Enter');
  const panel = saves(page);
  const empty = button(panel, 'Download slot 1');
  assert.equal(await empty.getAttribute('aria-disabled'), 'true', 'an empty slot has nothing');
  const taken = [];
  page.on('download', (d) => taken.push(d));
  await button(panel, 'Download slot 2').click();
  for (let wait = 0; wait < 50 && taken.length < 2; ++wait) await page.waitForTimeout(100);
  const got = {};
  for (const d of taken) got[d.suggestedFilename()] = await readFile(await d.path());
  assert.deepEqual(Object.keys(got).sort(), ['tvsave1.tvh', 'tvsave1.tvs']);
  assert.equal(got['tvsave1.tvs'].length, SAVE_BYTES);
  assert.equal(got['tvsave1.tvh'].subarray(0, 6).toString(), 'TVHIST');

  // Both files into slot 4, the names the desktop gives them regardless.
  const chooser = page.waitForEvent('filechooser');
  await button(panel, 'Upload into slot 4').click();
  await (await chooser).setFiles([
    { name: 'tvsave1.tvs', mimeType: 'application/octet-stream', buffer: got['tvsave1.tvs'] },
    { name: 'tvsave1.tvh', mimeType: 'application/octet-stream', buffer: got['tvsave1.tvh'] },
  ]);
  const said = panel.getByRole('status');
  await said.getByText('Slot 4 now holds Travelling Band').waitFor();
  assert.match(await said.textContent(), /with its diary and week graph\.$/);
  assert.equal(await holds(page, 4), await holds(page, 2));

  // Loaded, slot 4 is the same career with its diary.
  await nextWeek(page, 'No');  // this game moves on, so that the load shows
  await press(page, button(office(page), 'Save Game'));
  assert.deepEqual(await loadSlot(page, 4), ['Game Loaded']);
  const loaded = await lookBack(page);
  assert.equal(loaded.entries, saved.entries + 1, 'the saved diary is back, and the load');
  assert.match(loaded.week, /^Game loaded, 08\/09\/2001/);
}));

test('a damaged, foreign or mismatched upload is refused and changes nothing', () => inBrowser({}, async (page, browser) => {
  await openTitle(browser, 5);
  await newGame(page, 'Careful Band', 'Bo');
  await saveInSlot(page, 1);
  const desk = office(page);
  const game = { date: await value(desk, 'Date'), cash: await value(desk, 'Cash') };
  await page.getByRole('button', { name: 'Saves', exact: true }).click();
  const panel = saves(page);
  const slot1 = await holds(page, 1);
  const upload = async (slot, picked) => {
    const chooser = page.waitForEvent('filechooser');
    await button(panel, `Upload into slot ${slot}`).click();
    await (await chooser).setFiles(picked.map(([name, buffer]) => ({
      name, mimeType: 'application/octet-stream', buffer })));
    await page.waitForFunction(() => document.querySelector('.side-saves .message').textContent);
    const text = await panel.getByRole('status').textContent();
    await page.evaluate(() => { document.querySelector('.side-saves .message').textContent = ''; });
    return text;
  };
  const picture = await readFile(path.join(siteDir, 'pictures', 'icon-32.png'));
  assert.match(await upload(1, [['icon.png', picture]]),
               /^icon\.png is not a Tourvane save: a save has exactly 97152 bytes, and this file has \d+\. Nothing was changed: slot 1 is as it was\.$/);
  const damaged = Buffer.alloc(SAVE_BYTES);
  damaged[0] = 200;
  assert.match(await upload(1, [['tvsave0.tvs', damaged]]),
               /^tvsave0\.tvs is damaged: the game cannot load it\./);
  assert.match(await upload(2, [['stray.tvh', Buffer.from('TVHIST\x1a\x01 not much else')]]),
               /^stray\.tvh is a history, and slot 2 holds no save for it to join/);
  assert.match(await upload(3, [['a', picture], ['b', picture], ['c', picture]]),
               /^Choose a save file \(\.tvs\) and, if you have it, its history \(\.tvh\): one file or two\./);
  assert.equal(await holds(page, 1), slot1);
  assert.equal(await holds(page, 2), 'Empty slot: no game saved here yet.');
  assert.equal(await value(desk, 'Date'), game.date);
  assert.equal(await value(desk, 'Cash'), game.cash);
}));

test('a save the browser\'s storage refuses says so and keeps the old save', () => inBrowser({}, async (page, browser) => {
  await openTitle(browser, 9);
  await newGame(page, 'First Band', 'Cy');
  await saveInSlot(page, 1);
  const old = await value(office(page), 'Date');
  await hireBand(page);
  await nextWeek(page, 'No');
  // The storage fills up.
  await page.evaluate(() => {
    IDBObjectStore.prototype.put = () => {
      throw new DOMException('The storage is full', 'QuotaExceededError');
    };
  });
  const boxes = await saveInSlot(page, 1);
  assert.equal(boxes.length, 1);
  assert.match(boxes[0], /^The game could not be saved in slot 1 \(tvsave0\.tvs\): this browser's storage did not take it \(.*The storage is full.*\)\.$/);
  // The files screen stays up, and still offers the old save.
  assert.equal(await files(page).getByRole('radio', { name: `Slot 1, First Band, ${old}, £ 3000` })
                   .count(), 1);

  await page.reload();
  await button(title(page), 'LOAD GAME').click();
  assert.deepEqual(await loadSlot(page, 1), ['Game Loaded']);
  assert.equal(await value(office(page), 'Date'), old, 'the old save is the one kept');
  assert.equal(await messageBox(page).count(), 0);
}));
