"""The control calls that concern the index."""

from __future__ import annotations

from lejis.incident_index import IncidentIndex
from lejis.namespaces import Namespaces
from views.card_view import CardView
from wire.http_response import HttpResponse

from .control_call import ControlCall
from .control_endpoint import Calls, forgotten
from .index_seed import IndexSeed


class IndexCalls:
    """What is held, whole or in short, and how it gets there without a submission."""

    def __init__(self, index: IncidentIndex, seed: IndexSeed, namespaces: Namespaces) -> None:
        self._index, self._seed, self._namespaces = index, seed, namespaces
        self.table: Calls = {
            ("GET", "index"): self._summaries,
            ("POST", "index"): self._add_cards,
            ("DELETE", "index"): lambda call: forgotten(index.clear()),
            ("GET", "index/card"): self._card,
            ("GET", "index/card/view"): self._card_view,
        }

    def _summaries(self, call: ControlCall) -> HttpResponse:
        """All summaries; or `count` of them from a place on, with the number of all that hold the text."""
        most = call.number("count")
        if most is None:
            return HttpResponse.json(self._index.summaries())
        text = call.request.query.get("text", "")
        total, cards = self._index.page(text, call.number("from") or 0, min(most, _MOST_CARDS))
        return HttpResponse.compact_json({"total": total, "cards": cards})

    def _add_cards(self, call: ControlCall) -> HttpResponse:
        done = self._seed.add(call.request.body)
        return HttpResponse.json({what: done[what] for what in ("added", "replaced")})

    def _card(self, call: ControlCall) -> HttpResponse:
        card = self._held(call)
        return _NOT_HELD if card is None else HttpResponse.xml(card.encode())

    def _card_view(self, call: ControlCall) -> HttpResponse:
        card = self._held(call)
        if card is None:
            return _NOT_HELD
        return HttpResponse.json(CardView(card, self._namespaces).to_json())

    def _held(self, call: ControlCall) -> str | None:
        return self._index.card(call.argument("ori"), call.argument("id"))


_MOST_CARDS = 500
_NOT_HELD = HttpResponse.text(404, "No such incident is held.")
