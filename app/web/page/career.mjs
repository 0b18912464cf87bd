// A career's story: the summary that opens beside the memo that ends the game, and the hall
// of fame (H on the title screen), each finished career with its summary, and its diary and
// week graph a button away. Every word and figure comes from the game (view/career.h).

import { SidePanel } from './side.mjs';

function element(tag, text, className) {
  const e = document.createElement(tag);
  if (text !== undefined) e.textContent = text;
  if (className) e.className = className;
  return e;
}

/// A career's figures as a table of two columns, a line each.
function summaryTable(summary, caption) {
  const table = element('table', undefined, 'summary');
  table.append(element('caption', caption, 'offscreen'));
  const body = element('tbody');
  for (const line of summary.lines) {
    const tr = element('tr');
    const th = element('th', line.label);
    th.scope = 'row';
    tr.append(th, element('td', line.value));
    body.append(tr);
  }
  table.append(body);
  return table;
}

/// The summary of the career just ended, beside its last memo.
export class SummaryPanel extends SidePanel {
  constructor(words, close) {
    super({ place: 'summary', words: words.summary, close, width: 440, height: 400 });
    this.caption = words.summary.title;
  }

  show(summary) {
    this.content.replaceChildren(summaryTable(summary, this.caption));
  }
}

/// The finished careers, best first: pick one to read its summary, and open its diary or its
/// week graph with the buttons under it. It reads the hall each time it opens.
export class HallPanel extends SidePanel {
  /// `open(place)` opens the panel of that place beside it: the career's diary or graph.
  constructor(game, words, close, open) {
    const w = words.hall;
    super({ place: 'hall', words: w, close, width: 520, height: 460 });
    this.game = game;
    this.words = w;
    this.picked = 0;
    this.list = element('ul', undefined, 'careers');
    this.list.setAttribute('aria-label', w.list);
    this.summary = element('div', undefined, 'career-summary');
    this.summary.tabIndex = 0;
    this.summary.setAttribute('role', 'region');
    this.summary.setAttribute('aria-label', words.summary.title);
    const buttons = element('div', undefined, 'career-buttons');
    for (const [caption, name, place] of [[w.diary_button, w.diary, 'hall-diary'],
                                          [w.graph_button, w.graph, 'hall-graph']]) {
      const button = element('button', caption);
      button.type = 'button';
      button.setAttribute('aria-label', name);
      button.addEventListener('click', () => { if (this.hall.length) open(place); });
      buttons.append(button);
    }
    this.buttons = buttons;
    this.content.append(this.list, this.summary, buttons);
  }

  firstFocus() { return this.list.querySelector('button') || this.closeButton; }

  opened() {
    this.hall = this.game.hall();
    this.picked = 0;
    this.list.replaceChildren();
    if (!this.hall.length) this.list.append(element('li', this.words.empty, 'empty'));
    this.hall.forEach((career, k) => {
      const button = element('button', career.line);
      button.type = 'button';
      button.title = career.line;
      button.addEventListener('click', () => this.pick(k));
      const li = element('li');
      li.append(button);
      this.list.append(li);
    });
    this.buttons.hidden = !this.hall.length;
    this.pick(0);
  }

  pick(k) {
    this.picked = k;
    this.list.querySelectorAll('button').forEach((b, i) =>
      b.setAttribute('aria-current', i === k ? 'true' : 'false'));
    const career = this.hall[k];
    this.summary.replaceChildren(...(career ? [summaryTable(career, career.line)] : []));
    if (this.onPick) this.onPick(k);
  }
}
