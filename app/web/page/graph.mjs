// The week graph (G): cash and popularity at the end of every week played, drawn in SVG as the
// desktop draws it. The game gives the points, the scales and every word (app/web/state_json.h
// graph_json); the panel only lays them out. The graph is a slider to the keyboard and to a
// screen reader: the arrow keys, Page Up and Down, Home and End pick a week, and its value is
// the picked week in words.

import { SidePanel } from './side.mjs';

const SVG = 'http://www.w3.org/2000/svg';
const WIDTH = 696;
const HEIGHT = 330;
/// The plot inside the picture: room for the scales left and right, the dates and the key.
const PLOT = { left: 72, top: 26, width: WIDTH - 72 - 58, height: HEIGHT - 26 - 48 };
const FONT = '11px "Liberation Sans", Arial, sans-serif';
/// Up to this many points, each is marked with a dot.
const DOTTED_POINTS = 60;
/// The actions of the key table that move the pick.
const MOVES = ['WeekBack', 'WeekOn', 'QuarterBack', 'QuarterOn', 'FirstWeek', 'LatestWeek'];

const measure = document.createElement('canvas').getContext('2d');
function textWidth(text) {
  measure.font = FONT;
  return measure.measureText(text).width;
}

function draw(parent, tag, attributes, text) {
  const e = document.createElementNS(SVG, tag);
  for (const [name, value] of Object.entries(attributes)) e.setAttribute(name, value);
  if (text !== undefined) e.textContent = text;
  parent.append(e);
  return e;
}

const clamp = (v, low, high) => Math.min(Math.max(v, low), high);

export class GraphPanel extends SidePanel {
  /// `game` gives the graph (a career of the hall gives its own, placed at `place`).
  constructor(game, words, close, keys, keyName, place = 'graph') {
    const w = words.graph;
    super({ place, keyPlace: 'graph', words: w, close, width: 720, height: 460 });
    this.game = game;
    this.words = w;
    this.keys = keys;
    this.data = null;
    this.picked = -1;    // the point picked, -1 for none
    this.latest = true;  // the pick follows the latest week as weeks come

    this.slider = document.createElement('div');
    this.slider.className = 'graph';
    this.slider.tabIndex = 0;
    this.slider.setAttribute('role', 'slider');
    this.slider.setAttribute('aria-label', w.name);
    this.svg = draw(this.slider, 'svg', {
      width: WIDTH, height: HEIGHT, viewBox: `0 0 ${WIDTH} ${HEIGHT}`, 'aria-hidden': 'true',
      focusable: 'false',
    });
    this.readout = document.createElement('p');
    this.readout.className = 'readout';
    this.content.append(this.slider, this.readout);
    this.footnote.textContent = w.hint;

    this.slider.addEventListener('keydown', (event) => {
      const row = keys.find('graph', keyName(event), MOVES);
      if (!row || !this.data) return;
      event.preventDefault();
      this.pick(this.game.graphMove(row.action, this.picked, this.data.points.length));
    });
    this.svg.addEventListener('pointermove', (event) => {
      if (!this.data || !this.data.points.length) return;
      const box = this.svg.getBoundingClientRect();
      this.pick(this.indexAt((event.clientX - box.left) * WIDTH / box.width));
    });
  }

  firstFocus() { return this.slider; }
  opened() { this.load(); }
  refresh() { this.load(); }

  /// How many dates fit across the plot without crowding.
  room() { return Math.floor(PLOT.width / (textWidth('00/00/0000') + 18)); }

  load() {
    this.data = this.game.graph(this.room(), this.latest ? -1 : this.picked);
    this.picked = this.data.picked;
    this.drawAll();
    this.showPick(this.data);
  }

  /// Picks a point: its words come from the game.
  pick(index) {
    if (index === this.picked || index < 0) return;
    const p = this.game.graphPick(index);
    this.picked = p.picked;
    this.latest = this.picked === this.data.points.length - 1;
    this.showPick(p);
  }

  x(i) {
    const n = this.data.points.length;
    if (n < 2) return PLOT.left + PLOT.width / 2;
    return PLOT.left + 10 + (PLOT.width - 20) * i / (n - 1);
  }

  y(value, scale) {
    const span = scale.step * this.data.scales.intervals;
    return PLOT.top + PLOT.height - PLOT.height * (value - scale.low) / span;
  }

  indexAt(x) {
    const n = this.data.points.length;
    if (n < 2) return 0;
    return clamp(Math.round((x - PLOT.left - 10) / (PLOT.width - 20) * (n - 1)), 0, n - 1);
  }

  /// The picture as the points stand: grid, scales, dates, holidays, loads and the two lines.
  drawAll() {
    const { svg, words: w } = this;
    const { points, scales, grid } = this.data;
    const r = PLOT;
    const bottom = r.top + r.height;
    const right = r.left + r.width;
    svg.replaceChildren();
    draw(svg, 'rect', { x: 0, y: 0, width: WIDTH, height: HEIGHT, class: 'ground' });
    draw(svg, 'rect', { x: r.left, y: r.top, width: r.width, height: r.height, class: 'paper' });

    // The key, under the dates.
    let keyX = r.left;
    for (const [line, text] of [['cash', w.cash_line], ['fans', w.fans_line]]) {
      draw(svg, 'line', { x1: keyX, y1: bottom + 34, x2: keyX + 22, y2: bottom + 34,
                          class: `key ${line}` });
      draw(svg, 'text', { x: keyX + 28, y: bottom + 38, class: 'ink' }, text);
      keyX += 28 + textWidth(text) + 24;
    }

    if (!points.length) {
      draw(svg, 'rect', { x: r.left, y: r.top, width: r.width, height: r.height, class: 'frame' });
      const lines = w.empty.split('\n');
      lines.forEach((line, k) => draw(svg, 'text', {
        x: r.left + r.width / 2, y: r.top + r.height / 2 + (k - (lines.length - 1) / 2) * 15,
        class: 'dim middle', 'dominant-baseline': 'middle' }, line));
      this.pickLayer = draw(svg, 'g', {});
      return;
    }

    // Grid lines with the two scales.
    grid.forEach((labels, k) => {
      const y = bottom - r.height * k / scales.intervals;
      draw(svg, 'line', { x1: r.left, y1: y, x2: right, y2: y, class: 'grid' });
      draw(svg, 'text', { x: r.left - 8, y, class: 'cash end', 'dominant-baseline': 'middle' },
           labels.cash);
      draw(svg, 'text', { x: right + 8, y, class: 'fans', 'dominant-baseline': 'middle' },
           labels.fans);
    });
    if (scales.cash.low < 0) {
      const y = this.y(0, scales.cash);
      draw(svg, 'line', { x1: r.left, y1: y, x2: right, y2: y, class: 'zero' });
    }

    // Dated ticks, spaced so that the dates never crowd.
    const n = points.length;
    for (let i = 0; i < n; i += this.data.date_step) {
      const x = this.x(i);
      draw(svg, 'line', { x1: x, y1: bottom, x2: x, y2: bottom + 5, class: 'tick' });
      const width = textWidth(points[i].date);
      draw(svg, 'text', { x: clamp(x - width / 2, 2, WIDTH - width - 2), y: bottom + 19,
                          class: 'ink' }, points[i].date);
    }

    // The weeks the band was away: a shaded band each, named at its foot.
    const half = n > 1 ? (this.x(1) - this.x(0)) / 2 : 0;
    for (let i = 0; i < n; ++i) {
      if (!points[i].holiday || (i > 0 && points[i - 1].holiday)) continue;
      let last = i;
      while (last + 1 < n && points[last + 1].holiday) ++last;
      const left = Math.max(r.left, this.x(i) - half);
      const width = Math.min(right, this.x(last) + half) - left;
      draw(svg, 'rect', { x: left, y: r.top, width, height: r.height, class: 'holiday' });
      draw(svg, 'text', { x: left + width / 2, y: bottom - 4, class: 'dim middle' }, w.holiday);
    }

    // Where a load began a stretch of play, named over the plot.
    for (const stretch of this.data.stretches) {
      const x = this.x(stretch.index);
      draw(svg, 'line', { x1: x, y1: r.top - 4, x2: x, y2: bottom, class: 'zero' });
      const width = textWidth(stretch.label);
      draw(svg, 'text', { x: clamp(x - width / 2, 2, WIDTH - width - 2), y: r.top - 9,
                          class: 'ink' }, stretch.label);
    }

    // The two lines, a piece for each stretch; a holiday week is stepped over.
    for (const [name, value, scale] of [['fans', (p) => p.popularity, scales.fans],
                                        ['cash', (p) => p.cash, scales.cash]]) {
      let path = '';
      points.forEach((p, i) => {
        if (p.holiday) return;
        path += `${i === 0 || p.start ? 'M' : 'L'}${this.x(i).toFixed(1)},` +
                `${this.y(value(p), scale).toFixed(1)}`;
      });
      draw(svg, 'path', { d: path, class: `series ${name}` });
      if (n > DOTTED_POINTS) continue;
      points.forEach((p, i) => {
        if (p.holiday) return;
        draw(svg, 'circle', { cx: this.x(i), cy: this.y(value(p), scale), r: 3,
                              class: `dot ${name}${p.start ? ' start' : ''}` });
      });
    }
    draw(svg, 'rect', { x: r.left, y: r.top, width: r.width, height: r.height, class: 'frame' });
    this.pickLayer = draw(svg, 'g', {});
  }

  /// The picked point: a line down the plot, a ring on each line and its figures beside it;
  /// in words, the slider's value and the read-out under the graph.
  showPick(p) {
    const n = this.data.points.length;
    this.readout.textContent = p.readout;
    this.slider.setAttribute('aria-valuemin', '0');
    this.slider.setAttribute('aria-valuemax', String(Math.max(0, n - 1)));
    this.slider.setAttribute('aria-valuenow', String(Math.max(0, p.picked)));
    this.slider.setAttribute('aria-valuetext', p.readout);
    const layer = this.pickLayer;
    layer.replaceChildren();
    if (p.picked < 0) return;
    const point = this.data.points[p.picked];
    const { scales } = this.data;
    const x = this.x(p.picked);
    const fansY = this.y(point.popularity, scales.fans);
    const cashY = this.y(point.cash, scales.cash);
    draw(layer, 'line', { x1: x, y1: PLOT.top, x2: x, y2: PLOT.top + PLOT.height, class: 'picked' });
    if (!point.holiday) {
      draw(layer, 'circle', { cx: x, cy: fansY, r: 5, class: 'ring fans' });
      draw(layer, 'circle', { cx: x, cy: cashY, r: 5, class: 'ring cash' });
    }
    const width = Math.max(...p.label.map(textWidth)) + 16;
    const height = 3 * 15 + 10;
    const at = this.game.placeLabel(PLOT, x, fansY, cashY, width, height, 10);
    draw(layer, 'rect', { x: at.left, y: at.top, width, height, rx: 4, class: 'label' });
    ['ink', 'cash', 'fans'].forEach((colour, k) => draw(
      layer, 'text', { x: at.left + 8, y: at.top + 18 + 15 * k, class: colour }, p.label[k]));
  }
}
