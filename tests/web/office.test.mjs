// The office through the page's elements: hiring, a member's details, a click the rules refuse
// with their box, the chart standing beside the office with its long names whole a hover away,
// and the office's close asking whether to quit.
import { test } from 'node:test';
import assert from 'node:assert/strict';
import {
  answerBoxes, button, chart, messageBox, newGame, nextWeek, office, inBrowser, openTitle,
  press, readMemos, step, title, value,
} from './browser.mjs';

test('hiring, a member picked, a refused lesson and the chart beside the office', () => inBrowser({}, async (page, browser) => {
  await openTitle(browser, 3);
  await newGame(page, 'Desk Band', 'Lee');
  const desk = office(page);

  // A lesson with nobody picked: the rules say so in their box, and nothing else happens.
  await press(page, button(desk, 'Music Lessons'));
  const box = messageBox(page);
  assert.equal(await box.locator('.box-text').textContent(), 'Please select a band member');
  assert.equal(await box.locator('.box-critical').isVisible(), false);
  assert.deepEqual(await answerBoxes(page), ['Please select a band member']);
  assert.equal(await value(desk, 'Cash'), '£ 3000');

  // Hiring: each applicant joins the list and the next one is on show.
  const first = await value(desk, 'Applicant');
  await press(page, button(desk, 'HIRE'));
  assert.notEqual(await value(desk, 'Applicant'), first);
  await press(page, button(desk, 'HIRE'));
  const members = desk.getByRole('listbox', { name: 'Band members' });
  const names = await members.getByRole('option').allTextContents();
  assert.equal(names.length, 2);
  assert.equal(names[0], first.replace(/ wants to join the band.*/s, ''));

  // A member picked shows their details, and can be sacked.
  const sack = button(desk, 'SACK THIS MEMBER');
  assert.equal(await sack.getAttribute('aria-disabled'), 'true');
  await press(page, members.getByRole('option', { name: names[1] }));
  assert.equal(await members.getByRole('option', { name: names[1] }).getAttribute('aria-selected'),
               'true');
  assert.match(await value(desk, 'Age'), /^\d+$/);
  assert.match(await value(desk, 'Instrument'), /\w/);
  assert.equal(await sack.getAttribute('aria-disabled'), null);
  // A double click is a word on how they are getting on.
  await step(page, () => members.getByRole('option', { name: names[1] }).dblclick());
  const [[from, word]] = await readMemos(page);
  assert.ok(from && word.length > 0, 'a memo on the member');

  // After a week the chart comes out, and stands beside the office.
  await nextWeek(page, 'No');
  await press(page, button(desk, 'Music Chart'));
  const list = chart(page);
  const [left, right] = await Promise.all([desk.boundingBox(), list.boundingBox()]);
  assert.ok(right.x >= left.x + left.width, 'the chart is beside the office, not over it');
  assert.equal(await page.evaluate(() => document.activeElement.textContent), 'OK');
  // A place too long for its line ends in "…", and a hover tells it whole.
  const cut = await list.locator('[data-control=track]').evaluateAll((places) => {
    const p = places.find((e) => e.firstChild.scrollWidth > e.firstChild.clientWidth);
    return p ? { place: p.dataset.index, text: p.textContent } : null;
  });
  assert.ok(cut, 'some place is too long for its line');
  const place = list.getByRole('group', { name: `Place ${cut.place}`, exact: true });
  assert.equal(await place.evaluate((e) => getComputedStyle(e.firstChild).textOverflow),
               'ellipsis');
  await place.hover();
  const tip = page.getByRole('tooltip');
  await tip.waitFor();
  assert.equal(await tip.textContent(), cut.text);
  // Asked for again while it stands open, it comes to the front with the keys.
  await button(desk, 'Next Week').focus();
  assert.equal(await list.evaluate((e) => e.classList.contains('front')), false);
  await press(page, button(desk, 'Music Chart'));
  assert.equal(await list.evaluate((e) => e.classList.contains('front')), true);
  assert.equal(await page.evaluate(() => document.activeElement.closest('.panel').id),
               'screen-Chart');
  await press(page, button(list, 'OK'));
  assert.equal(await chart(page).count(), 0);
  assert.equal(await page.evaluate(() => !!document.activeElement.closest('#screen-main')), true);
}));

test('the office\'s close asks whether to quit, and Yes ends the game', () => inBrowser({}, async (page, browser) => {
  await openTitle(browser);
  await newGame(page);
  await press(page, button(office(page), 'Close'));
  assert.equal(await messageBox(page).locator('.box-text').textContent(),
               'Are you sure you want to quit?');
  await button(messageBox(page), 'No').click();
  await office(page).waitFor();
  await press(page, button(office(page), 'Quit'));
  await button(messageBox(page), 'Yes').click();
  await page.getByRole('heading', { name: 'The game has ended.' }).waitFor();
  assert.equal(await office(page).count(), 0);
  await page.getByRole('button', { name: 'Start again' }).click();
  await button(title(page), 'NEW GAME').waitFor();
}));
