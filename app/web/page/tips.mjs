// Tool tips as the desktop shows them, dark ink on memo paper: what a hover over a control
// tells (its tool tip, a note, why it is grey, or the whole of a caption shown cut short),
// also shown while the keyboard is on the control. One tip at a time; it stays while the
// pointer is over it and goes at a key, a scroll or when the pointer leaves.

const SHOW_AFTER = 600;  // ms a pointer rests before the tip shows
const HIDE_AFTER = 120;  // ms of grace to move the pointer onto the tip

const texts = new WeakMap();  // element -> () => the text its hover tells now
let tip = null;
let owner = null;  // the element whose tip shows or is about to
let showing = 0;
let hiding = 0;

/// True when the text of `element` is shown cut short (with an ellipsis) in its box.
export function isCut(element) {
  return element.scrollWidth > element.clientWidth + 1 ||
         element.scrollHeight > element.clientHeight + 1;
}

/// Gives `element` a tip: `text()` says what it tells when it shows, empty for none.
export function setTip(element, text) {
  texts.set(element, text);
}

function ownerOf(target) {
  for (let e = target; e && e !== document.body; e = e.parentElement)
    if (texts.has(e)) return e;
  return null;
}

function place(rect) {
  const gap = 6;
  const width = tip.offsetWidth;
  const height = tip.offsetHeight;
  let top = rect.bottom + gap;
  if (top + height > innerHeight) top = Math.max(0, rect.top - gap - height);
  const left = Math.min(Math.max(0, rect.left), Math.max(0, innerWidth - width - 2));
  tip.style.left = `${left + scrollX}px`;
  tip.style.top = `${top + scrollY}px`;
}

function show(element) {
  const text = texts.get(element)();
  if (!text || !element.isConnected) {
    hide();
    return;
  }
  tip.textContent = text;
  tip.hidden = false;
  place(element.getBoundingClientRect());
}

export function hide() {
  clearTimeout(showing);
  clearTimeout(hiding);
  owner = null;
  if (tip) tip.hidden = true;
}

function soon(element) {
  clearTimeout(showing);
  clearTimeout(hiding);
  owner = element;
  showing = setTimeout(() => { if (owner === element) show(element); }, SHOW_AFTER);
}

/// Starts the tips on the page's `tip` element (role tooltip).
export function startTips(element) {
  tip = element;
  document.addEventListener('pointerover', (event) => {
    if (tip.contains(event.target)) {
      clearTimeout(hiding);  // the pointer has come onto the tip: it stays
      return;
    }
    const found = ownerOf(event.target);
    if (found && found !== owner) soon(found);
    else if (!found && owner) {
      clearTimeout(showing);
      hiding = setTimeout(hide, HIDE_AFTER);
    } else if (found) {
      clearTimeout(hiding);
    }
  });
  document.addEventListener('focusin', (event) => {
    // The keyboard's own moves only: a click's focus is the pointer's.
    const found = ownerOf(event.target);
    if (found && event.target.matches(':focus-visible')) {
      hide();
      owner = found;
      show(found);
    } else if (!found) {
      hide();
    }
  });
  document.addEventListener('focusout', () => { if (!tip.hidden) hide(); });
  document.addEventListener('keydown', hide, true);
  document.addEventListener('pointerdown', hide, true);
  addEventListener('scroll', hide, true);
}
