// The page from the keyboard alone, with the keys of the game's key table: a new game, hiring,
// a week with its question and memos, the diary, the week graph, the help and the quit key;
// the browser's own keys kept where the game uses them, and no letter key firing while the
// player types.
import { test } from 'node:test';
import assert from 'node:assert/strict';
import {
  diary, files, graph, help, inputBox, memo, messageBox, office, inBrowser, openTitle, step,
  title, value,
} from './browser.mjs';

/// The name of what has the keys: its accessible label, else its text.
const focused = (page) => page.evaluate(() => {
  const e = document.activeElement;
  return e.getAttribute('aria-label') || e.textContent.trim();
});

/// Presses Tab until `name` has the keys (at most `most` times).
async function tabTo(page, name, most = 40) {
  for (let i = 0; i < most && await focused(page) !== name; ++i) await page.keyboard.press('Tab');
  assert.equal(await focused(page), name);
}

/// A key that clicks, waited on until the page is drawn again or a box asks.
const key = (page, name) => step(page, () => page.keyboard.press(name));

test('the keyboard alone starts a game, hires a band and plays a week', () => inBrowser({}, async (page, browser) => {
  await openTitle(browser, 31);
  assert.equal(await focused(page), 'NEW GAME');
  await page.keyboard.press('Enter');
  await inputBox(page, 'NEW BAND').getByRole('textbox').waitFor();
  await page.keyboard.type('Keys Only');
  await key(page, 'Enter');
  await page.keyboard.type('Kim');
  await key(page, 'Enter');
  await office(page).waitFor();
  assert.equal(await focused(page), 'Next Week');

  const desk = office(page);
  await tabTo(page, 'HIRE');
  for (let i = 0; i < 4; ++i) await key(page, 'Enter');
  assert.equal(await desk.getByRole('listbox', { name: 'Band members' }).getByRole('option')
                   .count(), 4);
  // The list picks its rows with the arrow keys, and shows the one picked.
  await tabTo(page, 'Band members');
  await key(page, 'ArrowDown');
  assert.notEqual(await value(desk, 'Age'), '...');

  // N plays the week from anywhere in the office; Enter answers the box's default, Yes, and
  // the tired band is asked again, where Escape answers No; Escape reads each memo.
  await key(page, 'n');
  assert.equal(await messageBox(page).locator('.box-text').textContent(),
               'Do you want the band to practise?');
  await key(page, 'Enter');
  while (await memo(page).isVisible()) await key(page, 'Escape');
  assert.equal(await value(desk, 'Date'), '08/09/2001');
  await key(page, 'n');
  await key(page, 'Enter');
  assert.equal(await messageBox(page).locator('.box-text').textContent(),
               'The band is tired, make them practise anyway?');
  await key(page, 'Escape');
  while (await memo(page).isVisible()) await key(page, 'Escape');
  assert.equal(await value(desk, 'Date'), '15/09/2001');

  // D: the diary takes the keys; typing in its search fires no letter of the office.
  await page.keyboard.press('d');
  await diary(page).waitFor();
  await page.keyboard.press('Alt+S');
  assert.equal(await focused(page), 'Search');
  await page.keyboard.type('tired');
  await diary(page).getByRole('status').getByText(/^1 of \d+ messages$/).waitFor();
  assert.equal(await diary(page).getByRole('searchbox').inputValue(), 'tired');
  assert.equal(await memo(page).count() + await messageBox(page).count(), 0,
               'R (Record Song) and D did nothing: the letters went into the search');
  await page.keyboard.press('Control+F');  // the diary's own, not the browser's find
  assert.equal(await focused(page), 'Search');
  await page.keyboard.press('Escape');
  assert.equal(await diary(page).count(), 0);
  assert.equal(await page.evaluate(() => !!document.activeElement.closest('#screen-main')), true,
               'the keys are back in the office');

  // G: the graph is a slider whose value is the picked week in words.
  await page.keyboard.press('g');
  const slider = graph(page).getByRole('slider', { name: 'Week graph' });
  await slider.waitFor();
  assert.match(await slider.getAttribute('aria-valuetext'), /^Week 2 of 2, ending 15\/09\/2001/);
  await page.keyboard.press('Home');
  assert.match(await slider.getAttribute('aria-valuetext'), /^Start, 01\/09\/2001: cash £ 3000/);
  await page.keyboard.press('End');
  assert.equal(await slider.getAttribute('aria-valuenow'), '2');
  await page.keyboard.press('Escape');

  // F1: the help, kept from the browser's own.
  await page.keyboard.press('F1');
  await help(page).getByRole('tab', { name: 'How to play' }).waitFor();
  await page.keyboard.press('ArrowRight');
  assert.equal(await help(page).getByRole('tab', { name: 'Keys' }).getAttribute('aria-selected'),
               'true');
  assert.ok(await help(page).getByRole('cell', { name: 'Open the diary of memos and messages' })
                .isVisible());
  await page.keyboard.press('Escape');

  // Ctrl+Q asks first from the office, and No keeps the game.
  await key(page, 'Control+q');
  assert.equal(await messageBox(page).locator('.box-text').textContent(),
               'Are you sure you want to quit?');
  await key(page, 'Escape');
  assert.ok(await office(page).isVisible());
  // V opens the files, whose first slot takes the keys; Escape is BACK.
  await key(page, 'v');
  assert.equal(await focused(page), 'Slot 1, empty');
  await key(page, 'Escape');
  assert.equal(await files(page).count(), 0);
}));

test('on the title screen L opens the files, and Ctrl+Q ends the game at once', () => inBrowser({}, async (page, browser) => {
  await openTitle(browser);
  await key(page, 'l');
  await files(page).waitFor();
  await key(page, 'Escape');
  assert.equal(await files(page).count(), 0);
  await page.keyboard.press('d');  // the office's keys do nothing here
  assert.equal(await diary(page).count(), 0);
  await key(page, 'Control+q');
  await page.getByRole('heading', { name: 'The game has ended.' }).waitFor();
  assert.equal(await title(page).count(), 0);
  assert.equal(await focused(page), 'Start again');
}));
