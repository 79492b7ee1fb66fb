"""How many exchanges there were when, how they ended, and how long they took."""

from __future__ import annotations

from typing import Any

from wire.exchange_log import ExchangeLog, local_time

from .exchange_filter import ExchangeFilter

MOST_BUCKETS = 400
# What people expect of a scale: spans that fit into a minute, an hour or a day.
_STEPS = [step * unit for unit, steps in (
    (1, (10, 20, 50, 100, 200, 500)), (1000, (1, 2, 5, 10, 15, 30)),
    (60_000, (1, 2, 5, 10, 15, 30)), (3_600_000, (1, 2, 6, 12)), (86_400_000, (1, 2, 7, 30, 365)),
) for step in steps]


def timeline(log: ExchangeLog, chosen: ExchangeFilter, most: int) -> dict[str, Any]:
    """Buckets of equal length, those without an exchange left out. Only the summaries count: the
    words of a filter that stand in messages are not looked for."""
    where, values = chosen.condition, list(chosen.values)
    for excludes, word in chosen.words:
        where += f" AND instr(words, ?) {'=' if excludes else '>'} 0"
        values.append(word)
    ((first, last),) = log.table.rows(
        f"SELECT min(at), max(at) FROM exchange WHERE {where}", values)
    if first is None:
        return {"step": _STEPS[0], "from": 0, "count": 0, "buckets": []}
    step = next((one for one in _STEPS if (last - first) / one < most), _STEPS[-1])
    begin = first - first % step
    rows = log.table.rows(
        "SELECT (at - ?) / ? AS bucket, outcome, count(*), sum(milliseconds), max(milliseconds) "
        f"FROM exchange WHERE {where} GROUP BY bucket, outcome ORDER BY bucket",
        [begin, step, *values])
    buckets: dict[int, dict[str, Any]] = {}
    for at, outcome, count, total, slowest in rows:
        bucket = buckets.setdefault(at, {"at": at, "time": local_time(begin + at * step)[:19],
                                         "outcomes": {}, "total": 0.0, "slowest": 0.0})
        bucket["outcomes"][outcome] = count
        bucket["total"] += total
        bucket["slowest"] = max(bucket["slowest"], slowest)
    return {"step": step, "from": begin, "count": (last - begin) // step + 1,
            "buckets": list(buckets.values())}
