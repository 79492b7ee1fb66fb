using System;
using System.Runtime.InteropServices;
using TVLejisCore;

// Hears what became of a search, and tells of it. Without a class interface its automation is that of the events, in every
// apartment.
[ComVisible(true), ClassInterface(ClassInterfaceType.None)]
public class Outcome : _LejisSearchWebServiceEvents
{
    public int? ExitCode { get; private set; }

    public void SearchCompleted(ICollection results)
    {
        // COM drops what a handler throws, and the program would wait for ever.
        try
        {
            Console.WriteLine("{0} incident(s) found.", results.Count);
            for (int number = 1; number <= results.Count; ++number) List((ILejisIncidentIndexCard)results[number]);
            ExitCode = 0;
        }
        finally
        {
            ExitCode = ExitCode ?? 1;
        }
    }

    public void NetworkError(string reasonMessage)
    {
        Console.WriteLine("No answer, try again later: {0}", reasonMessage);
        ExitCode = 2;
    }

    public void ConfigurationError(string reasonMessage)
    {
        Console.WriteLine("Not set up correctly, tell the administrator: {0}", reasonMessage);
        ExitCode = 1;
    }

    public void ServiceError(string reasonMessage)
    {
        Console.WriteLine("Refused: {0}", reasonMessage);
        ExitCode = 1;
    }

    // Never raised.
    public void SearchFailed(string reason, int status)
    {
    }

    static void List(ILejisIncidentIndexCard incident)
    {
        Console.WriteLine("{0} {1} {2}", incident.OrganizationORI, incident.ActivityID, incident.ChargeDescriptionText);
        ICollection persons = incident.PersonIndexCards;
        for (int number = 1; number <= persons.Count; ++number)
        {
            var person = (ILejisPersonIndexCard)persons[number];
            Console.WriteLine("    {0} {1} ({2})", person.GivenName, person.SurName, person.Involvement);
        }
    }
}
