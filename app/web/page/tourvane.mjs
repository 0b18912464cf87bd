// The page of Tourvane: starts the game compiled to WebAssembly, shows every screen it has
// open as a panel on the desk, forwards each click and key to it and draws it again. The
// diary, the week graph, the help and the saves open beside the office. The page holds no
// rule and no text of the game's: what a click does, and every word, comes from the game.

import { boxOpen, inputbox, msgbox, setBoxTitle } from './boxes.mjs';
import { HallPanel, SummaryPanel } from './career.mjs';
import { Desk } from './desk.mjs';
import { DiaryPanel } from './diary.mjs';
import { Game } from './game.mjs';
import { GraphPanel } from './graph.mjs';
import { HelpPanel } from './help.mjs';
import { KeyTable, keyName, typing } from './keys.mjs';
import { SavesPanel } from './saves.mjs';
import { Screen } from './screens.mjs';
import { hide as hideTip, setTip, startTips } from './tips.mjs';

const statusLine = document.getElementById('status');
const announcer = document.getElementById('announce');
const desk = new Desk(document.getElementById('desk'));

let game = null;
let words = null;
let keys = null;
let state = null;     // the game as last drawn
let ended = false;
let announced = '';   // the memo last announced
let summarised = false;  // the career that ended has its summary on show
let titleLines = null;   // the offer to carry on and the hall's key, over the title screen
const screens = new Map();  // form name -> Screen, built when first shown
const sides = {};           // the panels beside the office, by place, built when first opened
const makers = {};          // how each is built
const opens = {};           // the bar's buttons that open them, by place

/// Tells the world the page has been drawn again: the tests and the benchmark wait on it.
function drawn() {
  document.dispatchEvent(new CustomEvent('tourvane:drawn'));
}

// ---- Clicks ----------------------------------------------------------------------------------

/// Forwards a click or double click to the game; nothing else gets in until it has returned
/// (its boxes answered), and then the page is drawn again.
async function send(form, control, index = -1, double = false) {
  if (!game || game.busy || ended) return;
  hideTip();
  document.body.classList.add('busy');
  try {
    await game.click(form, control, index, double);
  } catch (error) {
    stopped(error);
    return;
  } finally {
    document.body.classList.remove('busy');
  }
  render();
}

/// What the quit key does anywhere: clicks the quit control the game names.
function quit() {
  if (state) send(state.quit.form, state.quit.control);
}

function stopped(error) {
  ended = true;
  desk.element.hidden = true;
  statusLine.textContent = `Tourvane stopped: ${error && error.message ? error.message : error}`;
  console.error(error);
}

// ---- Drawing ---------------------------------------------------------------------------------

/// Draws the game as it stands: its screens, which of them are open and in front, the memo's
/// announcement, and the panels beside the office.
function render() {
  if (!game || ended) return;
  const s = game.state();
  state = s;
  if (s.ended) {
    showEnded();
    return;
  }
  const open = new Set(s.screens.open);
  for (const form of s.forms) {
    let screen = screens.get(form.name);
    if (!screen && !open.has(form.name)) continue;
    if (!screen) {
      screen = new Screen(form, { send, closeName: words.close_button });
      screens.set(form.name, screen);
      if (form.name === 'messageForm') desk.setMemo(screen);
      if (form.name === 'Form1') titleLines = showTitleLines(screen);
    }
    if (open.has(form.name)) screen.update(form);
  }
  for (const name of s.screens.closed) desk.remove(screens.get(name));
  for (const name of s.screens.opened) {
    desk.add(screens.get(name));
    screens.get(name).fit();
  }
  desk.layMemo(screens.get('main'));

  // The save screen brings the saves beside it, and takes them away again.
  if (s.screens.opened.includes('savefrm') && !isOpen('saves')) {
    openSide(side('saves'), false);
    sides.saves.auto = true;
  } else if (s.screens.closed.includes('savefrm') && isOpen('saves') && sides.saves.auto) {
    closeSide(sides.saves, false);
  }

  const front = screens.get(s.screens.front);
  if (front) desk.front(front, s.screens.opened.includes(s.screens.front));
  else if (!document.activeElement || document.activeElement === document.body ||
           document.activeElement.closest('[hidden], [inert]'))
    desk.front(desk.latest());

  if (s.game_over && !summarised) summarise();
  announce(s.memo, s.memos);
  for (const panel of Object.values(sides)) if (panel.open) panel.refresh();
  showBar();
  drawn();
}

/// Says each memo as it comes up, as the desktop announces it.
function announce(memo, waiting) {
  if (!memo) {
    announced = '';
    return;
  }
  const said = `${memo.name}\n${memo.text}\n${waiting}`;
  if (said === announced) return;
  announced = said;
  announcer.textContent = '';
  // A fresh text in the live region is what a screen reader says.
  setTimeout(() => { announcer.textContent = `${memo.name}. ${memo.text}`; }, 50);
}

function showEnded() {
  ended = true;
  game.keep();  // the career is kept as the program ends: in the hall, or to carry on with
  for (const place of ['hall', 'hall-diary', 'hall-graph'])
    if (isOpen(place)) desk.remove(sides[place]);
  if (summarised && sides.summary) {
    // The story of the career stays in view on the ended page.
    document.getElementById('ended').append(sides.summary.content);
  }
  desk.element.hidden = true;
  document.getElementById('bar-buttons').hidden = true;
  statusLine.textContent = '';
  announcer.textContent = '';
  const end = document.getElementById('ended');
  end.hidden = false;
  document.getElementById('again').focus();
  drawn();
}

// ---- A career's story ---------------------------------------------------------------------------

/// The title screen's lines: the offer to carry on with the career the automatic save kept
/// (with its button, when it can be), and the hall of fame's key, as a button too.
function showTitleLines(screen) {
  const t = game.title();
  const lines = document.createElement('div');
  lines.className = 'title-lines';
  if (t.offer) {
    const offer = document.createElement('div');
    offer.className = 'offer';
    const text = document.createElement('p');
    text.textContent = t.offer;
    offer.append(text);
    if (t.ready) {
      const button = document.createElement('button');
      button.type = 'button';
      button.textContent = words.carry_on;
      button.setAttribute('aria-keyshortcuts', keys.shortcut('Form1', 'CarryOn'));
      button.setAttribute('aria-describedby', (text.id = 'offer-text'));
      button.addEventListener('click', carryOn);
      offer.append(button);
    }
    lines.append(offer);
  }
  const hint = document.createElement('button');
  hint.type = 'button';
  hint.className = 'hall-hint';
  hint.textContent = t.hint;
  hint.setAttribute('aria-keyshortcuts', keys.shortcut('Form1', 'OpenHall'));
  hint.addEventListener('click', () => openSide(side('hall')));
  lines.append(hint);
  screen.body.append(lines);
  return lines;
}

/// Carries on with the automatic save's career, as LOAD GAME does with a slot's.
async function carryOn() {
  if (!game || game.busy || ended) return;
  hideTip();
  await game.carryOn();
  render();
}

/// The memo that ends the game is up: the career goes into the hall, its summary beside it.
async function summarise() {
  summarised = true;
  const summary = await game.summary();
  if (!summary) return;
  const panel = side('summary');
  panel.show(summary);
  openSide(panel, false);
  desk.front(desk.memo);  // the memo keeps the keys: its OK ends the program
}

// ---- The panels beside the office --------------------------------------------------------------

/// Opens a panel beside what is on the desk, and gives it the keys unless `quietly`.
function openSide(panel, keys = true) {
  if (!panel.open) {
    panel.auto = false;
    desk.add(panel);
    panel.opened();
  }
  if (keys) desk.front(panel, true);
  showBar();
}

/// Closes a panel; the keys go back to the office, else to the latest panel open.
function closeSide(panel, keys = true) {
  const had = desk.frontPanel === panel || panel.element.contains(document.activeElement);
  desk.remove(panel);
  if (keys || had) {
    const office = screens.get('main');
    desk.front(office && office.open && !office.element.inert ? office : desk.latest());
  }
  showBar();
}

/// A panel beside the office by its place, built the first time it is wanted.
function side(place) {
  if (!sides[place]) {
    sides[place] = makers[place]();
    sides[place].onClose = (p) => closeSide(p);
  }
  return sides[place];
}

const isOpen = (place) => Boolean(sides[place] && sides[place].open);

/// The panels the office opens with its keys, and the saves, from anywhere; and the bar's
/// buttons that open them.
function buildSides() {
  const close = words.close_button;
  makers.diary = () => new DiaryPanel(game, words, close);
  makers.graph = () => new GraphPanel(game, words, close, keys, keyName);
  makers.help = () => new HelpPanel(game, words, close);
  makers.saves = () => new SavesPanel(game, words, close, () => render());
  makers.summary = () => new SummaryPanel(words, close);
  makers.hall = () => {
    const hall = new HallPanel(game, words, close, (place) => openSide(side(place)));
    hall.onPick = () => {
      for (const place of ['hall-diary', 'hall-graph']) if (isOpen(place)) sides[place].refresh();
    };
    return hall;
  };
  const career = game.career(() => sides.hall.picked);
  makers['hall-diary'] = () => new DiaryPanel(career, words, close, 'hall-diary');
  makers['hall-graph'] = () => new GraphPanel(career, words, close, keys, keyName, 'hall-graph');

  // The bar's buttons: the office's windows as its keys open them, and the saves.
  const bar = document.getElementById('bar-buttons');
  const made = [['saves', words.saves.title, null], ['diary', words.diary.title, 'OpenDiary'],
                ['graph', words.graph.title, 'OpenGraph'], ['help', words.help.title, 'OpenHelp']];
  for (const [place, title, action] of made) {
    const button = document.createElement('button');
    button.type = 'button';
    button.textContent = title;
    button.setAttribute('aria-pressed', 'false');
    if (action) {
      button.setAttribute('aria-keyshortcuts', keys.shortcut('main', action));
      const help = keys.help('main', action);
      setTip(button, () => `${help} (${keys.bound('main', [action])[0].keys.join(', ')})`);
    } else {
      setTip(button, () => words.saves.about);
    }
    button.addEventListener('click', () => {
      if (button.getAttribute('aria-disabled') === 'true') return;
      if (isOpen(place)) closeSide(sides[place]);
      else openSide(side(place));
    });
    opens[place] = button;
    bar.append(button);
  }
}

/// The bar as the game stands: the office's windows only while the office is up (and grey
/// while a memo holds it), the saves until the game ends.
function showBar() {
  const office = screens.get('main');
  const shown = Boolean(office && office.open);
  for (const [place, button] of Object.entries(opens)) {
    const officeOnly = place !== 'saves';
    button.hidden = officeOnly && !shown;
    const grey = officeOnly && state && !state.office_usable && !isOpen(place);
    if (grey) button.setAttribute('aria-disabled', 'true');
    else button.removeAttribute('aria-disabled');
    button.setAttribute('aria-pressed', isOpen(place) ? 'true' : 'false');
  }
}

// ---- Keys ------------------------------------------------------------------------------------

/// The keys of the key table, where the panel holding the keys stands, as the desktop binds
/// them to its windows: a screen's own keys click its controls, the office's open the panels
/// beside it, a panel's close it or move within it, and the quit key works everywhere.
function onKey(event) {
  const key = keyName(event);
  // The browser's own keys that the page keeps for the game.
  if (key === 'F1' || key === 'Control+Q') event.preventDefault();
  if (!game || ended || game.busy || boxOpen() || typing(event)) return;
  const panel = desk.current();
  let row = null;
  if (panel instanceof Screen) {
    row = keys.find(panel.place, key, ['Click']);
    if (row) clickKey(panel, row.control);
    else if (panel.place === 'Form1') {
      row = keys.find('Form1', key, ['OpenHall', 'CarryOn']);
      if (row && row.action === 'OpenHall') openSide(side('hall'));
      else if (row && titleLines && titleLines.querySelector('.offer')) carryOn();
    } else if (panel.place === 'main') {
      row = keys.find('main', key, ['OpenDiary', 'OpenGraph', 'OpenHelp']);
      if (row && state.office_usable) {
        openSide(side({ OpenDiary: 'diary', OpenGraph: 'graph', OpenHelp: 'help' }[row.action]));
      }
    }
  } else if (panel) {
    row = keys.find(panel.keyPlace, key, ['Close', ...panel.actions]);
    if (row && row.action === 'Close') closeSide(panel);
    else if (row) panel.act(row);
  }
  if (!row) {
    row = keys.find('', key, ['Quit']);
    if (row) quit();
  }
  if (row) event.preventDefault();
}

/// A key's click goes through the control, so a grey or hidden one stays deaf as to the mouse.
function clickKey(screen, id) {
  const w = screen.widget(id);
  if (!w || !w.model.visible || !w.model.enabled || screen.element.inert) return;
  screen.click(id);
}

// ---- Start -----------------------------------------------------------------------------------

async function start() {
  startTips(document.getElementById('tip'));
  document.getElementById('again').addEventListener('click', () => location.reload());
  document.addEventListener('keydown', onKey);
  // A click on a screen held up by a memo brings the memo forward, as on the desktop.
  desk.element.addEventListener('pointerdown', (event) => {
    if (event.target !== desk.element) return;
    for (const screen of screens.values()) {
      const r = screen.element.getBoundingClientRect();
      if (screen.element.inert && event.clientX >= r.left && event.clientX <= r.right &&
          event.clientY >= r.top && event.clientY <= r.bottom)
        desk.front(desk.memo);
    }
  });
  performance.mark('tourvane:script');  // the marks time the start (bench/web.mjs)
  try {
    game = await Game.load({ msgbox, inputbox });
    performance.mark('tourvane:instantiated');
  } catch (error) {
    statusLine.textContent = `Tourvane could not be loaded: ${error && error.message || error}`;
    return;
  }
  words = game.words();
  keys = new KeyTable(game.keys());
  setBoxTitle(words.box_title);
  buildSides();
  const seed = new URLSearchParams(location.search).get('seed') || '';
  const started = await game.start(seed);
  performance.mark('tourvane:started');
  statusLine.textContent = game.notice();
  if (started === 2) {
    game = null;  // a seed that is no whole number: the game does not start
    return;
  }
  render();
  // Leaving the page keeps the running career, as quitting the desktop game does.
  document.addEventListener('visibilitychange', () => {
    if (document.visibilityState === 'hidden' && game && !ended && !game.busy) game.keep();
  });
}

start();
