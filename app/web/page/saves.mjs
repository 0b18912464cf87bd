// The saves: the four slots kept in the browser's storage, each with Download (its save and,
// where it has one, its history, the very files the desktop game keeps) and Upload (a save
// and its history, checked by the game before the slot is replaced). It says plainly that
// clearing the browser's data deletes the saves unless they have been downloaded.

import { describe } from './desk.mjs';
import { SidePanel } from './side.mjs';
import { setTip } from './tips.mjs';

function element(tag, text, className) {
  const e = document.createElement(tag);
  if (text !== undefined) e.textContent = text;
  if (className) e.className = className;
  return e;
}

export class SavesPanel extends SidePanel {
  /// `changed()` is called after an upload has put files into a slot.
  constructor(game, words, close, changed) {
    const w = words.saves;
    super({ place: 'saves', words: w, close, width: 340, height: 460 });
    this.game = game;
    this.words = w;
    this.changed = changed;
    this.body.querySelector('.about').classList.add('warning');
    this.content.append(element('p', w.hint, 'hint'));
    this.list = element('ul', undefined, 'slots');
    this.message = element('p', '', 'message');
    this.message.setAttribute('role', 'status');
    this.picker = document.createElement('input');
    this.picker.type = 'file';
    this.picker.multiple = true;
    this.picker.accept = '.tvs,.tvh';
    this.picker.hidden = true;
    this.picker.setAttribute('aria-label', w.upload_help);
    this.content.append(this.list, this.message, this.picker);
    this.picker.addEventListener('change', () => this.upload());
    this.offers = [];
    this.auto = false;  // opened with the save screen, and closes with it
  }

  opened() {
    this.message.textContent = '';
    this.refresh();
  }

  /// Lists the slots as the game offers them now.
  refresh() {
    const offers = this.game.slots();
    if (JSON.stringify(offers) === JSON.stringify(this.offers)) return;
    this.offers = offers;
    const focused = document.activeElement;
    const again = focused && this.list.contains(focused) ? focused.getAttribute('aria-label') : null;
    this.list.replaceChildren(...offers.map((offer) => {
      const item = element('li');
      const heading = element('h3', offer.heading);
      const holds = element('p', offer.holds, 'holds');
      const download = element('button', this.words.download);
      download.type = 'button';
      download.setAttribute('aria-label', offer.download);
      if (offer.grey) {
        download.setAttribute('aria-disabled', 'true');
        describe(download, offer.grey, item);
      }
      setTip(download, () => offer.grey || offer.files.join(', '));
      download.addEventListener('click', () => { if (!offer.grey) this.download(offer); });
      const upload = element('button', this.words.upload);
      upload.type = 'button';
      upload.setAttribute('aria-label', offer.upload);
      describe(upload, this.words.upload_help, item);
      setTip(upload, () => this.words.upload_help);
      upload.addEventListener('click', () => this.choose(offer.slot));
      const buttons = element('div', undefined, 'buttons');
      buttons.append(download, upload);
      item.append(heading, holds, buttons);
      return item;
    }));
    if (again) {
      const same = [...this.list.querySelectorAll('button')]
          .find((b) => b.getAttribute('aria-label') === again);
      if (same) same.focus();
    }
  }

  /// Hands the slot's files to the browser to keep, each under the name the game gives it.
  download(offer) {
    offer.files.forEach((name, part) => {
      const bytes = this.game.file(offer.slot, part);
      if (!bytes) return;
      const link = document.createElement('a');
      link.href = URL.createObjectURL(new Blob([bytes], { type: 'application/octet-stream' }));
      link.download = name;
      document.body.append(link);
      link.click();
      link.remove();
      setTimeout(() => URL.revokeObjectURL(link.href), 60000);
    });
  }

  choose(slot) {
    this.slot = slot;
    this.picker.value = '';
    this.picker.click();
  }

  /// Reads the picked files (none past the game's limit) and gives them to the game.
  async upload() {
    const picked = [];
    const count = this.picker.files.length;
    for (const file of [...this.picker.files].slice(0, 2)) {
      const readable = file.size <= this.words.upload_limit;
      picked.push({
        name: file.name,
        size: file.size,
        bytes: readable ? new Uint8Array(await file.arrayBuffer()) : null,
      });
    }
    if (!picked.length) return;
    const result = await this.game.upload(this.slot, picked, count);
    if (!result) return;  // a click is running: the game takes no upload meanwhile
    this.message.textContent = result.message;
    this.message.classList.toggle('refused', !result.taken);
    this.refresh();
    if (result.taken) this.changed();
  }
}
