// The help (F1): how to play and every key of the key table, in two tabs, and what Tourvane
// is. All of it comes from the game (view/help.h), asked for the first time the panel opens.

import { SidePanel } from './side.mjs';

function element(tag, text, className) {
  const e = document.createElement(tag);
  if (text !== undefined) e.textContent = text;
  if (className) e.className = className;
  return e;
}

export class HelpPanel extends SidePanel {
  constructor(game, words, close) {
    const w = words.help;
    super({ place: 'help', words: w, close, width: 520, height: 460 });
    this.game = game;
    this.words = w;
    this.built = false;
  }

  firstFocus() { return this.tabs ? this.tabs[0] : null; }

  opened() {
    if (this.built) return;
    this.built = true;
    const w = this.words;
    const help = this.game.help();

    const how = element('div', undefined, 'how');
    for (const p of help.how) how.append(element('h3', p.heading), element('p', p.text));

    const keys = element('table', undefined, 'keys');
    keys.append(element('caption', w.list, 'offscreen'));
    const head = element('thead');
    const names = element('tr');
    for (const name of w.columns) {
      const th = element('th', name);
      th.scope = 'col';
      names.append(th);
    }
    head.append(names);
    keys.append(head);
    for (const section of help.sections) {
      const body = element('tbody');
      const title = element('th', section.title, 'section');
      title.colSpan = 2;
      title.scope = 'colgroup';
      const tr = element('tr');
      tr.append(title);
      body.append(tr);
      for (const row of section.rows) {
        const line = element('tr');
        line.append(element('td', row.keys, 'key'), element('td', row.what));
        body.append(line);
      }
      keys.append(body);
    }

    // The two parts as tabs, Left and Right moving between them.
    const list = element('div', undefined, 'tabs');
    list.setAttribute('role', 'tablist');
    list.setAttribute('aria-label', w.title);
    this.tabs = [];
    const parts = [[w.how_to_play, how], [w.keys_part, keys]].map(([name, content], i) => {
      const tab = element('button', name);
      tab.type = 'button';
      tab.id = `help-tab-${i}`;
      tab.setAttribute('role', 'tab');
      const part = element('div', undefined, 'part');
      part.id = `help-part-${i}`;
      part.setAttribute('role', 'tabpanel');
      part.setAttribute('aria-labelledby', tab.id);
      part.tabIndex = 0;
      part.append(content);
      tab.setAttribute('aria-controls', part.id);
      tab.addEventListener('click', () => this.show(i));
      tab.addEventListener('keydown', (event) => {
        const to = { ArrowLeft: i - 1, ArrowRight: i + 1, Home: 0, End: 1 }[event.key];
        if (to === undefined) return;
        event.preventDefault();
        this.show((to + 2) % 2);
        this.tabs[(to + 2) % 2].focus();
      });
      this.tabs.push(tab);
      list.append(tab);
      return part;
    });
    this.parts = parts;

    const about = element('section', undefined, 'about-part');
    const heading = element('h3', w.about_heading);
    heading.id = 'help-about';
    about.setAttribute('aria-labelledby', heading.id);
    about.append(heading, element('p', help.about, 'about-text'));
    this.content.append(list, ...parts, about);
    this.show(0);
  }

  show(index) {
    this.tabs.forEach((tab, i) => {
      tab.setAttribute('aria-selected', i === index ? 'true' : 'false');
      tab.tabIndex = i === index ? 0 : -1;
      this.parts[i].hidden = i !== index;
    });
  }
}
