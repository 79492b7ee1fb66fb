// A client that finds members by their names when it runs. Only of what the library calls it says what that looks like.
using System;
using System.Reflection;
using System.Runtime.InteropServices;

sealed class Client
{
    const int InvalidArgument = unchecked((int)0x80040205);
    const int Transient = unchecked((int)0xA38F7530);
    const int Fatal = unchecked((int)0xA38F7531);

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
        steps.Run("create", CreateAll);
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

    static object Create(string name)
    {
        return Activator.CreateInstance(Type.GetTypeFromProgID("TVLejisCore." + name, true));
    }

    // The value of a property, which may be one of a property: "address.City".
    public static object Get(object target, string path, params object[] arguments)
    {
        string[] names = path.Split('.');
        for (int number = 0; number < names.Length; ++number)
        {
            bool isLast = number == names.Length - 1;
            target = Invoke(target, BindingFlags.GetProperty, names[number], isLast ? arguments : new object[0]);
        }
        return target;
    }

    static void Set(object target, string path, object value)
    {
        int dot = path.LastIndexOf('.');
        object owner = dot < 0 ? target : Get(target, path.Substring(0, dot));
        Invoke(owner, BindingFlags.SetProperty, path.Substring(dot + 1), new[] { value });
    }

    static object Call(object target, string name, params object[] arguments)
    {
        return Invoke(target, BindingFlags.InvokeMethod, name, arguments);
    }

    static object Invoke(object target, BindingFlags how, string name, object[] arguments)
    {
        return target.GetType().InvokeMember(name, how, null, target, arguments);
    }

    void CreateAll()
    {
        Steps.Same("", Get(Create("LejisIncidentIndexCard"), "ActivityID"));
        Steps.Same(0, Get(Create("LejisSubmissionDocument"), "IncidentIndexCards.Count"));
        Steps.Same("", Get(Create("LejisSearchRequest"), "personArguments.SurName"));
        Steps.Same("2007-03-09", Call(Create("LejisCommon"), "LejisFormatDate", new DateTime(2007, 3, 9)));
        Steps.Same("14:05:00", Call(Create("LejisCommon"), "LejisFormatTime", new DateTime(2007, 3, 9, 14, 5, 0)));
    }

    void Properties()
    {
        object person = Create("LejisPersonIndexCard");
        Set(person, "SurName", "M\u00dcLLER \u4e2d");
        Set(person, "CautionIndicator", true);
        Set(person, "address.City", "HARLOW");
        Steps.Same("M\u00dcLLER \u4e2d", Get(person, "SurName"));
        Steps.Same(true, Get(person, "CautionIndicator"));
        Steps.Same("HARLOW", Get(person, "address.City"));
    }

    void Numbers()
    {
        object person = Create("LejisPersonIndexCard");
        object controls = Create("LejisInquiryControls");
        Set(person, "Height.Value", (short)510);
        Set(person, "address.StreetNumber.Value", 123456);
        Set(controls, "MaxIncidents", 50);
        Steps.Same((short)510, Get(person, "Height.Value"));
        Steps.Same(123456, Get(person, "address.StreetNumber.Value"));
        Steps.Same(50, Get(controls, "MaxIncidents"));
    }

    void Dates()
    {
        object person = Create("LejisPersonIndexCard");
        var birth = new DateTime(1970, 1, 31);
        Set(person, "BirthDate.Value", birth);
        Steps.Same(birth, Get(person, "BirthDate.Value"));
        Set(person, "BirthDate.Value", "2007-03-09");
        Steps.Same(new DateTime(2007, 3, 9), Get(person, "BirthDate.Value"));
    }

    void Null()
    {
        object person = Create("LejisPersonIndexCard");
        Steps.Same(DBNull.Value, Get(person, "Weight.Value"));
        Set(person, "Weight.Value", (short)180);
        Set(person, "Weight.Value", DBNull.Value);
        Steps.Same(DBNull.Value, Get(person, "Weight.Value"));
    }

    void Collections()
    {
        object persons = Get(Create("LejisIncidentIndexCard"), "PersonIndexCards");
        foreach (string name in new[] { "A", "B", "C" })
        {
            object person = Create("LejisPersonIndexCard");
            Set(person, "SurName", name);
            Call(persons, "Add", person);
        }
        Call(persons, "Remove", 2);
        Steps.Same(2, Get(persons, "Count"));
        Steps.Same("C", Get(Get(persons, "Item", 2), "SurName"));
        steps.Raises(unchecked((int)0x8002000B), "There is no item 3: the collection holds 2.", () => Get(persons, "Item", 3));
    }

    void Errors()
    {
        object person = Create("LejisPersonIndexCard");
        steps.Raises(InvalidArgument, "Not a valid date.", () => Set(person, "BirthDate.Value", "hello"));
        object manager = Create("FutureManager");
        steps.Raises(InvalidArgument, "runnable cannot be Nothing", () => Call(manager, "InvokeLater", new DispatchWrapper(null)));
    }

    void Xml()
    {
        object document = Activator.CreateInstance(Type.GetTypeFromProgID("MSXML2.DOMDocument.6.0"));
        object person = Create("LejisPersonIndexCard");
        object copy = Create("LejisPersonIndexCard");
        Set(person, "SurName", "PUBLIC");
        Set(person, "Height.Value", (short)510);
        Call(copy, "FromXmlElement", Call(person, "ToXmlElement", document));
        Steps.Same("PUBLIC", Get(copy, "SurName"));
        Steps.Same((short)510, Get(copy, "Height.Value"));

        object envelope = Create("SOAPEnvelope");
        Set(envelope, "Body", "text");
        object read = Create("SOAPEnvelope");
        Call(read, "FromXmlElement", Call(envelope, "ToXmlElement", document));
        if (!((string)Get(read, "Body")).Contains(">text<")) throw new Exception((string)Get(read, "Body"));
    }

    static object Incident()
    {
        object incident = Create("LejisIncidentIndexCard");
        Set(incident, "OrganizationName", "Harlow Police Department");
        Set(incident, "OrganizationORI", "PA0250100");
        Set(incident, "ActivityID", "2007-000123");
        Set(incident, "SubmittedDate.Value", new DateTime(2007, 3, 10));
        object person = Create("LejisPersonIndexCard");
        Set(person, "SurName", "PUBLIC");
        Set(person, "Involvement", "VICTIM");
        Set(person, "RaceNCIC", "X");
        Call(Get(incident, "PersonIndexCards"), "Add", person);
        return incident;
    }

    static object Submission(string url)
    {
        object service = Create("LejisSubmissionWebService");
        Set(service, "URL", url);
        return service;
    }

    void Submit()
    {
        object warnings = Call(Submission(services + "/submission"), "SubmitIncident", Incident());
        Steps.Same(1, Get(warnings, "Count"));
        Steps.Same(true, ((string)Get(warnings, "Item", 1)).Contains("'X' is not a valid NCIC race code"));
    }

    void TransientFailure()
    {
        // Nobody listens at this port.
        object service = Submission("http://127.0.0.1:1/submission");
        steps.Raises(Transient, "The LEJIS Interface service is down.", () => Call(service, "SubmitIncident", Incident()));
    }

    void Refusal()
    {
        object service = Submission(services + "/submission");
        steps.Raises(Fatal, "ID is required.", () => Call(service, "SubmitIncident", Create("LejisIncidentIndexCard")));
    }

    void Withdraw()
    {
        Call(Submission(services + "/submission"), "DeleteIncident", Incident());
    }

    static string Found(string url)
    {
        object service = Create("LejisSearchWebService");
        Set(service, "URL", url);
        Set(service, "Username", "jdoe");
        object request = Create("LejisSearchRequest");
        Set(request, "personArguments.SurName", "PUBLIC");
        var sink = new SearchSink();
        using (new EventConnection(service, typeof(ISearchEvents), sink))
        {
            Call(service, "Search", request);
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
        Call(Create("FutureManager"), "InvokeLater", work);
        MessageLoop.RunUntil(() => work.Runs == 1);
        object future = Create("Future");
        Call(future, "Execute", work, work);
        MessageLoop.RunUntil(() => work.Completions == 1);
        Steps.Same(2, work.Runs);
        Steps.Same(true, work.WasCompleted);
        Steps.Same(true, Get(future, "Completed"));
    }

    void Release()
    {
        Steps.Collect();
        Steps.LibraryMayGo();
    }
}

[ComImport, Guid("23838A68-74C7-4A5C-9530-7C5F571A5D78"), InterfaceType(ComInterfaceType.InterfaceIsIDispatch)]
public interface ISearchEvents
{
    [DispId(1)] void SearchCompleted([MarshalAs(UnmanagedType.IDispatch)] object results);
    [DispId(3)] void ConfigurationError(string reasonMessage);
    [DispId(4)] void NetworkError(string reasonMessage);
    [DispId(5)] void ServiceError(string reasonMessage);
}

[ComVisible(true), ClassInterface(ClassInterfaceType.None)]
public class SearchSink : ISearchEvents
{
    public string Outcome { get; private set; }

    public void SearchCompleted(object results)
    {
        string found = "";
        int count = (int)Client.Get(results, "Count");
        for (int number = 1; number <= count; ++number) found += Client.Get(Client.Get(results, "Item", number), "ActivityID");
        Outcome = found;
    }

    public void ConfigurationError(string reasonMessage) { Outcome = reasonMessage; }
    public void NetworkError(string reasonMessage) { Outcome = reasonMessage; }
    public void ServiceError(string reasonMessage) { Outcome = reasonMessage; }
}

[ComImport, Guid("7A708079-7BAB-45DD-84A8-9918536CC644"), InterfaceType(ComInterfaceType.InterfaceIsDual)]
public interface IRunnable
{
    [DispId(1)] void Run();
}

[ComImport, Guid("298C3D57-E048-4D69-9D54-819DA569925B"), InterfaceType(ComInterfaceType.InterfaceIsDual)]
public interface IFutureObserver
{
    [DispId(1)] void FutureCompleted([MarshalAs(UnmanagedType.IDispatch)] object theFuture);
}

[ComVisible(true), ClassInterface(ClassInterfaceType.None)]
public class Work : IRunnable, IFutureObserver
{
    public int Runs { get; private set; }
    public int Completions { get; private set; }
    public bool WasCompleted { get; private set; }

    public void Run() { ++Runs; }

    public void FutureCompleted(object theFuture)
    {
        WasCompleted = (bool)Client.Get(theFuture, "Completed");
        ++Completions;
    }
}
