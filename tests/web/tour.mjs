// A tour of every screen and panel of the page, stopping at each for a test to look at it: the
// title screen, a box, the files, the office, a memo, the chart, the diary, the week graph,
// the help, the saves, a gig's booking and its report, the title offering the career kept on
// quitting, the summary of the career at its end and the hall of fame. A seeded game gets there: a small
// promotion, a full band and a song started every week until three are done.

import {
  answerBoxes, answerInput, button, chart, diary, files, gig, graph, help, hireBand, inputBox,
  memo, messageBox, office, openTitle, panel, press, readMemos, report, saves, step, title,
} from './browser.mjs';

export const TOUR_SEED = 4242;

/// A click, with every box it raises answered (OK, or as `answer` says) and its memos read.
async function act(page, locator, answer) {
  await press(page, locator);
  await answerBoxes(page, answer);
  await readMemos(page);
}

/// Plays the tour in `browser`, calling `visit(name, panel)` at each stop with what is shown.
export async function tour(browser, visit) {
  const { page } = browser;
  await openTitle(browser, TOUR_SEED);
  await visit('title', title(page));
  await button(title(page), 'NEW GAME').click();
  await inputBox(page, 'NEW BAND').waitFor();
  await visit('prompt', inputBox(page, 'NEW BAND'));
  await answerInput(page, 'NEW BAND', '');
  await visit('box', messageBox(page));
  await answerBoxes(page);

  await press(page, button(title(page), 'LOAD GAME'));
  await visit('files', files(page));
  await press(page, button(files(page), 'BACK'));

  await button(title(page), 'NEW GAME').click();
  await answerInput(page, 'NEW BAND', 'The Long Haul');
  await answerInput(page, 'PLAYER NAME', 'Morgan');
  await press(page, office(page).getByRole('radio', { name: 'Small £100' }));
  await hireBand(page);
  await visit('office', office(page));

  let memoSeen = false;
  let gigPlayed = false;
  for (let week = 0; week < 40 && !gigPlayed; ++week) {
    const desk = office(page);
    await press(page, button(desk, 'Record Song'));
    await answerBoxes(page, () => 'Yes');
    if (!memoSeen && await memo(page).isVisible()) {
      memoSeen = true;
      await visit('memo', memo(page));
    }
    await readMemos(page);
    const songs = await desk.getByRole('listbox', { name: 'Track list' }).getByRole('option')
        .count();
    if (songs >= 3 && await button(desk, 'Play Gig').getAttribute('aria-disabled') !== 'true')
      gigPlayed = await bookAndPlay(page, visit);
    await act(page, button(office(page), 'Next Week'), (t) => (/practise/.test(t) ? 'No' : 'OK'));
    if (week === 2) {
      await press(page, button(office(page), 'Music Chart'));
      await visit('chart', chart(page));
      await act(page, button(chart(page), 'OK'));
    }
  }

  await button(office(page), 'Next Week').focus();
  await page.keyboard.press('d');
  await visit('diary', diary(page));
  await page.keyboard.press('Escape');
  await page.keyboard.press('g');
  await visit('graph', graph(page));
  await page.keyboard.press('Escape');
  await page.keyboard.press('F1');
  await visit('help', help(page));
  await page.keyboard.press('Escape');
  await press(page, button(office(page), 'Save Game'));
  await visit('saves', saves(page));
  await press(page, button(files(page), 'BACK'));

  // Quit: the career is kept, offered on the next start and carried on with, and played to
  // its end (holidays spend the cash, the small promotion the rest); then the hall holds it.
  await page.keyboard.press('Control+Q');
  await answerBoxes(page, () => 'Yes');
  await page.getByRole('button', { name: 'Start again' }).click();
  await button(title(page), 'Carry on').waitFor();
  await visit('title-kept', title(page));
  await act(page, button(title(page), 'Carry on'));
  for (let trip = 0; trip < 12; ++trip) {
    await press(page, button(office(page), 'Band Holiday'));
    const asked = await answerBoxes(page, () => 'Yes');
    await readMemos(page);
    if (!asked.length) break;  // no money left for one
  }
  const career = panel(page, 'Career');
  for (let week = 0; week < 10; ++week) {
    await press(page, button(office(page), 'Next Week'));
    await answerBoxes(page, () => 'No');
    if (await memo(page).getByText(/out of a job/).count()) break;  // the memo that ends it
    await readMemos(page);
  }
  await visit('summary', career);
  await button(memo(page), 'OK').click();
  await page.getByRole('button', { name: 'Start again' }).click();
  await button(title(page), 'NEW GAME').waitFor();
  await title(page).press('H');
  await visit('hall', panel(page, 'Hall of Fame'));
}

/// Books the first open venue that takes the band, stopping at the booking and the report;
/// false when none does.
async function bookAndPlay(page, visit) {
  await act(page, button(office(page), 'Play Gig'));
  const booking = gig(page);
  const venues = booking.getByRole('radio');
  for (let i = 0; i < await venues.count(); ++i) {
    if (await venues.nth(i).getAttribute('aria-disabled') === 'true') continue;
    await act(page, venues.nth(i));
    await act(page, button(booking, 'APPLY'));
    const songs = booking.getByRole('combobox', { name: 'Songs' });
    if (await songs.getAttribute('aria-disabled') === 'true') continue;
    for (const row of [0, 1, 2]) await step(page, () => songs.selectOption({ index: row }));
    await visit('gig', booking);
    await press(page, button(booking, 'PLAY GIG'));
    await answerBoxes(page);
    await visit('report', report(page));
    await act(page, button(report(page), 'OK'));
    return true;
  }
  await act(page, button(booking, 'BACK'));
  return false;
}
