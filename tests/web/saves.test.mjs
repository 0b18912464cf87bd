// Saves kept in the browser's storage: a save outlasts the page and loads back.
import { test } from 'node:test';
import assert from 'node:assert/strict';
import { files, messageBox, newGame, office, openBrowser, openTitle, title } from './browser.mjs';

test('a save into slot 1 outlasts a reload of the page and loads back', async () => {
  const browser = await openBrowser();
  const { page } = browser;
  try {
    await openTitle(browser, 7);
    await newGame(page, 'Kept Band', 'Robin');
    await office(page).getByRole('button', { name: 'Save Game' }).click();
    const slots = files(page);
    // The top slot is chosen when the screen opens, and it is empty.
    const first = slots.getByRole('radio', { name: 'GAME SLOT 1', checked: true });
    assert.equal(await first.count(), 1);
    assert.equal(await first.locator('xpath=..').getAttribute('title'),
                 'Empty slot: no game saved here yet.');
    await slots.getByRole('button', { name: 'Save', exact: true }).click();
    await messageBox(page).getByText('Game Saved', { exact: true }).waitFor();
    await messageBox(page).getByRole('button', { name: 'OK' }).click();
    assert.equal(await files(page).isVisible(), false);

    // A new page, a new game: only the browser's storage holds the save now.
    await page.reload();
    await title(page).getByRole('button', { name: 'LOAD GAME' }).click();
    const kept = files(page).getByRole('radio', { name: 'Kept Band' });
    assert.ok(await kept.isChecked(), 'slot 1 holds the band');
    assert.equal(await kept.locator('xpath=..').getAttribute('title'),
                 'Kept Band, 01/09/2001, £ 3000');
    assert.equal(await files(page).getByRole('button', { name: 'Save', exact: true }).count(), 0,
                 'no saving from the title screen');
    await files(page).getByRole('button', { name: 'Load' }).click();
    await messageBox(page).getByText('Game Loaded', { exact: true }).waitFor();
    await messageBox(page).getByRole('button', { name: 'OK' }).click();
    await office(page).getByText("Robin's Office", { exact: true }).waitFor();
    await office(page).getByText('£ 3000', { exact: true }).waitFor();
    assert.deepEqual(browser.failures, []);
  } finally {
    await browser.done();
  }
});
