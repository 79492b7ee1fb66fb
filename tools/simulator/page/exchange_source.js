// Which exchanges the filter lets through, by number; and what the list says of those that are in sight.
import {get} from "./control.js";
import {NumberRanges} from "./number_ranges.js";

const MOST_KEPT = 3000;
// One call says this much at most.
const PAGE = 400;

export class ExchangeSource {
  /** `onChange` is called whenever there is more to show. */
  constructor(onChange) {
    this.onChange = onChange;
    this.numbers = new NumberRanges();
    this.entries = new Map();
    this.asked = new Set();
    this.filter = "";
    this.search = 0;
    this.missed = Infinity;
    this.isSearching = false;
  }

  get count() { return this.numbers.count; }
  keyAt(place) { return this.numbers.at(place); }
  placeOf(key) { return this.numbers.placeOf(Number(key)); }
  item(place) { return this.entries.get(this.numbers.at(place)); }

  /** Looks for all that fit, the latest first; what is found shows as it is found. */
  async load(filter, last = 999999999) {
    const search = ++this.search;
    this.filter = filter;
    this.isSearching = true;
    this.missed = Infinity;
    let isFirst = true;
    for (let to = last; to >= 1;) {
      const {ranges, reached} = await this.matches(1, to);
      if (search !== this.search) return;
      if (isFirst) this.numbers.clear();
      isFirst = false;
      this.numbers.add(ranges);
      to = reached - 1;
      this.isSearching = to >= 1;
      this.onChange();
    }
    // What ended after the server had looked and before its answer came.
    if (this.missed < Infinity) await this.addFitting(this.missed, last);
    this.onChange();
  }

  matches(from, to) {
    return get(`exchanges/matches?from=${from}&to=${to}&filter=${encodeURIComponent(this.filter)}`);
  }

  /** Takes in exchanges that have just ended; how many of them fit. */
  async add(ranges, lowest) {
    const before = this.count;
    if (this.isSearching && ranges.length) this.missed = Math.min(this.missed, ranges[0][0]);
    if (this.filter && ranges.length) await this.addFitting(ranges[0][0], ranges.at(-1)[1]);
    else this.numbers.add(ranges);
    const added = this.count - before;
    this.numbers.dropBelow(lowest);
    return added;
  }

  async addFitting(from, last) {
    const search = this.search;
    for (let to = last; to >= from;) {
      const {ranges, reached} = await this.matches(from, to);
      if (search !== this.search) return;
      this.numbers.add(ranges);
      to = reached - 1;
    }
  }

  /** Forgets what is known: after the record has been cleared, numbers begin anew. */
  forget() {
    this.search++;
    this.numbers.clear();
    this.entries.clear();
    this.asked.clear();
  }

  /** Fetches what the list says of the places that are in sight, as far as it is not here. */
  async want(first, end) {
    const missing = [];
    for (let place = first; place < Math.min(end, this.count); place++) {
      const number = this.keyAt(place);
      if (!this.entries.has(number) && !this.asked.has(number)) missing.push(number);
    }
    if (!missing.length) return;
    for (const number of missing) this.asked.add(number);
    try {
      for (let at = 0; at < missing.length; at += PAGE) await this.fetch(missing.slice(at, at + PAGE));
    } finally {
      for (const number of missing) this.asked.delete(number);
    }
    this.onChange();
  }

  async fetch(numbers) {
    const wanted = new NumberRanges();
    wanted.add(numbers.map((number) => [number, number]));
    const text = wanted.ranges.map(([first, last]) => first === last ? first : `${first}-${last}`).join(",");
    for (const entry of await get(`exchanges?numbers=${text}`)) this.entries.set(entry.number, entry);
    for (const number of this.entries.keys()) {
      if (this.entries.size <= MOST_KEPT) break;
      this.entries.delete(number);
    }
  }
}
