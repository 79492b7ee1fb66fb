// cscript //nologo search.js URL USER SURNAME
// Searches LEJIS for a person and lists the incidents found.
// Ends with 0: answered, 1: refused, trying again does not help, 2: try again later.
var exitCode = null;

// The handlers of the events: the prefix of ConnectObject and the event's name.
function service_SearchCompleted(results) {
    var number, personNumber, incident, person;
    WScript.Echo(results.Count + " incident(s) found.");
    for (number = 1; number <= results.Count; ++number) {
        incident = results.Item(number);
        WScript.Echo(incident.OrganizationORI + " " + incident.ActivityID + " " + incident.ChargeDescriptionText);
        for (personNumber = 1; personNumber <= incident.PersonIndexCards.Count; ++personNumber) {
            person = incident.PersonIndexCards.Item(personNumber);
            WScript.Echo("    " + person.GivenName + " " + person.SurName + " (" + person.Involvement + ")");
        }
    }
    exitCode = 0;
}

function service_NetworkError(reasonMessage) {
    WScript.Echo("No answer, try again later: " + reasonMessage);
    exitCode = 2;
}

function service_ConfigurationError(reasonMessage) {
    WScript.Echo("Not set up correctly, tell the administrator: " + reasonMessage);
    exitCode = 1;
}

function service_ServiceError(reasonMessage) {
    WScript.Echo("Refused: " + reasonMessage);
    exitCode = 1;
}

var service = new ActiveXObject("TVLejisCore.LejisSearchWebService");
WScript.ConnectObject(service, "service_");
service.URL = WScript.Arguments(0);
service.Username = WScript.Arguments(1);

var request = new ActiveXObject("TVLejisCore.LejisSearchRequest");
request.personArguments.SurName = WScript.Arguments(2);
request.InquiryControls.MaxIncidents = 50;

// Search raises nothing and returns at once. Exactly one of the events follows, from the message loop, which runs while
// the script sleeps.
service.Search(request);
while (exitCode === null) {
    WScript.Sleep(50);
}
WScript.Quit(exitCode);
