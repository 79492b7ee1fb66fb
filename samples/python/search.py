"""py search.py URL USER SURNAME
Searches LEJIS for a person and lists the incidents found.
Ends with 0: answered, 1: refused, trying again does not help, 2: try again later."""
import sys
import time

import pythoncom
from win32com.client import Dispatch, DispatchWithEvents

exit_code = None


class SearchEvents:
    """The handlers of the events: "On" and the event's name."""

    def OnSearchCompleted(self, results):
        # COM drops what a handler raises, and the program would wait for ever.
        try:
            list_incidents(Dispatch(results))
            end(0)
        finally:
            if exit_code is None:
                end(1)

    def OnNetworkError(self, reasonMessage):
        print("No answer, try again later:", reasonMessage)
        end(2)

    def OnConfigurationError(self, reasonMessage):
        print("Not set up correctly, tell the administrator:", reasonMessage)
        end(1)

    def OnServiceError(self, reasonMessage):
        print("Refused:", reasonMessage)
        end(1)


def list_incidents(incidents):
    print(f"{incidents.Count} incident(s) found.")
    # The first item has the number 1.
    for number in range(1, incidents.Count + 1):
        incident = Dispatch(incidents.Item(number))
        print(incident.OrganizationORI, incident.ActivityID, incident.ChargeDescriptionText)
        for person_number in range(1, incident.PersonIndexCards.Count + 1):
            person = Dispatch(incident.PersonIndexCards.Item(person_number))
            print(f"    {person.GivenName} {person.SurName} ({person.Involvement})")


def end(code):
    global exit_code
    exit_code = code


def search(url, user, surname):
    service = DispatchWithEvents("TVLejisCore.LejisSearchWebService", SearchEvents)
    service.URL = url
    service.Username = user
    request = Dispatch("TVLejisCore.LejisSearchRequest")
    request.personArguments.SurName = surname
    request.InquiryControls.MaxIncidents = 50
    # Search raises nothing and returns at once. Exactly one of the events follows, from the thread's messages.
    service.Search(request)
    while exit_code is None:
        pythoncom.PumpWaitingMessages()
        time.sleep(0.05)
    return exit_code


if __name__ == "__main__":
    if len(sys.argv) != 4:
        sys.exit("usage: py search.py URL USER SURNAME")
    sys.exit(search(*sys.argv[1:]))
