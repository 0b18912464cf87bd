// The desk: the panels on show side by side, as the desktop's windows stand (the office, then
// what opens beside it, in the order it opened), with the memo laid over the office. A panel
// asked to the front is scrolled into view, marked, and given the keys.

/// Any panel: a titled region of the page with a title bar, standing on the desk while open.
export class Panel {
  /// `place` is the form name or the place:: name the key table knows it by.
  constructor({ place, title, className }) {
    this.place = place;
    this.element = document.createElement('section');
    this.element.className = `panel ${className}`;
    this.element.dataset.place = place;
    this.element.id = `panel-${place}`;
    const bar = document.createElement('div');
    bar.className = 'titlebar';
    this.heading = document.createElement('h2');
    this.heading.id = `title-${place}`;
    this.heading.textContent = title;
    bar.append(this.heading);
    this.element.setAttribute('aria-labelledby', this.heading.id);
    this.bar = bar;
    this.body = document.createElement('div');
    this.body.className = 'body';
    this.element.append(bar, this.body);
    this.element.hidden = true;
    this.lastFocus = null;
    this.element.addEventListener('focusin', (event) => { this.lastFocus = event.target; });
  }

  get open() { return !this.element.hidden; }

  /// Where the keys go when the panel first opens; the panel's first control by default.
  firstFocus() {
    return focusables(this.body)[0] || null;
  }

  /// Gives the panel the keys: where they last were in it, else where they go first.
  focus(first = false) {
    const last = this.lastFocus;
    const target = !first && last && this.element.contains(last) && canFocus(last)
        ? last : this.firstFocus();
    if (target) target.focus({ preventScroll: true });
    else {
      this.element.tabIndex = -1;
      this.element.focus({ preventScroll: true });
    }
  }
}

let descriptions = 0;

/// Gives `element` a description a screen reader says after its name, kept out of sight in
/// `holder`.
export function describe(element, text, holder) {
  const about = document.createElement('span');
  about.id = `about-${++descriptions}`;
  about.hidden = true;
  about.textContent = text;
  holder.append(about);
  element.setAttribute('aria-describedby', about.id);
  return about;
}

/// True when `element` is shown and can take the keys.
export function canFocus(element) {
  return !element.closest('[hidden], [inert]') && !element.disabled &&
         element.getClientRects().length > 0;
}

/// The elements of `root` that take the keys, in the page's order.
export function focusables(root) {
  return [...root.querySelectorAll(
    'button, input, select, textarea, [tabindex="0"]')].filter(canFocus);
}

export class Desk {
  constructor(element) {
    this.element = element;
    this.panels = [];    // open panels, in the order they opened
    this.frontPanel = null;
    this.memo = null;    // the panel laid over another (the memo)
    addEventListener('resize', () => this.layMemo());
    // A panel the player moves into is the one in front, as a window clicked is.
    element.addEventListener('focusin', (event) => {
      const panel = this.panels.find((p) => p.element.contains(event.target));
      if (panel) this.mark(panel);
    });
  }

  /// Marks the panel in front.
  mark(panel) {
    if (this.frontPanel && this.frontPanel !== panel)
      this.frontPanel.element.classList.remove('front');
    this.frontPanel = panel;
    panel.element.classList.add('front');
  }

  /// Puts a panel on the desk after those already open.
  add(panel) {
    if (this.panels.includes(panel)) return;
    this.panels.push(panel);
    panel.element.hidden = false;
    if (panel !== this.memo) this.element.append(panel.element);
    this.layMemo();
  }

  /// Takes a panel off the desk; true if it was on.
  remove(panel) {
    const at = this.panels.indexOf(panel);
    if (at < 0) return false;
    this.panels.splice(at, 1);
    panel.element.hidden = true;
    panel.element.classList.remove('front');
    if (this.frontPanel === panel) this.frontPanel = null;
    this.layMemo();
    return true;
  }

  /// The latest panel still open but `except`, or null.
  latest(except = null) {
    for (let i = this.panels.length - 1; i >= 0; --i)
      if (this.panels[i] !== except && !this.panels[i].element.inert) return this.panels[i];
    return null;
  }

  /// Brings a panel to the front: in view, marked, with the keys (where they go first when
  /// `first`).
  front(panel, first = false) {
    if (!panel || !panel.open) return;
    this.mark(panel);
    panel.element.scrollIntoView({ block: 'nearest', inline: 'nearest' });
    panel.focus(first);
  }

  /// The panel that holds the keys now, else the one in front.
  current() {
    const here = document.activeElement && document.activeElement.closest('.panel');
    const panel = this.panels.find((p) => p.element === here);
    return panel || this.frontPanel;
  }

  /// Lays the memo over the panel it holds up, centred on it as the desktop centres a window
  /// over the one it opens from.
  setMemo(panel) {
    this.memo = panel;
    panel.element.classList.add('over');
    this.element.append(panel.element);
  }

  layMemo(under = null) {
    if (under) this.under = under;
    const memo = this.memo;
    if (!memo || !memo.open) return;
    const base = this.under && this.under.open ? this.under
        : this.panels.filter((p) => p !== memo).pop();
    if (!base) {
      memo.element.style.left = memo.element.style.top = '';
      return;
    }
    const b = base.element;
    const left = b.offsetLeft + (b.offsetWidth - memo.element.offsetWidth) / 2;
    const top = b.offsetTop + (b.offsetHeight - memo.element.offsetHeight) / 2;
    memo.element.style.left = `${Math.max(0, Math.round(left))}px`;
    memo.element.style.top = `${Math.max(0, Math.round(top))}px`;
  }
}
