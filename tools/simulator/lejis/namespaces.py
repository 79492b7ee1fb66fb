"""The names that the LEJIS Interface and its clients agree on. Every URI stands here, once."""

from __future__ import annotations

import re

DEFAULT_LEJIS_HOST = "lejis.example"

SOAP = "http://schemas.xmlsoap.org/soap/envelope/"
WSSE = "http://docs.oasis-open.org/wss/2004/01/oasis-200401-wss-wssecurity-secext-1.0.xsd"
GJXDM = "http://www.it.ojp.gov/jxdm/3.0.3"
WSDL = "http://schemas.xmlsoap.org/wsdl/"
XSD = "http://www.w3.org/2001/XMLSchema"

SUBMISSION_PATH = "/lejis-core-Rev01/services/submission"
SEARCH_PATH = "/lejis-core-Rev01/services/search"
SCHEMAS_PATH = "/lejis-core-Rev01/schemas/"
CONTROL_PATH = "/control/"

_HOST = re.compile(r"[A-Za-z0-9]([A-Za-z0-9.-]*[A-Za-z0-9])?(:[0-9]{1,5})?")


class Namespaces:
    """The URIs of one LEJIS installation: all of its own lie on its host."""

    def __init__(self, lejis_host: str = DEFAULT_LEJIS_HOST) -> None:
        if not _HOST.fullmatch(lejis_host):
            raise ValueError(f"'{lejis_host}' is not a host name.")
        self.host = lejis_host
        root = f"http://{lejis_host}/lejis/jxdm/1.0/"
        self.service = root + "service"
        self.card = root + "card"
        self.extension = root + "card/extra"
        self.submit_action = self.service + "/submitRmsIndex"
        # The two services order the parts of their actions differently.
        self.search_action = f"http://{lejis_host}/lejis/1.0/service/jxdm/searchIndex"

    @property
    def prefixes(self) -> dict[str, str]:
        """The customary prefixes, for queries and for messages that people read."""
        return {"soap": SOAP, "wsse": WSSE, "lejis": self.service, "j": GJXDM,
                "ext": self.extension, "card": self.card}

    @property
    def placeholders(self) -> dict[str, str]:
        """What the schema files leave open, with the text that belongs there."""
        return {"@SERVICE@": self.service, "@CARD@": self.card, "@EXTENSION@": self.extension,
                "@GJXDM@": GJXDM, "@SUBMIT_ACTION@": self.submit_action,
                "@SEARCH_ACTION@": self.search_action}

    def shorten(self, text: str) -> str:
        """The text with every '{uri}' that has a customary prefix written as 'prefix:'."""
        for prefix, uri in self.prefixes.items():
            text = text.replace("{" + uri + "}", prefix + ":")
        return text
