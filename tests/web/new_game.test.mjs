// NEW GAME through the page's boxes, which the rules wait on.
import { test } from 'node:test';
import assert from 'node:assert/strict';
import {
  answerInput, files, inputBox, messageBox, newGame, office, openBrowser, openTitle, title,
} from './browser.mjs';

test('both names typed into the boxes open the office with the starting cash', async () => {
  const browser = await openBrowser();
  const { page } = browser;
  try {
    await openTitle(browser);
    await newGame(page, 'Grey & "Co" <band>', 'Zoë');
    const desk = office(page);
    await desk.getByText('£ 3000', { exact: true }).waitFor();
    await desk.getByText('01/09/2001', { exact: true }).waitFor();
    // The names come back through the page as they were typed.
    await desk.getByText("Zoë's Office", { exact: true }).waitFor();
    assert.equal(await title(page).isVisible(), false, 'the title screen has gone');
    for (const name of ['Next Week', 'Save Game', 'Play Gig'])
      assert.ok(await desk.getByRole('button', { name }).isEnabled(), name);
    // Grey until the first week: shown by the picture drawn with grey buttons.
    const chart = desk.getByRole('button', { name: 'Music Chart' });
    assert.equal(await chart.isEnabled(), false);
    assert.match(await chart.evaluate((e) => getComputedStyle(e).backgroundImage),
                 /office-grey/);
    assert.deepEqual(browser.failures, []);
  } finally {
    await browser.done();
  }
});

test('an empty band name gives the critical box and the title screen stays', async () => {
  const browser = await openBrowser();
  const { page } = browser;
  try {
    await openTitle(browser);
    await title(page).getByRole('button', { name: 'NEW GAME' }).click();
    const ask = inputBox(page, 'NEW BAND');
    await ask.getByText('Please enter the name of the Band:').waitFor();

    // While the box is open nothing else takes a click.
    await title(page).getByRole('button', { name: 'LOAD GAME' })
        .click({ force: true, timeout: 2000 }).catch(() => {});
    assert.ok(await ask.isVisible(), 'the box is still waiting');

    await answerInput(page, 'NEW BAND', '');
    const box = messageBox(page);
    await box.getByText('Invalid Band Name.', { exact: true }).waitFor();
    assert.ok(await box.locator('.box-critical').isVisible(), 'the box bears the critical mark');
    await box.getByRole('button', { name: 'OK' }).click();

    assert.ok(await title(page).getByRole('button', { name: 'NEW GAME' }).isVisible());
    assert.equal(await office(page).count(), 0, 'no office');
    assert.equal(await files(page).count(), 0, 'the click on LOAD GAME was not let in');
  } finally {
    await browser.done();
  }
});

test('Escape cancels the name box, which counts as an empty name', async () => {
  const browser = await openBrowser();
  const { page } = browser;
  try {
    await openTitle(browser);
    await title(page).getByRole('button', { name: 'NEW GAME' }).click();
    await inputBox(page, 'NEW BAND').getByRole('textbox').fill('Never Sent');
    await page.keyboard.press('Escape');
    await messageBox(page).getByText('Invalid Band Name.').waitFor();
    await page.keyboard.press('Enter');  // OK, the box's default
    assert.equal(await messageBox(page).isVisible(), false);
    assert.ok(await title(page).isVisible());
  } finally {
    await browser.done();
  }
});
