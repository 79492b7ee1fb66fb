"""What the clients of the services are told, rule by rule, for whatever arrives.

Written from the documentation of the services and sharing nothing with them. An outcome that ends
in "…" is known as far as that: the rest is the platform's wording.
"""

from __future__ import annotations

from arrival import Arrival, Content

SUCCESS = "success"
FOUND = "SearchCompleted, cards: 1"
SOME = "…"

PARTIALLY_OFFLINE = ("The LEJIS core server appears to be partially offline. It returned a {} HTTP status code but "
                     "did not return a valid SOAP XML response.")
UNEXPECTED_ANSWER = ("The LEJIS core server returned an unexpected response. This likely means the core is either "
                     "experiencing planned downtime or unexpected technical problems. \r\n"
                     "It's also possible that your LEJIS Interface settings are incorrect.")
UNEXPECTED_ERROR = ("The LEJIS server returned an unexpected error. \r\n\r\n"
                    "Check that the correct JNET User ID is configured for your user account in Administration and "
                    "that the machine where the LEJIS Interface is running has a valid LEJIS certificate installed "
                    "and configured.\r\n\r\n"
                    "If the issue persists, check the LEJISRedirector log on your LEJIS Interface machine/server.")
NO_MESSAGE_TEXT = "The LEJIS server returned HTTP status code {} (no message text)"
NO_CODE = "The server did not return a submissionResponse code."
SERVICE_DOWN = "The LEJIS Interface service is down. It may need to be restarted."
WITHDRAWN = "ConfigurationError: Invalid URL ''."
CANCELLED = -2147212766
NO_OBJECT = "Internal error in web service code: Object required"
NETWORK_MESSAGES = {
    12002: "The connection timed-out.",
    12007: "Host not found.",
    12019: "The LEJIS server couldn't complete your request. The most likely cause is an invalid LEJIS certificate "
           "configured in the LEJIS Interface or an invalid JNET User ID for your user account.",
    12029: "The LEJIS Interface is down or not accessible. Make sure the LEJIS Interface server role is running on "
           "your Talvex server.",
    12030: "Network error: Connection aborted.",
    12031: "Network error: Connection reset.",
}
# The number of the errors of the schema check.
SCHEMA_ERROR = -2147220735


def is_transient(status: int) -> bool:
    """Whether the status alone says that it may go better later."""
    return status in (0, 400, 408, 502, 504, 12019) or status > 12000


def network_message(arrival: Arrival) -> str:
    """What is said of a transient status."""
    if arrival.status in NETWORK_MESSAGES:
        return NETWORK_MESSAGES[arrival.status]
    return UNEXPECTED_ERROR if arrival.phrase else NO_MESSAGE_TEXT.format(arrival.status)


def submission(arrival: Arrival) -> str:
    """The outcome of a submission or deletion that is waited for."""
    if is_transient(arrival.status):
        return f"transient: {network_message(arrival)}"
    if arrival.status == 403:
        return f"fatal: {arrival.phrase}"
    if arrival.content in (Content.NO_XML, Content.OTHER_XML):
        return f"transient: {PARTIALLY_OFFLINE.format(arrival.status)}"
    return _accepted(arrival) if arrival.status == 200 else _refused(arrival)


def _refused(arrival: Arrival) -> str:
    if arrival.content is Content.NO_BODY:
        return f"fatal: {NO_OBJECT} (Line 5)"
    if arrival.content is Content.FAULT:
        return f"fatal: {arrival.text}"
    return f"transient: {UNEXPECTED_ANSWER}"


def _accepted(arrival: Arrival) -> str:
    if arrival.content is Content.NO_BODY:
        return f"fatal: {NO_OBJECT} (Line 6)"
    return SUCCESS if arrival.content is Content.RIGHT else f"transient: {NO_CODE}"


def search(arrival: Arrival) -> str:
    """The outcome of a search: its one event."""
    if arrival.status == 200:
        return FOUND if arrival.content is Content.RIGHT else f"ServiceError: {NO_OBJECT}"
    if is_transient(arrival.status):
        return f"NetworkError: {network_message(arrival)}"
    if arrival.status == 403:
        return f"ConfigurationError: {arrival.phrase}"
    if arrival.content in (Content.OTHER_XML, Content.NO_BODY):
        return f"ServiceError: {NO_OBJECT}"
    return f"ServiceError: {arrival.text if arrival.content is Content.FAULT else UNEXPECTED_ANSWER}"


def schema_check(arrival: Arrival) -> str:
    """The outcome of a submission that is checked against a description fetched so. An error keeps it back."""
    if is_transient(arrival.status):
        return kept_back(network_message(arrival))
    if arrival.status != 200:
        return kept_back(arrival.text)
    if arrival.content is Content.NO_XML:
        return kept_back("The WSDL could not be read: error " + SOME)
    # A description without types checks nothing.
    return SUCCESS


def kept_back(description: str, number: int = SCHEMA_ERROR) -> str:
    """A submission that was not sent, for a reason that the third step of sending gives."""
    whole = f"fatal: Internal error {number}: Error in DoSubmit (line 3): {description}"
    return whole if whole.endswith(SOME) else f"{whole} (Line 1)"


RULES = {"submit": submission, "delete": submission, "search": search, "wsdl": schema_check}


def fulfils(outcome: str, documented: tuple[str, ...]) -> bool:
    """Whether the outcome seen is one of those documented."""
    return any(outcome.startswith(each.removesuffix(SOME)) if each.endswith(SOME) else outcome == each
               for each in documented)
