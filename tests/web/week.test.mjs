// Weeks played from the page: Next Week waits in the rules' boxes, memos hold the office, and
// ?seed=N plays as `--seed N` does: the same game as the script driver's for the same clicks.
import { test } from 'node:test';
import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import { existsSync } from 'node:fs';
import {
  button, driver, hireBand, memo, messageBox, newGame, nextWeek, office, openBrowser, openTitle,
  press, readMemos, step, value,
} from './browser.mjs';

const SEED = 20010901;

test('Next Week with a seed asks, waits, and moves the date on a week as the driver does',
     async (t) => {
  const browser = await openBrowser();
  const { page } = browser;
  try {
    await openTitle(browser, SEED);
    await newGame(page, 'The Testers', 'Sam');
    await hireBand(page);
    const desk = office(page);
    // Yes is the practice question's default: Enter practises, and the band grows tired.
    await press(page, button(desk, 'Next Week'));
    const box = messageBox(page);
    assert.equal(await box.locator('.box-text').textContent(), 'Do you want the band to practise?');
    await step(page, () => page.keyboard.press('Enter'));
    assert.equal(await value(desk, 'Date'), '08/09/2001');
    // Escape answers No: the tired band is not asked whether to practise anyway.
    await press(page, button(desk, 'Next Week'));
    await step(page, () => page.keyboard.press('Escape'));
    assert.equal(await box.isVisible(), false);
    assert.equal(await value(desk, 'Date'), '15/09/2001');
    const web = {
      cash: await value(desk, 'Cash'),
      members: await desk.getByRole('listbox', { name: 'Band members' })
          .getByRole('option').allTextContents(),
    };
    assert.notEqual(web.cash, '£ 3000', 'the wages are paid');

    if (!existsSync(driver)) {
      t.diagnostic(`no ${driver}: the weeks are not compared with the driver's`);
      return;
    }
    const script = ['input "The Testers"', 'input "Sam"', 'click Form1.New',
                    ...Array(4).fill('click main.hire'), 'answer yes', 'click main.command6',
                    'answer no', 'click main.command6', 'control main.txtcash',
                    'control main.members'].join('\n');
    const transcript = execFileSync(driver, ['--seed', String(SEED)], { input: script })
        .toString();
    assert.equal(transcript.match(/^msgbox .*$/gm).join('\n'),
                 'msgbox yesno "Do you want the band to practise?" -> yes\n' +
                 'msgbox yesno "Do you want the band to practise?" -> no');
    const cash = JSON.parse(transcript.match(/control main\.txtcash .*caption=(".*")/)[1]);
    const members = JSON.parse(transcript.match(/control main\.members .*rows=(\[.*\])/)[1]);
    assert.deepEqual(web, { cash, members });
    assert.deepEqual(browser.failures, []);
  } finally {
    await browser.done();
  }
});

test('a memo holds the office until it is read, and is said as it comes', async () => {
  const browser = await openBrowser();
  const { page } = browser;
  try {
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
  } finally {
    await browser.done();
  }
});

test('the same seed draws the same applicant', async () => {
  const browser = await openBrowser();
  const { page } = browser;
  try {
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
  } finally {
    await browser.done();
  }
});
