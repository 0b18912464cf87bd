// A seeded career of more than twenty weeks played through the page, with the same clicks
// given to `tourvane-script --seed N`: the page must show what the driver prints (the date and
// cash after each week, every box and memo, the gig report and the chart's places).
import { test } from 'node:test';
import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import { existsSync } from 'node:fs';
import {
  button, chart, driver, gig, messageBox, newGame, office, openBrowser, openTitle, press,
  readMemos, report, step, value,
} from './browser.mjs';

const SEED = 4242;
const WEEKS = 24;
/// A JSON string as the driver writes one.
const STRING = String.raw`"(?:[^"\\]|\\.)*"`;

/// The page's side of the career: each click made, with the boxes it raised and how they were
/// answered, and what the page showed, as the driver would print it.
class Career {
  constructor(page) {
    this.page = page;
    this.script = [];  // the driver's commands for the same clicks
    this.boxes = [];   // "text -> answer"
    this.memos = [];   // [from, text]
    this.shown = [];   // "control FORM.CONTROL caption" lines, in the driver's order
  }

  /// A click as the driver names it, made on the page by `act`; its boxes answered as
  /// `answer(text)` says (OK by default), its memos read.
  async click(command, act, answer = () => 'OK') {
    await step(this.page, act);
    const answers = [];
    const box = messageBox(this.page);
    while (await box.isVisible()) {
      const text = await box.locator('.box-text').textContent();
      const given = answer(text);
      answers.push(given.toLowerCase());
      this.boxes.push(`${text} -> ${given.toLowerCase()}`);
      await step(this.page, () => button(box, given).click());
    }
    if (answers.length) this.script.push(`answer ${answers.join(' ')}`);
    this.script.push(command);
    this.memos.push(...await readMemos(this.page));
  }

  /// What a label shows, noted beside the driver's `control` command for it.
  async show(form, control, where, name) {
    const caption = await value(where, name);
    this.script.push(`control ${form}.${control.replace(/\((\d+)\)/, ' $1')}`);
    this.shown.push(`control ${form}.${control} caption=${JSON.stringify(caption)}`);
  }
}

/// Books a gig at the first open venue and plays the first three songs; false when no venue
/// takes the band, which then goes back to the office.
async function playGig(career) {
  const { page } = career;
  await career.click('click main.command4', () => button(office(page), 'Play Gig').click());
  const booking = gig(page);
  const venues = booking.getByRole('radio');
  let venue = -1;
  for (let i = 0; i < await venues.count() && venue < 0; ++i)
    if (await venues.nth(i).getAttribute('aria-disabled') !== 'true') venue = i;
  if (venue < 0) {
    await career.click('click gig.Command2', () => button(booking, 'BACK').click());
    return false;
  }
  const index = await venues.nth(venue).evaluate((e) => e.closest('[data-index]').dataset.index);
  await career.click(`click gig.location ${index}`, () => venues.nth(venue).click());
  await career.click('click gig.command1', () => button(booking, 'APPLY').click());
  const songs = booking.getByRole('combobox', { name: 'Songs' });
  if (await songs.getAttribute('aria-disabled') === 'true') {
    await career.click('click gig.Command2', () => button(booking, 'BACK').click());
    return false;
  }
  for (const row of [0, 1, 2])
    await career.click(`click gig.Combo1 ${row}`, () => songs.selectOption({ index: row }));
  await career.click('click gig.command4', () => button(booking, 'PLAY GIG').click());
  const paper = report(page);
  for (const [control, name] of [['txtnews', 'Review'], ['txtattend', 'Attendance'],
                                 ['txtprofit', 'Profit']])
    await career.show('thenewspaper', control, paper, name);
  await career.click('click thenewspaper.Label2', () => button(paper, 'OK').click());
  return true;
}

/// Opens the chart, notes its ten places and closes it.
async function readChart(career) {
  const { page } = career;
  await career.click('click main.secret', () => button(office(page), 'Music Chart').click());
  for (let place = 1; place <= 10; ++place)
    await career.show('Chart', `track(${place})`, chart(page), `Place ${place}`);
  await career.click('click Chart.command1', () => button(chart(page), 'OK').click());
}

test(`a seeded career of ${WEEKS} weeks shows what the driver prints for the same clicks`,
     { timeout: 280000 }, async (t) => {
  const browser = await openBrowser();
  const { page } = browser;
  const career = new Career(page);
  try {
    await openTitle(browser, SEED);
    career.script.push('input "The Long Haul"', 'input "Morgan"', 'click Form1.New');
    await newGame(page, 'The Long Haul', 'Morgan');
    await career.click('click main.promote 1',
                       () => office(page).getByRole('radio', { name: 'Small £100' }).click());
    let gigs = 0;
    for (let week = 1; week <= WEEKS; ++week) {
      const desk = office(page);
      for (let hired = 0; hired < 4 &&
           await button(desk, 'HIRE').getAttribute('aria-disabled') !== 'true'; ++hired)
        await career.click('click main.hire', () => button(desk, 'HIRE').click());
      await career.click('click main.command1', () => button(desk, 'Record Song').click(),
                         () => 'Yes');
      const songs = await desk.getByRole('listbox', { name: 'Track list' }).getByRole('option')
          .count();
      if (!gigs && songs >= 3 && await button(desk, 'Play Gig').getAttribute('aria-disabled') !== 'true')
        gigs += await playGig(career) ? 1 : 0;
      await career.click('click main.command6', () => button(office(page), 'Next Week').click(),
                         (text) => (/practise/.test(text) ? 'No' : 'OK'));
      if (await page.getByRole('heading', { name: 'The game has ended.' }).isVisible()) break;
      await career.show('main', 'txtdate', office(page), 'Date');
      await career.show('main', 'txtcash', office(page), 'Cash');
      if (week % 8 === 0) await readChart(career);
    }
    assert.ok(career.shown.filter((l) => l.includes('txtdate')).length >= 20, 'twenty weeks');
    assert.ok(career.memos.length > 0, 'memos came');
    assert.ok(career.shown.some((l) => l.startsWith('control Chart.track')), 'the chart was read');
    t.diagnostic(`${career.script.length} commands, ${career.memos.length} memos, ` +
                 `${career.boxes.length} boxes, ${gigs} gig(s)`);
    assert.deepEqual(browser.failures, []);

    if (!existsSync(driver)) {
      t.diagnostic(`no ${driver}: the career is not compared with the driver's`);
      return;
    }
    const transcript = execFileSync(driver, ['--seed', String(SEED)],
                                    { input: `${career.script.join('\n')}\n` }).toString();
    const lines = transcript.split('\n');
    assert.deepEqual(lines.filter((l) => l.startsWith('error')), []);
    // Every box with its answer, every memo, in order.
    assert.deepEqual(
      lines.filter((l) => l.startsWith('msgbox ')).map((l) => {
        const [, text, answer] = new RegExp(`^msgbox \\w+(?: critical)? (${STRING}) -> (\\w+)$`).exec(l);
        return `${JSON.parse(text)} -> ${answer}`;
      }), career.boxes);
    assert.deepEqual(
      lines.filter((l) => l.startsWith('memo ')).map((l) => {
        const [, from, text] = new RegExp(`^memo (${STRING}) (${STRING})$`).exec(l);
        return [JSON.parse(from), JSON.parse(text)];
      }),
      career.memos);
    // Each caption the page showed, as the driver's `control` prints it.
    assert.deepEqual(
      lines.filter((l) => l.startsWith('control ')).map((l) => {
        const [, head, caption] = new RegExp(`^(control \\S+) .*caption=(${STRING})`).exec(l);
        return `${head} caption=${caption}`;
      }), career.shown);
  } finally {
    await browser.done();
  }
});
