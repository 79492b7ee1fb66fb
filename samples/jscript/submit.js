// cscript //nologo submit.js URL
// Submits one incident to LEJIS and says what became of it.
// Ends with 0: taken, 1: refused, trying again does not help, 2: try again later.
var tvTransientError = 0xA38F7530 | 0;

function burglary() {
    var incident = new ActiveXObject("TVLejisCore.LejisIncidentIndexCard");
    incident.OrganizationName = "Harlow Police Department";
    incident.OrganizationORI = "PA0250100";
    incident.ActivityID = "2007-000123";
    // A Date of JScript is an object, which is no date to the library; its text is one, in this form.
    incident.SubmittedDate.Value = textOf(new Date());
    incident.ActivityDateTime.Value = "2007-03-09 14:05:00";
    incident.ChargeNCICCode = "2202";
    incident.ChargeDescriptionText = "Burglary, forced entry, residence";
    // The parts of an incident are there from the beginning and are filled in place.
    incident.Location.StreetNumber.Value = 12;
    incident.Location.StreetName = "HARBOUR";
    incident.Location.StreetType = "RD";
    incident.Location.City = "HARLOW";
    incident.Location.State = "PA";
    incident.Location.ZIP = "170991234";

    var victim = new ActiveXObject("TVLejisCore.LejisPersonIndexCard");
    victim.GivenName = "JOHN";
    victim.SurName = "PUBLIC";
    victim.Involvement = "VICTIM";
    victim.BirthDate.Value = "1970-01-31";
    victim.RaceNCIC = "X";
    incident.PersonIndexCards.Add(victim);

    var television = new ActiveXObject("TVLejisCore.LejisPropertyIndexCard");
    television.Category = "TELEVISION";
    television.Make = "NORTHWIND";
    television.SerialID = "NW14-88213-K";
    incident.PropertyIndexCards.Add(television);
    return incident;
}

function textOf(date) {
    return date.getFullYear() + "-" + twoDigits(date.getMonth() + 1) + "-" + twoDigits(date.getDate()) + " " +
        twoDigits(date.getHours()) + ":" + twoDigits(date.getMinutes()) + ":" + twoDigits(date.getSeconds());
}

function twoDigits(number) {
    return (number < 10 ? "0" : "") + number;
}

function submit(url) {
    var service = new ActiveXObject("TVLejisCore.LejisSubmissionWebService");
    var warnings, number;
    service.URL = url;
    try {
        warnings = service.SubmitIncident(burglary());
    } catch (error) {
        if (error.number == tvTransientError) {
            WScript.Echo("Not sent, try again later: " + error.description);
            return 2;
        }
        // tvFatalError, or a mistake in this script: neither gets better by itself.
        WScript.Echo("Refused: " + error.description);
        return 1;
    }
    WScript.Echo("Submitted with " + warnings.Count + " warning(s).");
    // The first item has the number 1.
    for (number = 1; number <= warnings.Count; ++number) WScript.Echo("Warning: " + warnings.Item(number));
    return 0;
}

WScript.Quit(submit(WScript.Arguments(0)));
