// The game's key table (view/keys.h) bound to the page, as the desktop binds it to its windows
// (app/qt/shortcuts.cpp): a panel takes the keys of the table that work where it stands and do
// one of the actions it asks for.

/// A key press as the page names keys (aria-keyshortcuts): "N", "F1", "Control+Q", "Escape",
/// "PageUp", "ArrowLeft".
export function keyName(event) {
  let key = event.key;
  if (key === ' ') key = 'Space';
  else if (key.length === 1) {
    // A letter with Alt or Control held may come as another character: the key's own letter.
    const letter = /^Key([A-Z])$/.exec(event.code);
    key = letter && (event.altKey || event.ctrlKey) ? letter[1] : key.toUpperCase();
  }
  const held = [];
  if (event.ctrlKey) held.push('Control');
  if (event.altKey) held.push('Alt');
  // Shift counts with a letter or a named key; a symbol it types counts as that symbol.
  if (event.shiftKey && key !== 'Shift' && (key.length > 1 || /^[A-Z]$/.test(key)))
    held.push('Shift');
  if (event.metaKey) held.push('Meta');
  return [...held, key].join('+');
}

export class KeyTable {
  /// The table as the game gives it (app/web/state_json.h keys_json).
  constructor(rows) {
    this.rows = rows;
  }

  /// The rows of `where` (a form name or a place) that do one of `actions`.
  bound(where, actions) {
    return this.rows.filter((row) => row.where === where && actions.includes(row.action));
  }

  /// The row that `key` (as keyName names it) runs in `where` among `actions`, or null.
  find(where, key, actions) {
    return this.bound(where, actions).find((row) => row.page.includes(key)) || null;
  }

  /// The keys of a row of `where` doing `action` (the first such row), as aria-keyshortcuts
  /// lists them; empty for none.
  shortcut(where, action) {
    const row = this.bound(where, [action])[0];
    return row ? row.page.join(' ') : '';
  }

  /// What the key help says of that row.
  help(where, action) {
    const row = this.bound(where, [action])[0];
    return row ? row.help : '';
  }
}

/// True when a key goes to a field the player is typing in, so that the game's letter keys
/// must leave it alone.
export function typing(event) {
  const target = event.target;
  if (!(target instanceof HTMLElement)) return false;
  const text = target.matches('input:not([type=radio]):not([type=checkbox]):not([type=file]), ' +
                              'textarea, [contenteditable=true]');
  return text && !event.ctrlKey && !event.altKey && !event.metaKey &&
         (event.key.length === 1 || event.key === 'Backspace');
}
