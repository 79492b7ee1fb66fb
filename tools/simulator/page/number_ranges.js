// A set of numbers that mostly follow each other, in which the latest comes first.

export class NumberRanges {
  constructor() {
    this.clear();
  }

  clear() {
    this.ranges = [];
    this.starts = [];
    this.count = 0;
  }

  /** Adds pairs of the first and the last number. */
  add(pairs) {
    if (!pairs.length) return;
    const sorted = [...this.ranges, ...pairs.map((pair) => [...pair])].sort((one, other) => one[0] - other[0]);
    const merged = [];
    for (const [first, last] of sorted) {
      const previous = merged.at(-1);
      if (previous && first <= previous[1] + 1) previous[1] = Math.max(previous[1], last);
      else merged.push([first, last]);
    }
    this.become(merged);
  }

  /** Drops every number below this one. */
  dropBelow(number) {
    if (!this.ranges.length || this.ranges[0][0] >= number) return;
    this.become(this.ranges.filter(([, last]) => last >= number).map(([first, last]) => [Math.max(first, number), last]));
  }

  become(ranges) {
    this.ranges = ranges;
    let count = 0;
    // How many numbers there are before each range.
    this.starts = ranges.map(([first, last]) => {
      const before = count;
      count += last - first + 1;
      return before;
    });
    this.count = count;
  }

  /** The number at a place, 0 being that of the latest. */
  at(place) {
    const rising = this.count - 1 - place;
    const range = lastAtMost(this.starts, rising);
    return this.ranges[range][0] + rising - this.starts[range];
  }

  /** The place of a number, or -1. */
  placeOf(number) {
    const range = lastAtMost(this.ranges.map(([first]) => first), number);
    if (range < 0 || number > this.ranges[range][1]) return -1;
    return this.count - 1 - (this.starts[range] + number - this.ranges[range][0]);
  }
}

function lastAtMost(rising, value) {
  let [low, high] = [0, rising.length];
  while (low < high) {
    const middle = (low + high) >> 1;
    if (rising[middle] <= value) low = middle + 1;
    else high = middle;
  }
  return low - 1;
}
