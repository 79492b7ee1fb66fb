// Search.exe URL USER SURNAME
// Searches LEJIS for a person and lists the incidents found.
// Ends with 0: answered, 1: refused, trying again does not help, 2: try again later.
using System;
using TVLejisCore;

static class Search
{
    // The events of a search come from the message loop of the thread that made the service. A windowed program has both
    // already; a thread of a server must ask for a single-threaded apartment (Thread.SetApartmentState) and run a loop.
    [STAThread]
    static int Main(string[] arguments)
    {
        if (arguments.Length != 3)
        {
            Console.WriteLine("usage: Search URL USER SURNAME");
            return 64;
        }
        var service = new LejisSearchWebService();
        service.URL = arguments[0];
        service.Username = arguments[1];
        var request = new LejisSearchRequest();
        request.personArguments.SurName = arguments[2];
        request.InquiryControls.MaxIncidents = 50;

        var outcome = new Outcome();
        using (new EventConnection(service, typeof(_LejisSearchWebServiceEvents), outcome))
        {
            // Raises nothing and returns at once; exactly one of the events follows.
            service.Search(request);
            MessageLoop.RunUntil(() => outcome.ExitCode.HasValue);
        }
        return outcome.ExitCode.Value;
    }
}
