// NEW GAME through the page's boxes, which the rules wait on, and the office it opens: every
// control a real element with the name, key and hover text the presentation layer gives.
import { test } from 'node:test';
import assert from 'node:assert/strict';
import {
  answerInput, button, files, inputBox, messageBox, newGame, office, inBrowser, openTitle,
  title, value,
} from './browser.mjs';

test('both names typed into the boxes open the office, named, keyed and described', () => inBrowser({}, async (page, browser) => {
  await openTitle(browser);
  await button(title(page), 'NEW GAME').click();
  // The prompts carry their own titles, the one the game gives them.
  await inputBox(page, 'NEW BAND').getByText('Please enter the name of the Band:').waitFor();
  await answerInput(page, 'NEW BAND', 'Grey & "Co" <band>');
  await answerInput(page, 'PLAYER NAME', 'Zoë');
  const desk = office(page);
  await desk.waitFor();
  // The names come back through the page as they were typed; values under their own names.
  assert.equal(await value(desk, 'Cash'), '£ 3000');
  assert.equal(await value(desk, 'Date'), '01/09/2001');
  assert.equal(await value(desk, 'Office'), "Zoë's Office");
  assert.equal(await title(page).count(), 0, 'the title screen has gone');
  // The keys go to Next Week, the office's first control.
  assert.equal(await page.evaluate(() => document.activeElement.getAttribute('aria-label')),
               'Next Week');

  const next = button(desk, 'Next Week');
  assert.equal(await next.getAttribute('aria-keyshortcuts'), 'N');
  assert.equal(await button(desk, 'Save Game').getAttribute('aria-keyshortcuts'), 'V');
  // The cash tells the week's outgoings to a screen reader.
  assert.match(await desk.getByRole('group', { name: 'Cash' }).getAttribute('aria-describedby'),
               /about/);
  const cash = await page.evaluate(() => {
    const group = document.querySelector('[aria-label="Cash"]');
    return document.getElementById(group.getAttribute('aria-describedby')).textContent;
  });
  assert.equal(cash, '£ 3000. Nothing goes out this week: nobody is hired and no promotion ' +
                     'is bought.');

  // Grey until the first week, it stays where the keys can reach it and says why.
  const chart = button(desk, 'Music Chart');
  assert.equal(await chart.getAttribute('aria-disabled'), 'true');
  await chart.focus();
  assert.ok(await chart.evaluate((e) => e === document.activeElement),
            'focusable, for a screen reader to hear why');
  assert.match(await chart.evaluate((e) => getComputedStyle(e).backgroundImage), /office-grey/);
  const why = await chart.evaluate(
    (e) => document.getElementById(e.getAttribute('aria-describedby')).textContent);
  assert.match(why, /^The chart comes out once Next Week plays a week to its end/);
  // A hover says the same on memo paper, dark ink framed in red.
  await chart.hover();
  const tip = page.getByRole('tooltip');
  await tip.waitFor();
  assert.equal(await tip.textContent(), why);
  const look = await tip.evaluate((e) => {
    const s = getComputedStyle(e);
    return [s.color, s.backgroundColor, s.borderTopColor];
  });
  assert.deepEqual(look, ['rgb(43, 38, 32)', 'rgb(246, 240, 220)', 'rgb(138, 42, 34)']);
  // Its click goes nowhere.
  await chart.click({ force: true });
  assert.equal(await page.getByRole('region', { name: 'Music Chart' }).count(), 0);
}));

test('an empty band name gives the critical box and the title screen stays', () => inBrowser({}, async (page, browser) => {
  await openTitle(browser);
  await button(title(page), 'NEW GAME').click();
  const ask = inputBox(page, 'NEW BAND');
  await ask.getByText('Please enter the name of the Band:').waitFor();

  // While the box is open nothing else takes a click or a key.
  await button(title(page), 'LOAD GAME').click({ force: true, timeout: 2000 }).catch(() => {});
  await page.keyboard.press('l');
  assert.ok(await ask.isVisible(), 'the box is still waiting');

  await answerInput(page, 'NEW BAND', '');
  const box = messageBox(page);
  await box.getByText('Invalid Band Name.', { exact: true }).waitFor();
  assert.ok(await box.locator('.box-critical').isVisible(), 'the box bears the critical mark');
  assert.equal(await box.locator('.box-title').textContent(), 'Tourvane');
  await button(box, 'OK').click();

  assert.ok(await button(title(page), 'NEW GAME').isVisible());
  assert.equal(await office(page).count(), 0, 'no office');
  assert.equal(await files(page).count(), 0, 'the click on LOAD GAME was not let in');
}));

test('Escape cancels the name box, which counts as an empty name', () => inBrowser({}, async (page, browser) => {
  await openTitle(browser);
  await button(title(page), 'NEW GAME').click();
  await inputBox(page, 'NEW BAND').getByRole('textbox').fill('Never Sent');
  await page.keyboard.press('Escape');
  await messageBox(page).getByText('Invalid Band Name.').waitFor();
  await page.keyboard.press('Enter');  // OK, the box's default
  assert.equal(await messageBox(page).isVisible(), false);
  assert.ok(await title(page).isVisible());
  // A band name accepted and the player's refused: the title screen stays too.
  await button(title(page), 'NEW GAME').click();
  await answerInput(page, 'NEW BAND', 'Band Kept');
  await answerInput(page, 'PLAYER NAME', '');
  await messageBox(page).getByText('Invalid Player Name.').waitFor();
  await page.keyboard.press('Enter');
  assert.ok(await title(page).isVisible());
  await newGame(page, 'Band Kept', 'Sam');
  assert.equal(await value(office(page), 'Office'), "Sam's Office");
}));
