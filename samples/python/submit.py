"""py submit.py URL
Submits one incident to LEJIS and says what became of it.
Ends with 0: taken, 1: refused, trying again does not help, 2: try again later."""
import datetime
import sys

import pywintypes
from win32com.client import Dispatch

TRANSIENT_ERROR = -1550879440


def burglary():
    incident = Dispatch("TVLejisCore.LejisIncidentIndexCard")
    incident.OrganizationName = "Harlow Police Department"
    incident.OrganizationORI = "PA0250100"
    incident.ActivityID = "2007-000123"
    incident.SubmittedDate.Value = datetime.datetime.now()
    incident.ActivityDateTime.Value = datetime.datetime(2007, 3, 9, 14, 5)
    incident.ChargeNCICCode = "2202"
    incident.ChargeDescriptionText = "Burglary, forced entry, residence"
    # The parts of an incident are there from the beginning and are filled in place.
    incident.Location.StreetNumber.Value = 12
    incident.Location.StreetName = "HARBOUR"
    incident.Location.StreetType = "RD"
    incident.Location.City = "HARLOW"
    incident.Location.State = "PA"
    incident.Location.ZIP = "170991234"

    victim = Dispatch("TVLejisCore.LejisPersonIndexCard")
    victim.GivenName = "JOHN"
    victim.SurName = "PUBLIC"
    victim.Involvement = "VICTIM"
    victim.BirthDate.Value = datetime.datetime(1970, 1, 31)
    victim.RaceNCIC = "X"
    incident.PersonIndexCards.Add(victim)

    television = Dispatch("TVLejisCore.LejisPropertyIndexCard")
    television.Category = "TELEVISION"
    television.Make = "NORTHWIND"
    television.SerialID = "NW14-88213-K"
    incident.PropertyIndexCards.Add(television)
    return incident


def submit(url):
    service = Dispatch("TVLejisCore.LejisSubmissionWebService")
    service.URL = url
    try:
        warnings = service.SubmitIncident(burglary())
    except pywintypes.com_error as error:
        # The number and the text of the library; error.hresult only says that there was an exception.
        _, _, text, _, _, number = error.excepinfo or (None, None, error.strerror, None, None, error.hresult)
        if number == TRANSIENT_ERROR:
            print("Not sent, try again later:", text)
            return 2
        # tvFatalError, or a mistake in this program: neither gets better by itself.
        print("Refused:", text)
        return 1
    print(f"Submitted with {warnings.Count} warning(s).")
    # The first item has the number 1.
    for number in range(1, warnings.Count + 1):
        print("Warning:", warnings.Item(number))
    return 0


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit("usage: py submit.py URL")
    sys.exit(submit(*sys.argv[1:]))
