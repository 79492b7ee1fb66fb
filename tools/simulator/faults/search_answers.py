"""Answers to searches that no index has given."""

from __future__ import annotations

from lejis import soap
from lejis.namespaces import Namespaces

_PLACE = """<j:LocationAddress><j:LocationStreet>\
<j:StreetFullText>{number} N Main St</j:StreetFullText>\
<j:StreetNumberText>{number}</j:StreetNumberText>\
<j:StreetPredirectionalText>N</j:StreetPredirectionalText><j:StreetName>Main</j:StreetName>\
<j:StreetTypeText>St</j:StreetTypeText><j:StreetPostdirectionalText/><j:StreetExtensionText/>\
</j:LocationStreet><j:LocationCityName>Millbrook</j:LocationCityName>\
<j:LocationStateCode.ncicLSTA>PA</j:LocationStateCode.ncicLSTA>\
<j:LocationPostalCodeID><j:ID>17000</j:ID></j:LocationPostalCodeID></j:LocationAddress>"""

_KEY = """<card:LejisIndexUid><j:OrganizationORIID><j:ID>PA0123400</j:ID></j:OrganizationORIID>\
<j:ActivityID><j:ID>2007-{number:06}</j:ID></j:ActivityID></card:LejisIndexUid>"""

# One of each kind of card; the number tells one incident from the other.
_CARD = """<lejis:RMSIncidentIndexCard>""" + _KEY + """\
<j:SubmissionSubmittedDate>2007-03-10</j:SubmissionSubmittedDate>\
<j:SubmissionSubmitter.Organization><j:OrganizationName>Millbrook Township Police\
</j:OrganizationName></j:SubmissionSubmitter.Organization>\
<j:ActivityDate>2007-03-09</j:ActivityDate><j:ActivityTime>14:05:00</j:ActivityTime>\
<j:IncidentLocation>""" + _PLACE + """</j:IncidentLocation>\
<j:CaveatText>Incident {number}</j:CaveatText><j:ChargeNCICCode>1313</j:ChargeNCICCode>\
<j:ChargeDescriptionText>Simple assault</j:ChargeDescriptionText>\
<ext:CautionIndicatorFlag>false</ext:CautionIndicatorFlag>\
<card:RMSPersonIndexCards><j:IncidentJurisdictionalOrganization>\
<j:OrganizationName>Millbrook Township Police</j:OrganizationName>\
</j:IncidentJurisdictionalOrganization><j:PersonSurName>PUBLIC</j:PersonSurName>\
<j:PersonGivenName>JOHN {number}</j:PersonGivenName>\
<j:Residence>""" + _PLACE + """</j:Residence><j:PersonBirthDate>1970-01-31</j:PersonBirthDate>\
<j:PersonSexCode>M</j:PersonSexCode>\
<j:PersonHeightMeasure j:personHeightUnitCode="ncic">510</j:PersonHeightMeasure>\
<ext:PersonInvolvement>SUSPECT</ext:PersonInvolvement>\
<ext:CautionIndicatorFlag>false</ext:CautionIndicatorFlag></card:RMSPersonIndexCards>\
<card:RMSVehicleIndexCards><ext:VehicleMakeText>FORD</ext:VehicleMakeText>\
<j:VehicleID><j:ID>VIN{number}</j:ID></j:VehicleID>\
<j:VehicleModelYearDate>2004</j:VehicleModelYearDate>\
<ext:CautionIndicatorFlag>false</ext:CautionIndicatorFlag></card:RMSVehicleIndexCards>\
<card:RMSPropertyIndexCards><j:PropertyTypeText>Firearm</j:PropertyTypeText>\
<j:PropertySerialID><j:ID>S-{number}</j:ID></j:PropertySerialID>\
<ext:CautionIndicatorFlag>false</ext:CautionIndicatorFlag></card:RMSPropertyIndexCards>\
</lejis:RMSIncidentIndexCard>"""


def cards(namespaces: Namespaces, count: int) -> bytes:
    """So many good cards, numbered from 1."""
    return soap.inquiry_response(namespaces, map(_card, range(1, count + 1)), count)


def with_a_bad_card(namespaces: Namespaces) -> bytes:
    """Three cards, of which the second one does not say which incident it is about."""
    bad = _card(2).replace(_KEY.format(number=2), "")
    return soap.inquiry_response(namespaces, (_card(1), bad, _card(3)), 3)


def with_deep_cards(namespaces: Namespaces) -> bytes:
    """Two good cards in an element between them and the response."""
    wrapped = ("<lejis:Incidents>", _card(1), _card(2), "</lejis:Incidents>")
    return soap.inquiry_response(namespaces, wrapped, 2)


def _card(number: int) -> str:
    return _CARD.format(number=number)
