// A panel beside the office that is not a screen of the game: the diary, the week graph, the
// help and the saves. Each has its title, a line under it, its own content and a Close button
// at its foot, opens beside what is on the desk and changes nothing in the game.

import { Panel } from './desk.mjs';

export class SidePanel extends Panel {
  /// `words` gives its title, the line under it and what its Close is called to a screen
  /// reader; `close` is the button's caption.
  /// `keyPlace` is where the key table's keys for it work, its place unless told.
  constructor({ place, keyPlace, words, close, width, height }) {
    super({ place, title: words.title, className: `side side-${place}` });
    this.keyPlace = keyPlace || place;
    this.body.style.width = `${width}px`;
    this.body.style.height = `${height}px`;
    if (words.about) {
      const about = document.createElement('p');
      about.className = 'about';
      about.textContent = words.about;
      this.body.append(about);
    }
    this.content = document.createElement('div');
    this.content.className = 'content';
    const foot = document.createElement('div');
    foot.className = 'foot';
    this.footnote = document.createElement('p');
    this.footnote.className = 'footnote';
    this.closeButton = document.createElement('button');
    this.closeButton.type = 'button';
    this.closeButton.className = 'close-button';
    this.closeButton.textContent = close;
    this.closeButton.setAttribute('aria-label', words.close);
    foot.append(this.footnote, this.closeButton);
    this.body.append(this.content, foot);
    this.onClose = () => {};
    this.closeButton.addEventListener('click', () => this.onClose(this));
  }

  /// The key table's actions this panel answers besides Close, and what each does.
  get actions() { return []; }
  act() {}

  /// Called as the panel opens, and after each click of the game while it is open.
  opened() {}
  refresh() {}
}
