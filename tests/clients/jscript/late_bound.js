// late_bound.js SERVICES: tells of each step that a script takes. Ends with 0 when all have been taken, else with 1.
var InvalidArgument = 0x80040205 | 0;
var BadIndex = 0x8002000B | 0;
var Transient = 0xA38F7530 | 0;
var Fatal = 0xA38F7531 | 0;

var services = WScript.Arguments(0);
var failed = 0;

function same(expected, actual) {
    if (typeof expected != typeof actual || expected !== actual)
        throw new Error(0, "'" + expected + "' was expected, '" + actual + "' came");
}

function begins(beginning, text) {
    if (text.substr(0, beginning.length) != beginning) same(beginning, text);
}

function raises(number, beginning, call) {
    var raised = null;
    try {
        call();
    } catch (error) {
        raised = error;
    }
    if (raised === null) throw new Error(0, "no error was raised");
    same(number, raised.number);
    begins(beginning, raised.description);
}

function create(name) {
    return new ActiveXObject("TVLejisCore." + name);
}

function take(name, step) {
    try {
        step();
        WScript.Echo(name + ": ok");
    } catch (error) {
        ++failed;
        WScript.Echo(name + ": FAILED: " + error.number + " " + error.description);
    }
}

function createAll() {
    same("", create("LejisIncidentIndexCard").ActivityID);
    same(0, create("LejisSubmissionDocument").IncidentIndexCards.Count);
    same("", create("LejisSearchRequest").personArguments.SurName);
    same("2007-03-09", create("LejisCommon").LejisFormatDate("2007-03-09"));
    same("14:05:00", create("LejisCommon").LejisFormatTime("2007-03-09 14:05:00"));
}

function properties() {
    var person = create("LejisPersonIndexCard");
    person.SurName = "M\u00DCLLER \u4E2D";
    person.CautionIndicator = true;
    person.address.City = "HARLOW";
    same("M\u00DCLLER \u4E2D", person.SurName);
    same(true, person.CautionIndicator);
    same("HARLOW", person.address.City);
}

function numbers() {
    var person = create("LejisPersonIndexCard");
    var controls = create("LejisInquiryControls");
    person.Height.Value = 510;
    person.address.StreetNumber.Value = 123456;
    controls.MaxIncidents = 50;
    same(510, person.Height.Value);
    same(123456, person.address.StreetNumber.Value);
    same(50, controls.MaxIncidents);
}

function dates() {
    var person = create("LejisPersonIndexCard");
    var written;
    person.BirthDate.Value = "1970-01-31";
    // Wine's JScript knows no dates of automation, so it cannot read this one.
    written = person.ToXmlElement(new ActiveXObject("MSXML2.DOMDocument.6.0")).xml;
    if (written.indexOf(">1970-01-31<") < 0) same("1970-01-31", written);
}

function nulls() {
    var person = create("LejisPersonIndexCard");
    same(null, person.Weight.Value);
    person.Weight.Value = 180;
    person.Weight.Value = null;
    same(null, person.Weight.Value);
}

function collections() {
    var persons = create("LejisIncidentIndexCard").PersonIndexCards;
    var names = ["A", "B", "C"];
    var number, person;
    for (number = 0; number < names.length; ++number) {
        person = create("LejisPersonIndexCard");
        person.SurName = names[number];
        persons.Add(person);
    }
    persons.Remove(2);
    same(2, persons.Count);
    same("C", persons.Item(2).SurName);
    same("A", persons(1).SurName);
    raises(BadIndex, "There is no item 3: the collection holds 2.", function () { persons.Item(3); });
}

function errors() {
    var date = create("NullableDate");
    raises(InvalidArgument, "Not a valid date.", function () { date.Value = "hello"; });
}

function xml() {
    var documentOfMine = new ActiveXObject("MSXML2.DOMDocument.6.0");
    var person = create("LejisPersonIndexCard");
    var copy = create("LejisPersonIndexCard");
    var envelope = create("SOAPEnvelope");
    var read = create("SOAPEnvelope");
    person.SurName = "PUBLIC";
    person.Height.Value = 510;
    copy.FromXmlElement(person.ToXmlElement(documentOfMine));
    same("PUBLIC", copy.SurName);
    same(510, copy.Height.Value);
    envelope.Body = "text";
    read.FromXmlElement(envelope.ToXmlElement(documentOfMine));
    if (read.Body.indexOf(">text<") < 0) same(">text<", read.Body);
}

function incident() {
    var card = create("LejisIncidentIndexCard");
    var person = create("LejisPersonIndexCard");
    card.OrganizationName = "Harlow Police Department";
    card.OrganizationORI = "PA0250100";
    card.ActivityID = "2007-000123";
    card.SubmittedDate.Value = "2007-03-10";
    person.SurName = "PUBLIC";
    person.Involvement = "VICTIM";
    person.RaceNCIC = "X";
    card.PersonIndexCards.Add(person);
    return card;
}

function submission(url) {
    var service = create("LejisSubmissionWebService");
    service.URL = url;
    return service;
}

function submit() {
    var warnings = submission(services + "/submission").SubmitIncident(incident());
    same(1, warnings.Count);
    if (warnings.Item(1).indexOf("'X' is not a valid NCIC race code") < 0) same("of the race", warnings.Item(1));
}

function transientFailure() {
    // Nobody listens at this port.
    raises(Transient, "The LEJIS Interface service is down.", function () {
        submission("http://127.0.0.1:1/submission").SubmitIncident(incident());
    });
}

function refusal() {
    raises(Fatal, "ID is required.", function () {
        submission(services + "/submission").SubmitIncident(create("LejisIncidentIndexCard"));
    });
}

function withdraw() {
    submission(services + "/submission").DeleteIncident(incident());
}

take("create", createAll);
take("properties", properties);
take("numbers", numbers);
take("dates", dates);
take("null", nulls);
take("collections", collections);
take("errors", errors);
take("xml", xml);
take("submit", submit);
take("transient", transientFailure);
take("refused", refusal);
take("withdraw", withdraw);
WScript.Quit(failed == 0 ? 0 : 1);
