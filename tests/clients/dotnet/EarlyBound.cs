// A client that is bound when it is compiled, by the declarations of samples/csharp.
using System;
using System.Runtime.CompilerServices;
using System.Runtime.InteropServices;
using System.Runtime.InteropServices.ComTypes;
using TVLejisCore;

sealed class Client
{
    const int InvalidArgument = unchecked((int)0x80040205);
    const int Transient = (int)tvSubmissionErrorCodes.tvTransientError;
    const int Fatal = (int)tvSubmissionErrorCodes.tvFatalError;

    readonly Steps steps;
    readonly string services;
    readonly bool isSingle;

    public Client(Steps steps, string services, bool isSingle)
    {
        this.steps = steps;
        this.services = services;
        this.isSingle = isSingle;
    }

    public void Run()
    {
        steps.Run("create", Create);
        steps.Run("properties", Properties);
        steps.Run("numbers", Numbers);
        steps.Run("dates", Dates);
        steps.Run("null", Null);
        steps.Run("collections", Collections);
        steps.Run("errors", Errors);
        steps.Run("xml", Xml);
        steps.Run("submit", Submit);
        steps.Run("transient", TransientFailure);
        steps.Run("refused", Refusal);
        steps.Run("search", Search);
        steps.Run("search refused", WrongAddress);
        steps.Run("withdraw", Withdraw);
        steps.Run("deferred", Deferred);
        // The objects of a multi-threaded apartment are in another thread, which ends when it likes.
        if (isSingle) steps.Run("release", Release);
    }

    void Create()
    {
        Steps.Same("", new LejisIncidentIndexCard().ActivityID);
        Steps.Same(0, new LejisSubmissionDocument().IncidentIndexCards.Count);
        Steps.Same("", new LejisSearchRequest().personArguments.SurName);
        Steps.Same("2007-03-09", new LejisCommon().LejisFormatDate(new DateTime(2007, 3, 9)));
        Steps.Same("14:05:00", new LejisCommon().LejisFormatTime(new DateTime(2007, 3, 9, 14, 5, 0)));
    }

    void Properties()
    {
        var person = new LejisPersonIndexCard();
        person.SurName = "M\u00dcLLER \u4e2d";
        person.CautionIndicator = true;
        person.address.City = "HARLOW";
        Steps.Same("M\u00dcLLER \u4e2d", person.SurName);
        Steps.Same(true, person.CautionIndicator);
        Steps.Same("HARLOW", person.address.City);
    }

    void Numbers()
    {
        var person = new LejisPersonIndexCard();
        var controls = new LejisInquiryControls();
        person.Height.Value = (short)510;
        person.address.StreetNumber.Value = 123456;
        controls.MaxIncidents = 50;
        Steps.Same((short)510, person.Height.Value);
        Steps.Same(123456, person.address.StreetNumber.Value);
        Steps.Same(50, controls.MaxIncidents);
    }

    void Dates()
    {
        var person = new LejisPersonIndexCard();
        var birth = new DateTime(1970, 1, 31);
        person.BirthDate.Value = birth;
        Steps.Same(birth, person.BirthDate.Value);
        person.BirthDate.Value = "2007-03-09";
        Steps.Same(new DateTime(2007, 3, 9), person.BirthDate.Value);
    }

    void Null()
    {
        var person = new LejisPersonIndexCard();
        Steps.Same(DBNull.Value, person.Weight.Value);
        person.Weight.Value = (short)180;
        person.Weight.Value = DBNull.Value;
        Steps.Same(DBNull.Value, person.Weight.Value);
    }

    void Collections()
    {
        var incident = new LejisIncidentIndexCard();
        ICollection persons = incident.PersonIndexCards;
        foreach (string name in new[] { "A", "B", "C" })
        {
            var person = new LejisPersonIndexCard();
            person.SurName = name;
            persons.Add(person);
        }
        persons.Remove(2);
        Steps.Same(2, persons.Count);
        Steps.Same("C", ((ILejisPersonIndexCard)persons[2]).SurName);
        Steps.Same("AC", Walked((IEnumVARIANT)persons._NewEnum));
        steps.Raises(unchecked((int)0x8002000B), "There is no item 3: the collection holds 2.", () => persons[3].ToString());
    }

    static string Walked(IEnumVARIANT items)
    {
        string names = "";
        var one = new object[1];
        while (items.Next(1, one, IntPtr.Zero) == 0) names += ((ILejisPersonIndexCard)one[0]).SurName;
        return names;
    }

    void Errors()
    {
        var person = new LejisPersonIndexCard();
        steps.Raises(InvalidArgument, "Not a valid date.", () => person.BirthDate.Value = "hello");
        steps.Raises(InvalidArgument, "runnable cannot be Nothing", () => new FutureManager().InvokeLater(null));
    }

    void Xml()
    {
        object document = Activator.CreateInstance(Type.GetTypeFromProgID("MSXML2.DOMDocument.6.0"));
        var person = new LejisPersonIndexCard();
        var copy = new LejisPersonIndexCard();
        person.SurName = "PUBLIC";
        person.Height.Value = (short)510;
        copy.FromXmlElement(person.ToXmlElement(document));
        Steps.Same("PUBLIC", copy.SurName);
        Steps.Same((short)510, copy.Height.Value);

        var envelope = new SOAPEnvelope();
        envelope.Body = "text";
        var read = new SOAPEnvelope();
        read.FromXmlElement(envelope.ToXmlElement(document));
        if (!read.Body.Contains(">text<")) throw new Exception(read.Body);
    }

    static LejisIncidentIndexCard Incident()
    {
        var incident = new LejisIncidentIndexCard();
        incident.OrganizationName = "Harlow Police Department";
        incident.OrganizationORI = "PA0250100";
        incident.ActivityID = "2007-000123";
        incident.SubmittedDate.Value = new DateTime(2007, 3, 10);
        var person = new LejisPersonIndexCard();
        person.SurName = "PUBLIC";
        person.Involvement = "VICTIM";
        person.RaceNCIC = "X";
        incident.PersonIndexCards.Add(person);
        return incident;
    }

    LejisSubmissionWebService Submission(string url)
    {
        var service = new LejisSubmissionWebService();
        service.URL = url;
        return service;
    }

    void Submit()
    {
        ICollection warnings = Submission(services + "/submission").SubmitIncident(Incident());
        Steps.Same(1, warnings.Count);
        Steps.Same(true, ((string)warnings[1]).Contains("'X' is not a valid NCIC race code"));
    }

    void TransientFailure()
    {
        // Nobody listens at this port.
        var service = Submission("http://127.0.0.1:1/submission");
        steps.Raises(Transient, "The LEJIS Interface service is down.", () => service.SubmitIncident(Incident()));
    }

    void Refusal()
    {
        var service = Submission(services + "/submission");
        steps.Raises(Fatal, "ID is required.", () => service.SubmitIncident(new LejisIncidentIndexCard()));
    }

    void Withdraw()
    {
        Submission(services + "/submission").DeleteIncident(Incident());
    }

    string Found(string url)
    {
        var service = new LejisSearchWebService();
        service.URL = url;
        service.Username = "jdoe";
        var request = new LejisSearchRequest();
        request.personArguments.SurName = "PUBLIC";
        var sink = new SearchSink();
        using (new EventConnection(service, typeof(_LejisSearchWebServiceEvents), sink))
        {
            service.Search(request);
            MessageLoop.RunUntil(() => sink.Outcome != null);
        }
        return sink.Outcome;
    }

    void Search()
    {
        Steps.Same("2007-000123", Found(services + "/search"));
    }

    void WrongAddress()
    {
        Steps.Same("Invalid URL 'no address'.", Found("no address"));
    }

    void Deferred()
    {
        var work = new Work();
        new FutureManager().InvokeLater(work);
        MessageLoop.RunUntil(() => work.Runs == 1);
        var future = new Future();
        future.Execute(work, work);
        MessageLoop.RunUntil(() => work.Completions == 1);
        Steps.Same(2, work.Runs);
        Steps.Same(true, future.Completed);
    }

    void Release()
    {
        Steps.Collect();
        Steps.LibraryMayGo();
    }
}

[ComVisible(true), ClassInterface(ClassInterfaceType.None)]
public class SearchSink : _LejisSearchWebServiceEvents
{
    public string Outcome { get; private set; }

    public void SearchCompleted(ICollection results)
    {
        string found = "";
        for (int number = 1; number <= results.Count; ++number)
            found += ((ILejisIncidentIndexCard)results[number]).ActivityID;
        Outcome = found;
    }

    public void SearchFailed(string reason, int status) { Outcome = reason; }
    public void ConfigurationError(string reasonMessage) { Outcome = reasonMessage; }
    public void NetworkError(string reasonMessage) { Outcome = reasonMessage; }
    public void ServiceError(string reasonMessage) { Outcome = reasonMessage; }
}

[ComVisible(true), ClassInterface(ClassInterfaceType.None)]
public class Work : IRunnable, IFutureObserver
{
    public int Runs { get; private set; }
    public int Completions { get; private set; }

    public void Run() { ++Runs; }
    public void FutureCompleted(IFuture theFuture) { ++Completions; }
}
