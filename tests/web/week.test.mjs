// Weeks played from the page: memos hold the office, and ?seed=N plays as `--seed N` does
// (a whole career against the driver's transcript: career.test.mjs).
import { test } from 'node:test';
import assert from 'node:assert/strict';
import {
  button, hireBand, memo, messageBox, newGame, nextWeek, office, inBrowser, openTitle, press,
  readMemos, step, value,
} from './browser.mjs';

const SEED = 20010901;

test('a memo holds the office until it is read, and is said as it comes', () => inBrowser({}, async (page, browser) => {
  await openTitle(browser, SEED);
  await newGame(page);
  await hireBand(page);
  // Practising every week, the band's first memo comes within a few weeks.
  for (let week = 0; week < 8 && !(await memo(page).isVisible()); ++week) {
    await press(page, button(office(page), 'Next Week'));
    while (await messageBox(page).isVisible())
      await step(page, () => button(messageBox(page), 'Yes').click());
  }
  const sheet = memo(page);
  assert.ok(await sheet.isVisible(), 'a memo has come');
  const from = await value(sheet, 'From');
  const text = await value(sheet, 'Message');
  // Announced to a screen reader as the desktop announces it.
  await page.getByText(`Message from ${from}. ${text}`).waitFor();
  assert.equal(await page.locator('#announce').getAttribute('aria-live'), 'assertive');
  // In front, with the keys on its OK, laid over the office.
  assert.equal(await page.evaluate(() => document.activeElement.textContent), 'OK');
  const [over, under] = await Promise.all([sheet.boundingBox(), office(page).boundingBox()]);
  assert.ok(over.x > under.x && over.x + over.width < under.x + under.width, 'over the office');

  const desk = office(page);
  const date = await value(desk, 'Date');
  assert.ok(await desk.evaluate((e) => e.inert), 'the office takes no clicks');
  await button(desk, 'Next Week').click({ force: true, timeout: 2000 }).catch(() => {});
  await page.keyboard.press('n');
  assert.equal(await messageBox(page).isVisible(), false, 'no week was played');
  // The windows beside the office wait too.
  assert.equal(await page.getByRole('button', { name: 'Diary' }).getAttribute('aria-disabled'),
               'true');

  await readMemos(page);
  assert.equal(await value(desk, 'Date'), date, 'the date has not moved');
  assert.equal(await desk.evaluate((e) => e.inert), false, 'the office is free again');
  await press(page, button(desk, 'Next Week'));
  assert.ok(await messageBox(page).getByText('Do you want the band to practise?').isVisible());
}));

test('the same seed draws the same applicant', () => inBrowser({}, async (page, browser) => {
  const applicant = async () => {
    await openTitle(browser, SEED);
    await newGame(page);
    return value(office(page), 'Applicant');
  };
  const first = await applicant();
  const second = await applicant();
  assert.match(first, /wants to join the band/);
  assert.equal(second, first);
  // A full band is asked once whether to practise.
  await hireBand(page);
  const { boxes } = await nextWeek(page, 'No');
  assert.deepEqual(boxes, ['Do you want the band to practise?']);
}));
