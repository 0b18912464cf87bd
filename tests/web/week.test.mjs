// Weeks played from the page: Next Week waits in the rules' boxes, memos hold the office, and
// ?seed=N plays as `--seed N` does: the same game as the script driver's for the same clicks.
import { test } from 'node:test';
import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import { existsSync } from 'node:fs';
import path from 'node:path';
import { fileURLToPath } from 'node:url';
import { memo, messageBox, newGame, office, openBrowser, openTitle } from './browser.mjs';

const SEED = 20010901;
const here = path.dirname(fileURLToPath(import.meta.url));
const driver = process.env.TOURVANE_SCRIPT ||
               path.join(here, '..', '..', 'build', 'bin', 'tourvane-script');

/// Hires the applicant on show until the band is full.
async function hireBand(page) {
  for (let hired = 0; hired < 4; ++hired)
    await office(page).getByRole('button', { name: 'HIRE' }).click();
}

/// Next Week, answering each box with the button `answer` (or OK), or with a key; returns
/// the boxes' texts.
async function nextWeek(page, { answer = 'OK', key } = {}) {
  await office(page).getByRole('button', { name: 'Next Week' }).click();
  const boxes = [];
  for (const box = messageBox(page); await box.isVisible();) {
    boxes.push(await box.locator('.box-text').textContent());
    if (key) {
      await page.keyboard.press(key);
      continue;
    }
    const wanted = box.getByRole('button', { name: answer, exact: true });
    await ((await wanted.count()) ? wanted : box.getByRole('button', { name: 'OK' })).click();
  }
  return boxes;
}

async function caption(page, control) {
  return office(page).locator(`[data-control=${control}]`).textContent();
}

test('Next Week with a seed asks, waits, and moves the date on a week as the driver does',
     async (t) => {
  const browser = await openBrowser();
  const { page } = browser;
  try {
    await openTitle(browser, SEED);
    await newGame(page, 'The Testers', 'Sam');
    await hireBand(page);
    // Yes is the practice question's default: Enter practises, and the band grows tired.
    assert.deepEqual(await nextWeek(page, { key: 'Enter' }), ['Do you want the band to practise?']);
    await office(page).getByText('08/09/2001', { exact: true }).waitFor();
    // Escape answers No: the tired band is not asked whether to practise anyway.
    assert.deepEqual(await nextWeek(page, { key: 'Escape' }), ['Do you want the band to practise?']);
    await office(page).getByText('15/09/2001', { exact: true }).waitFor();
    const web = {
      cash: await caption(page, 'txtcash'),
      members: await office(page).getByRole('option').allTextContents(),
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

test('a memo holds the office until it is read', async () => {
  const browser = await openBrowser();
  const { page } = browser;
  try {
    await openTitle(browser, SEED);
    await newGame(page);
    await hireBand(page);
    // Practising every week, the band's first memo comes within a few weeks.
    for (let week = 0; week < 8 && !(await memo(page).isVisible()); ++week)
      await nextWeek(page, { answer: 'Yes' });
    assert.ok(await memo(page).isVisible(), 'a memo has come');
    const date = await caption(page, 'txtdate');

    const next = office(page).getByRole('button', { name: 'Next Week' });
    assert.ok(await office(page).evaluate((e) => e.inert), 'the office takes no clicks');
    await next.click({ force: true, timeout: 2000 }).catch(() => {});
    assert.equal(await messageBox(page).isVisible(), false, 'no week was played');

    await memo(page).getByRole('button', { name: 'OK' }).click();
    while (await memo(page).isVisible())
      await memo(page).getByRole('button', { name: 'OK' }).click();
    assert.equal(await caption(page, 'txtdate'), date, 'the date has not moved');
    assert.equal(await office(page).evaluate((e) => e.inert), false, 'the office is free again');
    await next.click();
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
      return caption(page, 'txtapplicant');
    };
    const first = await applicant();
    const second = await applicant();
    assert.match(first, /wants to join the band/);
    assert.equal(second, first);
  } finally {
    await browser.done();
  }
});
