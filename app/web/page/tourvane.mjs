// The page of Tourvane: starts the game compiled to WebAssembly, draws every shown screen of
// its form model as a panel of real page elements over the screen's picture, forwards each
// click to the game and draws the model again. The boxes the rules wait on are modal dialogs.
// The page holds no rule: what a click does, and every text, comes from the game.

import createTourvane from './tourvane.js';

/// The picture under each screen (drawn at build time by the game's own drawing code) and the
/// name the panel goes by.
const SCREENS = {
  Form1: { picture: 'title', title: 'Tourvane' },
  main: { picture: 'office', title: 'Office' },
  messageForm: { picture: 'memo', title: 'Message' },
  gig: { picture: 'gig', title: 'Play a Gig' },
  thenewspaper: { picture: 'newspaper', title: 'Gig Report' },
  savefrm: { picture: 'files', title: 'Save and Load' },
  Chart: { picture: 'chart', title: 'Music Chart' },
};

/// The screen whose labels take their text colour from the game.
const MODEL_COLOURS = new Set(['Chart']);

/// Labels at least this tall wrap their text over several lines, as on the desktop.
const WRAP_HEIGHT = 30;

/// The answers of a box, as the game counts them.
const ANSWER = { ok: 0, yes: 1, no: 2 };

const desk = document.getElementById('desk');
const statusLine = document.getElementById('status');
let game = null;
let busy = false;     // a click is running, maybe waiting in a box
let ended = false;
const panels = new Map();  // form name -> { element, controls: Map(key -> view), shown, ... }

function pictureSet(name) {
  return `pictures/${name}.png 1x, pictures/${name}@2x.png 2x`;
}

function controlKey(c) {
  return c.index >= 0 ? `${c.name}(${c.index})` : c.name;
}

function place(element, rect) {
  element.style.left = `${rect.left}px`;
  element.style.top = `${rect.top}px`;
  element.style.width = `${rect.width}px`;
  element.style.height = `${rect.height}px`;
}

/// What a hover tells: the whole caption where it is shown cut short, else the game's tool tip.
function hover(element, c, cut) {
  const tip = cut ? c.caption : c.tooltip;
  if (tip) element.title = tip;
  else element.removeAttribute('title');
}

function hex(colour) {
  return `#${colour.toString(16).padStart(6, '0')}`;
}

// ---- Talking to the game --------------------------------------------------------------------

/// Forwards a click or double click; nothing else gets in until it has returned.
async function send(action, form, control, index) {
  if (busy || ended || !game) return;
  busy = true;
  document.body.classList.add('busy');
  try {
    await game.ccall(action, 'number', ['string', 'string', 'number'], [form, control, index],
                     { async: true });
  } catch (error) {
    stopped(error);
    return;
  } finally {
    busy = false;
    document.body.classList.remove('busy');
  }
  render();
}

function click(form, c, index = c.index) {
  send('tourvane_click', form, c.name, index);
}

function dblclick(form, c, row) {
  send('tourvane_dblclick', form, c.name, row);
}

function stopped(error) {
  ended = true;
  desk.hidden = true;
  statusLine.textContent = `Tourvane stopped: ${error && error.message ? error.message : error}`;
  console.error(error);
}

// ---- Controls -------------------------------------------------------------------------------

function makeLabel(form, c) {
  const element = document.createElement('div');
  element.className = 'control label';
  if (c.rect.height >= WRAP_HEIGHT) element.classList.add('wrap');
  const text = document.createElement('span');
  element.append(text);
  return {
    element,
    update(c) {
      if (text.textContent !== c.caption) text.textContent = c.caption;
      // A caption cut short with "…" is whole a hover away.
      hover(element, c,
            text.scrollWidth > text.clientWidth || text.scrollHeight > text.clientHeight + 1);
    },
  };
}

function makeButton(form, c) {
  const element = document.createElement('button');
  element.type = 'button';
  element.className = c.kind === 'Button' ? 'control button' : 'control click';
  element.addEventListener('click', () => click(form, c));
  return {
    element,
    update(c) {
      if (element.textContent !== c.caption) element.textContent = c.caption;
      hover(element, c, element.scrollWidth > element.clientWidth);
    },
  };
}

function makeHotSpot(form, c) {
  const element = document.createElement('button');
  element.type = 'button';
  element.className = 'control hotspot';
  element.addEventListener('click', () => click(form, c));
  // Grey, it shows its part of the picture drawn with every button grey.
  element.style.backgroundPosition = `${-c.rect.left}px ${-c.rect.top}px`;
  return {
    element,
    update(c) {
      element.setAttribute('aria-label', c.tooltip);
      element.title = c.tooltip;
    },
  };
}

/// The options of one control array stand in one radio group.
function makeOption(form, c, panel) {
  let group = panel.groups.get(c.name);
  if (!group) {
    group = document.createElement('div');
    group.className = 'radiogroup';
    group.setAttribute('role', 'radiogroup');
    group.setAttribute('aria-label', c.name);
    panel.groups.set(c.name, group);
  }
  const element = document.createElement('label');
  element.className = 'control option';
  const input = document.createElement('input');
  input.type = 'radio';
  input.name = `${form}.${c.name}`;
  const text = document.createElement('span');
  element.append(input, text);
  input.addEventListener('click', () => click(form, c));
  return {
    element,
    group,
    control: input,
    update(c) {
      if (text.textContent !== c.caption) text.textContent = c.caption;
      hover(element, c, text.scrollWidth > text.clientWidth);
    },
    always(c) {
      input.checked = c.value;  // the game decides what is chosen
    },
  };
}

function makeListBox(form, c) {
  const element = document.createElement('div');
  element.className = 'control listbox';
  element.setAttribute('role', 'listbox');
  element.setAttribute('aria-label', c.name);
  element.tabIndex = 0;
  const id = `${form}-${c.name}`;
  element.id = id;
  let model = c;
  const rowOf = (event) => {
    const row = event.target.closest('[role=option]');
    return row ? Number(row.dataset.row) : -1;
  };
  element.addEventListener('click', (event) => {
    // The second click of a double click is the double click's, as on the desktop.
    if (event.detail > 1) return;
    const row = rowOf(event);
    if (row >= 0) click(form, model, row);
  });
  element.addEventListener('dblclick', (event) => dblclick(form, model, rowOf(event)));
  element.addEventListener('keydown', (event) => {
    const rows = model.rows.length;
    const here = model.selected;
    let to = -1;
    switch (event.key) {
      case 'ArrowUp': to = here < 0 ? 0 : here - 1; break;
      case 'ArrowDown': to = here < 0 ? 0 : here + 1; break;
      case 'Home': to = 0; break;
      case 'End': to = rows - 1; break;
      case 'Enter':
        event.preventDefault();
        if (here >= 0) dblclick(form, model, here);
        return;
      default: return;
    }
    event.preventDefault();
    if (rows > 0 && to >= 0 && to < rows && to !== here) click(form, model, to);
  });
  return {
    element,
    update(c) {
      model = c;
      element.replaceChildren(...c.rows.map((text, row) => {
        const option = document.createElement('div');
        option.setAttribute('role', 'option');
        option.id = `${id}-${row}`;
        option.dataset.row = row;
        option.textContent = text;
        option.title = text;
        return option;
      }));
    },
    always(c) {
      model = c;
      let chosen = null;
      element.querySelectorAll('[role=option]').forEach((option, row) => {
        const selected = row === c.selected;
        option.setAttribute('aria-selected', selected ? 'true' : 'false');
        if (selected) chosen = option;
      });
      if (chosen) {
        element.setAttribute('aria-activedescendant', chosen.id);
        chosen.scrollIntoView({ block: 'nearest' });
      } else {
        element.removeAttribute('aria-activedescendant');
      }
    },
  };
}

function makeComboBox(form, c) {
  const element = document.createElement('select');
  element.className = 'control combo';
  element.setAttribute('aria-label', c.name);
  let model = c;
  element.addEventListener('change', () => click(form, model, element.selectedIndex));
  return {
    element,
    update(c) {
      model = c;
      element.replaceChildren(...c.rows.map((text) => {
        const option = document.createElement('option');
        option.textContent = text;
        return option;
      }));
    },
    always(c) {
      model = c;
      element.selectedIndex = c.selected < c.rows.length ? c.selected : -1;
    },
  };
}

const MAKERS = {
  Label: makeLabel,
  ClickLabel: makeButton,
  Button: makeButton,
  HotSpot: makeHotSpot,
  Option: makeOption,
  ListBox: makeListBox,
  ComboBox: makeComboBox,
};

/// Copies one control of the model into its element, touching only what changed.
function refresh(form, view, c) {
  const last = view.last;
  const same = last && last.caption === c.caption && last.tooltip === c.tooltip &&
      last.enabled === c.enabled && last.visible === c.visible && last.color === c.color &&
      last.rule_colour === c.rule_colour && JSON.stringify(last.rows) === JSON.stringify(c.rows);
  if (!same) {
    const { element } = view;
    element.hidden = !c.visible;
    const target = view.control || element;
    if ('disabled' in target) target.disabled = !c.enabled;
    element.classList.toggle('disabled', !c.enabled);
    if (c.kind === 'ListBox') element.setAttribute('aria-disabled', c.enabled ? 'false' : 'true');
    if (c.rule_colour || (MODEL_COLOURS.has(form) && c.kind === 'Label'))
      element.style.color = hex(c.color);
    view.update(c);
    view.last = c;
  }
  if (view.always) view.always(c);
}

// ---- Screens --------------------------------------------------------------------------------

function makePanel(f) {
  const screen = SCREENS[f.name] || { picture: null, title: f.name };
  const element = document.createElement('section');
  element.className = 'screen';
  element.id = `screen-${f.name}`;
  element.dataset.form = f.name;
  element.setAttribute('aria-label', screen.title);
  element.style.width = `${f.width}px`;
  element.style.height = `${f.height}px`;
  if (screen.picture) {
    const picture = document.createElement('img');
    picture.className = 'backdrop';
    picture.alt = '';
    picture.src = `pictures/${screen.picture}.png`;
    picture.srcset = pictureSet(screen.picture);
    picture.width = f.width;
    picture.height = f.height;
    picture.draggable = false;
    element.append(picture);
  }
  const panel = { element, views: new Map(), groups: new Map(), shown: false, forward: 0 };
  for (const c of f.controls) {
    const view = MAKERS[c.kind](f.name, c, panel);
    view.element.dataset.control = c.name;
    if (c.index >= 0) view.element.dataset.index = c.index;
    place(view.element, c.rect);
    (view.group || element).append(view.element);
    if (view.group && !view.group.parentNode) element.append(view.group);
    panel.views.set(controlKey(c), view);
  }
  panel.forward = f.forward_requests;
  desk.append(element);
  // The panels stand in the order of the game's screens.
  const order = Object.keys(SCREENS);
  [...desk.children]
      .sort((a, b) => order.indexOf(a.dataset.form) - order.indexOf(b.dataset.form))
      .forEach((child) => desk.append(child));
  return panel;
}

/// Gives the keyboard to the first control of a screen that has just opened.
function focusFirst(panel) {
  const first = [...panel.element.querySelectorAll('button, input, select, [tabindex="0"]')]
      .find((e) => !e.disabled && !e.closest('[hidden]'));
  if (first) first.focus();
}

/// Draws the game's model: every loaded and visible screen, with its controls as they stand.
function render() {
  if (!game || ended) return;
  const state = JSON.parse(game.ccall('tourvane_state', 'string', [], []));
  if (state.ended) {
    ended = true;
    desk.hidden = true;
    statusLine.textContent = '';
    const end = document.getElementById('ended');
    end.hidden = false;
    document.getElementById('again').focus();
    return;
  }
  const opened = [];
  for (const f of state.forms) {
    const wanted = f.loaded && f.visible;
    let panel = panels.get(f.name);
    if (!panel && !wanted) continue;
    if (!panel) {
      panel = makePanel(f);
      panels.set(f.name, panel);
    }
    panel.element.hidden = !wanted;
    if (!wanted) {
      panel.shown = false;
      continue;
    }
    for (const c of f.controls) refresh(f.name, panel.views.get(controlKey(c)), c);
    // A screen that takes no clicks (the office behind a memo) takes no keys either.
    panel.element.inert = !f.enabled;
    panel.element.classList.toggle('held', !f.enabled);
    if (!panel.shown) opened.push(panel);
    else if (f.forward_requests !== panel.forward) panel.element.scrollIntoView({ block: 'nearest' });
    panel.forward = f.forward_requests;
    panel.shown = true;
  }
  const front = opened.filter((p) => !p.element.inert).pop();
  if (front) focusFirst(front);
  else if (!document.activeElement || document.activeElement === document.body ||
           document.activeElement.closest('[hidden], [inert]')) {
    const open = [...panels.values()].filter((p) => p.shown && !p.element.inert).pop();
    if (open) focusFirst(open);
  }
}

// ---- Boxes ----------------------------------------------------------------------------------

/// A box titled "Tourvane" that waits for OK, or Yes or No: the game's MsgBox.
function msgbox(text, yesNo, critical) {
  const box = document.getElementById('msgbox');
  box.querySelector('.box-text').textContent = text;
  box.querySelector('.box-critical').hidden = !critical;
  const buttons = box.querySelector('.box-buttons');
  const answers = yesNo ? [['Yes', ANSWER.yes], ['No', ANSWER.no]] : [['OK', ANSWER.ok]];
  const escape = yesNo ? ANSWER.no : ANSWER.ok;
  return new Promise((resolve) => {
    const done = (answer) => {
      box.removeEventListener('cancel', onCancel);
      box.close();
      resolve(answer);
    };
    const onCancel = (event) => {
      event.preventDefault();
      done(escape);
    };
    buttons.replaceChildren(...answers.map(([caption, answer]) => {
      const button = document.createElement('button');
      button.type = 'button';
      button.textContent = caption;
      button.addEventListener('click', () => done(answer));
      return button;
    }));
    box.addEventListener('cancel', onCancel);
    box.showModal();
    buttons.firstChild.focus();  // the default answer: OK or Yes
  });
}

/// A box with a prompt and a line to type: the game's InputBox. Cancel gives no text.
function inputbox(prompt, title) {
  const box = document.getElementById('inputbox');
  const form = box.querySelector('form');
  const field = box.querySelector('input');
  const cancel = box.querySelector('button[value=cancel]');
  box.querySelector('.box-title').textContent = title;
  box.querySelector('.box-text').textContent = prompt;
  field.value = '';
  return new Promise((resolve) => {
    const done = (text) => {
      form.removeEventListener('submit', onSubmit);
      cancel.removeEventListener('click', onCancel);
      box.removeEventListener('cancel', onCancel);
      box.close();
      resolve(text);
    };
    const onSubmit = (event) => {
      event.preventDefault();
      done(field.value);
    };
    const onCancel = (event) => {
      event.preventDefault();
      done('');
    };
    form.addEventListener('submit', onSubmit);
    cancel.addEventListener('click', onCancel);
    box.addEventListener('cancel', onCancel);
    box.showModal();
    field.focus();
  });
}

// ---- Start ----------------------------------------------------------------------------------

async function start() {
  document.getElementById('again').addEventListener('click', () => location.reload());
  try {
    game = await createTourvane({ tourvaneMsgBox: msgbox, tourvaneInputBox: inputbox });
  } catch (error) {
    statusLine.textContent = `Tourvane could not be loaded: ${error && error.message || error}`;
    return;
  }
  const seed = new URLSearchParams(location.search).get('seed') || '';
  const started = await game.ccall('tourvane_start', 'number', ['string'], [seed],
                                   { async: true });
  statusLine.textContent = game.ccall('tourvane_notice', 'string', [], []);
  if (started === 2) {
    game = null;  // a seed that is no whole number: the game does not start
    return;
  }
  render();
}

start();
