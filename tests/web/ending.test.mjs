// The memo that ends the game: a band that has spent its last pound on holidays can't pay its
// wages, the staff say so, the career's summary opens beside the memo, and once that memo is
// read the page says the game has ended and offers to start again, with the same seed; the
// hall of fame then holds the career. And a career quit with Ctrl+Q is kept and carried on.
import { test } from 'node:test';
import assert from 'node:assert/strict';
import {
  answerBoxes, button, hireBand, memo, newGame, office, inBrowser, openTitle, panel,
  press, title, value,
} from './browser.mjs';

test('the memo of the wages that cannot be paid ends the game', () => inBrowser({}, async (page, browser) => {
  await openTitle(browser, 17);
  await newGame(page, 'Spent Band', 'Jo');
  await hireBand(page);
  for (let trip = 0; trip < 10; ++trip) {
    await press(page, button(office(page), 'Band Holiday'));
    assert.deepEqual(await answerBoxes(page, () => 'Yes'), ['Go ahead and book a 2 week holiday?']);
  }
  assert.equal(await value(office(page), 'Cash'), '£ 0');
  assert.equal(await value(office(page), 'Date'), '19/01/2002');  // twenty weeks away

  await press(page, button(office(page), 'Next Week'));
  await answerBoxes(page, () => 'No');
  const sheet = memo(page);
  assert.equal(await value(sheet, 'Message'),
               "Bad new, Boss. We're out of cash, and that means we're out of a job!");
  const career = panel(page, 'Career');
  await career.waitFor();
  const band = career.getByRole('row', { name: /^Band/ });
  assert.equal(await band.innerText(), 'Band\tSpent Band');
  assert.equal(await career.getByRole('row', { name: /^Weeks lasted/ }).innerText(),
               'Weeks lasted\t21');
  await button(sheet, 'OK').click();
  await page.getByRole('heading', { name: 'The game has ended.' }).waitFor();
  assert.equal(await office(page).count(), 0);
  assert.equal(await page.getByRole('button', { name: 'Diary' }).isVisible(), false);
  assert.equal(await page.getByRole('row', { name: /^Band/ }).innerText(), 'Band\tSpent Band');
  await page.getByRole('button', { name: 'Start again' }).click();
  await button(title(page), 'NEW GAME').waitFor();
  assert.match(page.url(), /\?seed=17$/);

  await title(page).press('H');
  const hall = panel(page, 'Hall of Fame');
  await hall.waitFor();
  assert.match(await hall.getByRole('list', { name: 'Careers' }).innerText(),
               /^Spent Band \(Jo\), 21 weeks$/);
  await button(hall, 'Open the diary of this career').click();
  const told = panel(page, 'Diary');
  await told.waitFor();
  assert.match(await told.innerText(), /out of a job/);
}));

test('a career quit with Ctrl+Q is offered on the next start and carried on', () => inBrowser({}, async (page, browser) => {
  await openTitle(browser, 5);
  assert.equal(await title(page).getByRole('button', { name: 'Carry on' }).count(), 0);
  await newGame(page, 'Keepers', 'Ro');
  await hireBand(page);
  await press(page, button(office(page), 'Band Holiday'));
  await answerBoxes(page, () => 'Yes');
  const cash = await value(office(page), 'Cash');
  await page.keyboard.press('Control+Q');
  assert.deepEqual(await answerBoxes(page, () => 'Yes'), ['Are you sure you want to quit?']);
  await page.getByRole('heading', { name: 'The game has ended.' }).waitFor();
  await page.getByRole('button', { name: 'Start again' }).click();
  await button(title(page), 'NEW GAME').waitFor();
  assert.match(await title(page).innerText(), new RegExp(`Keepers, 15/09/2001, ${cash}`));
  await title(page).press('C');
  assert.deepEqual(await answerBoxes(page), ['Game Loaded']);
  await office(page).waitFor();
  assert.equal(await value(office(page), 'Cash'), cash);
  assert.equal(await value(office(page), 'Date'), '15/09/2001');
}));
