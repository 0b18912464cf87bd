// The game compiled to WebAssembly, as the page calls it: the functions of
// app/web/web_main.cpp, with their JSON read back. Clicks may wait in a box the rules open,
// so they are asynchronous; while one runs, nothing else is let in.

import createTourvane from './tourvane.js';

export class Game {
  /// Loads and instantiates the game; `port` answers its boxes (msgbox, inputbox).
  static async load(port) {
    const settings = { tourvaneMsgBox: port.msgbox, tourvaneInputBox: port.inputbox };
    const code = window.tourvaneCode;  // compiling since the page began (index.html)
    if (code) {
      settings.instantiateWasm = (imports, receive) => {
        code.then((compiled) => WebAssembly.instantiate(compiled, imports)
                                            .then((instance) => receive(instance, compiled)))
            .catch((error) => settings.failed(error));
        return {};
      };
    }
    const loading = createTourvane(settings);
    const failed = new Promise((resolve, reject) => { settings.failed = reject; });
    return new Game(await Promise.race([loading, failed]));
  }

  constructor(module) {
    this.module = module;
    this.busy = false;  // a click is running, maybe waiting in a box
  }

  /// A function that returns a JSON text, read.
  json(name, types = [], args = []) {
    return JSON.parse(this.module.ccall(name, 'string', types, args));
  }

  /// Starts the game with the address's seed (or none): 0 started, 1 started with saves that
  /// last only as long as the page, 2 not started. `notice` says why.
  async start(seed) {
    return this.module.ccall('tourvane_start', 'number', ['string'], [seed], { async: true });
  }

  notice() {
    return this.module.ccall('tourvane_notice', 'string', [], []);
  }

  /// A click (or a list's double click) on FORM.CONTROL at an index or row; resolves to the
  /// click's result once every box it opened is answered, or -1 when it was not let in.
  async click(form, control, index = -1, double = false) {
    if (this.busy) return -1;
    this.busy = true;
    try {
      return await this.module.ccall(double ? 'tourvane_dblclick' : 'tourvane_click', 'number',
                                     ['string', 'string', 'number'], [form, control, index],
                                     { async: true });
    } finally {
      this.busy = false;
    }
  }

  /// An asynchronous call of the game's that may wait in a box or for the browser's storage;
  /// no click gets in meanwhile. Resolves to its result, or `refused` when it was not let in.
  async waiting(name, returns, refused) {
    if (this.busy) return refused;
    this.busy = true;
    try {
      return await this.module.ccall(name, returns, [], [], { async: true });
    } finally {
      this.busy = false;
    }
  }

  /// Carries on with the career the automatic save kept: 1 done, 0 refused with a box.
  carryOn() { return this.waiting('tourvane_carry_on', 'number', -1); }
  /// The summary of the career that has just ended (it goes into the hall), or null.
  async summary() { return JSON.parse(await this.waiting('tourvane_summary', 'string', 'null')); }
  /// Keeps a running career in the automatic save (a finished one in the hall).
  keep() { return this.waiting('tourvane_keep', 'number', -1); }

  title() { return this.json('tourvane_title'); }
  hall() { return this.json('tourvane_hall'); }

  /// The diary and week graph of career `k` of the hall, in the shape of the running career's.
  career(k) {
    return {
      diary: (sender, words) =>
        this.json('tourvane_hall_diary', ['number', 'string', 'string'], [k(), sender, words]),
      graph: (room, picked) =>
        this.json('tourvane_hall_graph', ['number', 'number', 'number'], [k(), room, picked]),
      graphPick: (picked) =>
        this.json('tourvane_hall_graph_pick', ['number', 'number'], [k(), picked]),
      graphMove: (...moved) => this.graphMove(...moved),
      placeLabel: (...where) => this.placeLabel(...where),
    };
  }

  state() { return this.json('tourvane_state'); }
  words() { return this.json('tourvane_words'); }
  keys() { return this.json('tourvane_keys'); }
  help() { return this.json('tourvane_help'); }
  slots() { return this.json('tourvane_slots'); }

  diary(sender, words) {
    return this.json('tourvane_diary', ['string', 'string'], [sender, words]);
  }

  graph(room, picked) {
    return this.json('tourvane_graph', ['number', 'number'], [room, picked]);
  }

  graphPick(picked) {
    return this.json('tourvane_graph_pick', ['number'], [picked]);
  }

  graphMove(action, current, count) {
    return this.module.ccall('tourvane_graph_move', 'number', ['string', 'number', 'number'],
                             [action, current, count]);
  }

  /// Where the picked point's label goes in the plot, clear of the point's two marks.
  placeLabel(plot, x, y1, y2, width, height, gap) {
    return this.json('tourvane_place_label', Array(10).fill('number'),
                     [plot.left, plot.top, plot.width, plot.height, x, y1, y2, width, height, gap]);
  }

  /// The bytes of file `part` (0 the save, 1 its history) of a slot, or null.
  file(slot, part) {
    const at = this.module.ccall('tourvane_file', 'number', ['number', 'number'], [slot, part]);
    if (!at) return null;
    const size = this.module.ccall('tourvane_file_size', 'number', [], []);
    return this.module.HEAPU8.slice(at, at + size);
  }

  /// Puts the picked files ({name, size, bytes}, bytes null when too large to read; `count`
  /// of them, of which the first two are handed over) into a slot; the game takes one or two
  /// and refuses more. Resolves to { taken, message } once the browser's storage has them;
  /// no click gets in meanwhile.
  async upload(slot, files, count = files.length) {
    if (this.busy) return null;
    this.busy = true;
    const held = [];
    const args = [slot, count];
    try {
      for (let i = 0; i < 2; ++i) {
        const f = files[i];
        let at = 0;
        if (f && f.bytes && f.bytes.length) {
          at = this.module._malloc(f.bytes.length);
          held.push(at);
          this.module.HEAPU8.set(f.bytes, at);
        }
        args.push(f ? f.name : '', f ? f.size : -1, at, f && f.bytes ? f.bytes.length : 0);
      }
      return JSON.parse(await this.module.ccall(
        'tourvane_upload', 'string', ['number', 'number', 'string', 'number', 'number', 'number',
                                      'string', 'number', 'number', 'number'], args,
        { async: true }));
    } finally {
      held.forEach((at) => this.module._free(at));
      this.busy = false;
    }
  }
}
