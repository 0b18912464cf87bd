// The seven screens of the game as panels: each a fixed-size body over the picture drawn for
// it, with every control of the form model a real element (a button, a label, a radio button,
// a list box, a drop-down list, a transparent button over a drawn one) that carries the name,
// key, description and hover text the presentation layer gives. A screen holds no rule: it
// forwards each click and copies the model back.

import { Panel, canFocus, focusables } from './desk.mjs';
import { isCut, setTip } from './tips.mjs';

/// The picture under each screen, drawn at build time by the game's own drawing code.
const PICTURES = {
  Form1: 'title', main: 'office', messageForm: 'memo', gig: 'gig', thenewspaper: 'newspaper',
  savefrm: 'files', Chart: 'chart',
};

/// How a screen looks beyond its style sheet, as the desktop's skins say it: whether its
/// labels take their colours from the game, and last touches once its controls stand.
const SKINS = {
  Chart: {
    modelColours: true,
    // The title's black twin is its shadow: drawn, not read out.
    finish: (screen) => screen.widget('Label2').element.setAttribute('aria-hidden', 'true'),
  },
};

/// Labels at least this tall wrap their text over several lines, as on the desktop.
const WRAP_HEIGHT = 30;

function pictureSet(name) {
  return `pictures/${name}.png 1x, pictures/${name}@2x.png 2x`;
}

function hex(colour) {
  return `#${colour.toString(16).padStart(6, '0')}`;
}

/// An id for the page from a form and a control key ("location(0)" becomes "location-0").
function domId(form, id) {
  return `${form}-${id.replace(/[()]/g, (p) => (p === '(' ? '-' : ''))}`;
}

/// Puts a control where the model has it within its screen.
function place(element, rect) {
  element.style.left = `${rect.left}px`;
  element.style.top = `${rect.top}px`;
  element.style.width = `${rect.width}px`;
  element.style.height = `${rect.height}px`;
}

/// Sets or removes an attribute: removed for an empty value.
function attribute(element, name, value) {
  if (value) element.setAttribute(name, value);
  else element.removeAttribute(name);
}

// ---- Controls ---------------------------------------------------------------------------
// Each maker gives { element, target (what takes the keys), text (what may show cut),
// interactive, update(c) when the control has changed, always(c) after every click }.

function makeLabel(c) {
  const element = document.createElement('div');
  element.className = 'control label';
  const text = document.createElement('span');
  if (c.rect.height >= WRAP_HEIGHT) element.classList.add('wrap');
  element.append(text);
  return {
    element,
    text,
    update(c) {
      if (text.textContent !== c.caption) text.textContent = c.caption;
      // A value under a name of its own ("Cash": "£ 3000") is a named group with its value.
      attribute(element, 'role', c.view.shows_value ? 'group' : '');
      attribute(element, 'aria-label', c.view.shows_value ? c.view.name : '');
    },
  };
}

function makeButton(c) {
  const element = document.createElement('button');
  element.type = 'button';
  element.className = c.kind === 'Button' ? 'control button' : 'control click';
  const text = document.createElement('span');
  element.append(text);
  return {
    element,
    text,
    interactive: true,
    update(c) {
      if (text.textContent !== c.caption) text.textContent = c.caption;
      attribute(element, 'aria-label', c.view.name !== c.caption ? c.view.name : '');
    },
  };
}

function makeHotSpot(c) {
  const element = document.createElement('button');
  element.type = 'button';
  element.className = 'control hotspot';
  // Grey, it shows its part of the picture drawn with every button grey.
  element.style.backgroundPosition = `${-c.rect.left}px ${-c.rect.top}px`;
  return {
    element,
    interactive: true,
    update(c) { element.setAttribute('aria-label', c.view.name); },
  };
}

function makeOption(c, form) {
  const element = document.createElement('label');
  element.className = 'control option';
  const input = document.createElement('input');
  input.type = 'radio';
  input.name = `${form}.${c.name}`;
  const text = document.createElement('span');
  element.append(input, text);
  return {
    element,
    target: input,
    text,
    interactive: true,
    update(c) {
      if (text.textContent !== c.caption) text.textContent = c.caption;
      const shown = c.caption.replace(/\s+/g, ' ').trim();
      attribute(input, 'aria-label', c.view.name !== shown ? c.view.name : '');
    },
    always(c) { input.checked = c.value; },  // the game decides what is chosen
  };
}

function makeListBox(c, form) {
  const element = document.createElement('div');
  element.className = 'control listbox';
  element.setAttribute('role', 'listbox');
  element.tabIndex = 0;
  const id = domId(form, c.id);
  element.id = id;
  const list = {
    element,
    interactive: true,
    rows: [],
    update(c) {
      element.setAttribute('aria-label', c.view.name);
      const shown = c.view.rows;
      if (JSON.stringify(shown) === JSON.stringify(list.rows)) return;
      list.rows = shown;
      element.replaceChildren(...shown.map((text, row) => {
        const option = document.createElement('div');
        option.setAttribute('role', 'option');
        option.id = `${id}-${row}`;
        option.dataset.row = row;
        option.textContent = text;
        // A row cut short is whole a hover away; else the list's own hover.
        setTip(option, () => (isCut(option) ? text : list.model.view.hover));
        return option;
      }));
    },
    always(c) {
      let chosen = null;
      element.querySelectorAll('[role=option]').forEach((option, row) => {
        const selected = row === c.selected;
        option.setAttribute('aria-selected', selected ? 'true' : 'false');
        if (selected) chosen = option;
      });
      attribute(element, 'aria-activedescendant', chosen ? chosen.id : '');
      if (chosen) chosen.scrollIntoView({ block: 'nearest', inline: 'nearest' });
    },
  };
  return list;
}

function makeComboBox(c) {
  const element = document.createElement('select');
  element.className = 'control combo';
  const combo = {
    element,
    interactive: true,
    rows: null,
    update(c) {
      element.setAttribute('aria-label', c.view.name);
      if (JSON.stringify(c.view.rows) === JSON.stringify(combo.rows)) return;
      combo.rows = c.view.rows;
      element.replaceChildren(...c.view.rows.map((text) => {
        const option = document.createElement('option');
        option.textContent = text;
        return option;
      }));
    },
    always(c) { element.selectedIndex = c.selected < c.rows.length ? c.selected : -1; },
  };
  return combo;
}

const MAKERS = {
  Label: makeLabel, ClickLabel: makeButton, Button: makeButton, HotSpot: makeHotSpot,
  Option: makeOption, ListBox: makeListBox, ComboBox: makeComboBox,
};

// ---- A screen ---------------------------------------------------------------------------

export class Screen extends Panel {
  /// The panel of a form as the game's state gives it (app/web/state_json.h). `send(form,
  /// control, index, double)` forwards a click; `closeName` names the title bar's close.
  constructor(form, { send, closeName }) {
    super({ place: form.name, title: form.title, className: 'screen' });
    this.name = form.name;
    this.face = { close: form.close, focus: form.focus };
    this.send = send;
    this.skin = SKINS[form.name] || {};
    this.widgets = new Map();
    this.wraps = [];  // the labels that wrap, to end in "…" where their room ends
    this.element.id = `screen-${form.name}`;
    this.body.style.width = `${form.width}px`;
    this.body.style.height = `${form.height}px`;
    this.descriptions = document.createElement('div');
    this.descriptions.hidden = true;

    // The frame's close button clicks what the desktop's does.
    const close = document.createElement('button');
    close.type = 'button';
    close.className = 'close';
    close.textContent = '×';
    close.setAttribute('aria-label', closeName);
    setTip(close, () => closeName);
    close.addEventListener('click', () => this.click(this.face.close));
    this.bar.append(close);

    const picture = PICTURES[form.name];
    if (picture) {
      const img = document.createElement('img');
      img.className = 'backdrop';
      img.alt = '';
      img.src = `pictures/${picture}.png`;
      img.srcset = pictureSet(picture);
      img.width = form.width;
      img.height = form.height;
      img.draggable = false;
      this.body.append(img);
    }
    for (const c of form.controls) this.build(c);
    this.body.append(this.descriptions);
    if (this.skin.finish) this.skin.finish(this);
  }

  build(c) {
    const w = MAKERS[c.kind](c, this.name);
    w.id = c.id;
    const { element } = w;
    element.dataset.control = c.name;
    if (c.index >= 0) element.dataset.index = c.index;
    place(element, c.rect);
    this.body.append(element);
    if (element.classList.contains('wrap')) this.wraps.push(w);
    // What a hover tells, and the whole caption where the panel shows it cut short.
    setTip(element, () => {
      const { caption, view } = w.model;
      if (w.text && caption && isCut(w.text)) return view.hover ? `${caption}\n${view.hover}` : caption;
      return view.hover;
    });
    this.listen(w);
    this.widgets.set(c.id, w);
  }

  /// Forwards the widget's clicks; a grey control stays deaf, as the desktop's does.
  listen(w) {
    const grey = () => !w.model.enabled;
    const target = w.target || w.element;
    if (w.element.matches('.listbox')) {
      const rowOf = (event) => {
        const row = event.target.closest('[role=option]');
        return row ? Number(row.dataset.row) : -1;
      };
      w.element.addEventListener('click', (event) => {
        // The second click of a double click is the double click's, as on the desktop.
        if (event.detail > 1 || grey()) return;
        const row = rowOf(event);
        if (row >= 0) this.click(w.id, row);
      });
      w.element.addEventListener('dblclick', (event) => {
        if (!grey()) this.click(w.id, rowOf(event), true);
      });
      w.element.addEventListener('keydown', (event) => this.listKey(w, event));
      return;
    }
    if (w.element.matches('select')) {
      const refuse = (event) => { if (grey() && event.key !== 'Tab') event.preventDefault(); };
      w.element.addEventListener('mousedown', refuse);
      w.element.addEventListener('keydown', refuse);
      w.element.addEventListener('change', () => {
        if (grey()) this.refresh(w, w.model, true);
        else this.click(w.id, w.element.selectedIndex);
      });
      return;
    }
    if (!w.interactive) return;
    target.addEventListener('click', (event) => {
      if (grey()) {
        event.preventDefault();  // a grey radio button stays as it was
        return;
      }
      this.click(w.id);
    });
  }

  /// The list box's keys as the desktop's: Up, Down, Home and End pick a row, Return is a
  /// double click on the picked one.
  listKey(w, event) {
    const { model } = w;
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
        if (here >= 0 && model.enabled) this.click(w.id, here, true);
        return;
      default: return;
    }
    event.preventDefault();
    if (model.enabled && rows > 0 && to >= 0 && to < rows && to !== here) this.click(w.id, to);
  }

  /// A click on a control by its key ("name" or "name(i)"), or on a list's row.
  click(id, row, double = false) {
    const w = this.widgets.get(id);
    if (!w) return;
    const index = row === undefined ? w.model.index : row;
    this.send(this.name, w.model.name, index, double);
  }

  widget(id) { return this.widgets.get(id); }

  /// Once on the page: each wrapping label shows as many whole lines as its room holds.
  fit() {
    if (this.fitted) return;
    this.fitted = true;
    for (const w of this.wraps) {
      const line = parseFloat(getComputedStyle(w.text).lineHeight);
      const lines = Math.max(1, Math.floor(w.model.rect.height / line));
      if (line > 0) w.text.style.webkitLineClamp = String(lines);
    }
  }

  /// Copies the form's controls in; only what has changed is touched.
  update(form) {
    for (const c of form.controls) this.refresh(this.widgets.get(c.id), c);
    // A screen that takes no clicks (the office behind a memo) takes no keys either.
    this.element.inert = !form.enabled;
    this.element.classList.toggle('held', !form.enabled);
  }

  refresh(w, c, force = false) {
    const seen = JSON.stringify(c);
    if (force || seen !== w.seen) {
      w.seen = seen;
      w.model = c;
      const { element } = w;
      const target = w.target || element;
      element.hidden = !c.visible;
      place(element, c.rect);  // the rules may move a control (LOAD GAME centres Load)
      element.classList.toggle('grey', !c.enabled);
      if (w.interactive) {
        attribute(target, 'aria-disabled', c.enabled ? '' : 'true');
        attribute(target, 'aria-keyshortcuts', c.view.shortcut);
      }
      if (c.rule_colour || (this.skin.modelColours && c.kind === 'Label'))
        element.style.color = hex(c.color);
      this.describe(w, target, c.view.description);
      w.update(c);
    }
    w.model = c;
    if (w.always) w.always(c);
  }

  /// Says `text` after the control's name, through a description kept out of sight.
  describe(w, target, text) {
    if (!text) {
      target.removeAttribute('aria-describedby');
      return;
    }
    if (!w.description) {
      w.description = document.createElement('span');
      w.description.id = `${domId(this.name, w.id)}-about`;
      this.descriptions.append(w.description);
    }
    if (w.description.textContent !== text) w.description.textContent = text;
    target.setAttribute('aria-describedby', w.description.id);
  }

  /// The control the game names to take the keys first, else the first that can.
  firstFocus() {
    const w = this.widgets.get(this.face.focus);
    const target = w && (w.target || w.element);
    if (target && canFocus(target)) return target;
    return focusables(this.body)[0] || null;
  }
}
