// The memo that ends the game: a band that has spent its last pound on holidays can't pay its
// wages, the staff say so, and once that memo is read the page says the game has ended and
// offers to start again, with the same seed.
import { test } from 'node:test';
import assert from 'node:assert/strict';
import {
  answerBoxes, button, hireBand, memo, newGame, office, openBrowser, openTitle,
  press, title, value,
} from './browser.mjs';

test('the memo of the wages that cannot be paid ends the game', async () => {
  const browser = await openBrowser();
  const { page } = browser;
  try {
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
    await button(sheet, 'OK').click();
    await page.getByRole('heading', { name: 'The game has ended.' }).waitFor();
    assert.equal(await office(page).count(), 0);
    assert.equal(await page.getByRole('button', { name: 'Diary' }).isVisible(), false);
    await page.getByRole('button', { name: 'Start again' }).click();
    await button(title(page), 'NEW GAME').waitFor();
    assert.match(page.url(), /\?seed=17$/);
    assert.deepEqual(browser.failures, []);
  } finally {
    await browser.done();
  }
});
