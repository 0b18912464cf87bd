// The diary (D): every memo, box and gig report of the career, newest first, narrowed to one
// sender or to the entries holding some words. The game does the narrowing, so that "any case"
// is the same as the desktop's; the panel only shows the rows it is given.

import { describe } from './desk.mjs';
import { SidePanel } from './side.mjs';

let fields = 0;  // numbers the panel's labelled fields

function labelled(text, field) {
  const label = document.createElement('label');
  field.id = `diary-field-${++fields}`;
  label.htmlFor = field.id;
  label.textContent = text;
  return label;
}

function cell(tag, text, className) {
  const c = document.createElement(tag);
  if (className) c.className = className;
  c.textContent = text;
  return c;
}

export class DiaryPanel extends SidePanel {
  /// `game` gives the diary (a career of the hall gives its own, placed at `place`).
  constructor(game, words, close, place = 'diary') {
    const w = words.diary;
    super({ place, keyPlace: 'diary', words: w, close, width: 660, height: 460 });
    this.game = game;

    const filters = document.createElement('div');
    filters.className = 'filters';
    this.sender = document.createElement('select');
    this.sender.setAttribute('aria-label', w.sender_name);
    describe(this.sender, w.sender_help, this.body);
    this.everyone = w.everyone;
    this.search = document.createElement('input');
    this.search.type = 'search';
    this.search.setAttribute('aria-label', w.search_name);
    describe(this.search, w.search_help, this.body);
    this.search.placeholder = w.search_hint;
    this.search.autocomplete = 'off';
    this.search.spellcheck = false;
    filters.append(labelled(w.sender_label, this.sender), this.sender,
                   labelled(w.search_label, this.search), this.search);

    // The entries scroll in a region the keys can reach.
    this.entries = document.createElement('div');
    this.entries.className = 'entries';
    this.entries.tabIndex = 0;
    this.entries.setAttribute('role', 'region');
    this.entries.setAttribute('aria-label', w.entries);
    const table = document.createElement('table');
    const caption = cell('caption', w.entries, 'offscreen');
    const head = document.createElement('thead');
    const names = document.createElement('tr');
    w.columns.forEach((name) => {
      const th = cell('th', name);
      th.scope = 'col';
      names.append(th);
    });
    head.append(names);
    this.rows = document.createElement('tbody');
    table.append(caption, head, this.rows);
    this.entries.append(table);
    this.content.append(filters, this.entries);
    this.footnote.setAttribute('role', 'status');

    this.sender.addEventListener('change', () => this.load());
    this.search.addEventListener('input', () => this.load());
  }

  get actions() { return ['ChooseSender', 'Search']; }

  /// Alt+F chooses the sender; Alt+S or Ctrl+F goes to the search.
  act(row) {
    if (row.action === 'ChooseSender') {
      this.sender.focus();
    } else {
      this.search.focus();
      this.search.select();
    }
  }

  firstFocus() { return this.entries; }
  opened() { this.load(); }
  refresh() { this.load(); }

  /// Asks the game for the entries the filter shows, and lists them.
  load() {
    const d = this.game.diary(this.sender.value, this.search.value);
    const names = [this.everyone, ...d.senders];
    const listed = [...this.sender.options].map((o) => o.textContent);
    if (JSON.stringify(listed) !== JSON.stringify(names)) {
      this.sender.replaceChildren(...names.map((name, i) => {
        const option = cell('option', name);
        option.value = i === 0 ? '' : name;
        return option;
      }));
    }
    this.sender.value = d.sender;  // everyone's, when a load took the sender away
    this.rows.replaceChildren(...d.entries.map((e) => {
      const tr = document.createElement('tr');
      const text = cell('td', e.text, 'text');
      if (e.note) text.append(cell('span', e.note, 'note'));
      tr.append(cell('td', e.date, 'date'), cell('td', e.from, e.box ? 'from box' : 'from'), text);
      return tr;
    }));
    if (this.footnote.textContent !== d.count) this.footnote.textContent = d.count;
  }
}
