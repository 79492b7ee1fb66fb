// Submit.exe URL
// Submits one incident to LEJIS and says what became of it.
// Ends with 0: taken, 1: refused, trying again does not help, 2: try again later.
using System;
using System.Runtime.InteropServices;
using TVLejisCore;

static class Submit
{
    [STAThread]
    static int Main(string[] arguments)
    {
        if (arguments.Length != 1)
        {
            Console.WriteLine("usage: Submit URL");
            return 64;
        }
        try
        {
            var service = new LejisSubmissionWebService();
            service.URL = arguments[0];
            ICollection warnings = service.SubmitIncident(Burglary());
            Console.WriteLine("Submitted with {0} warning(s).", warnings.Count);
            // The first item has the number 1.
            for (int number = 1; number <= warnings.Count; ++number) Console.WriteLine("Warning: {0}", warnings[number]);
            return 0;
        }
        catch (COMException error)
        {
            if (error.ErrorCode == (int)tvSubmissionErrorCodes.tvTransientError)
            {
                Console.WriteLine("Not sent, try again later: {0}", error.Message);
                return 2;
            }
            // tvFatalError, or a mistake in this program: neither gets better by itself.
            Console.WriteLine("Refused: {0}", error.Message);
            return 1;
        }
    }

    static LejisIncidentIndexCard Burglary()
    {
        var incident = new LejisIncidentIndexCard();
        incident.OrganizationName = "Harlow Police Department";
        incident.OrganizationORI = "PA0250100";
        incident.ActivityID = "2007-000123";
        incident.SubmittedDate.Value = DateTime.Now;
        incident.ActivityDateTime.Value = new DateTime(2007, 3, 9, 14, 5, 0);
        incident.ChargeNCICCode = "2202";
        incident.ChargeDescriptionText = "Burglary, forced entry, residence";
        // The parts of an incident are there from the beginning and are filled in place.
        incident.Location.StreetNumber.Value = 12;
        incident.Location.StreetName = "HARBOUR";
        incident.Location.StreetType = "RD";
        incident.Location.City = "HARLOW";
        incident.Location.State = "PA";
        incident.Location.ZIP = "170991234";

        var victim = new LejisPersonIndexCard();
        victim.GivenName = "JOHN";
        victim.SurName = "PUBLIC";
        victim.Involvement = "VICTIM";
        victim.BirthDate.Value = new DateTime(1970, 1, 31);
        victim.RaceNCIC = "X";
        incident.PersonIndexCards.Add(victim);

        var television = new LejisPropertyIndexCard();
        television.Category = "TELEVISION";
        television.Make = "NORTHWIND";
        television.SerialID = "NW14-88213-K";
        incident.PropertyIndexCards.Add(television);
        return incident;
    }
}
