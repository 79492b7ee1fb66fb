// submit URL
// Submits one incident to LEJIS and says what became of it.
// Ends with 0: taken, 1: refused, trying again does not help, 2: try again later.
package main

import (
	"fmt"
	"os"
	"runtime"
	"time"

	ole "github.com/go-ole/go-ole"

	"lejis.example/samples/lejis"
)

func burglary() lejis.Object {
	incident := lejis.Create("LejisIncidentIndexCard")
	incident.Set("OrganizationName", "Harlow Police Department")
	incident.Set("OrganizationORI", "PA0250100")
	incident.Set("ActivityID", "2007-000123")
	incident.Set("SubmittedDate.Value", time.Now().Format("2006-01-02 15:04:05"))
	incident.Set("ActivityDateTime.Value", "2007-03-09 14:05:00")
	incident.Set("ChargeNCICCode", "2202")
	incident.Set("ChargeDescriptionText", "Burglary, forced entry, residence")
	// The parts of an incident are there from the beginning and are filled in place.
	incident.Set("Location.StreetNumber.Value", int32(12))
	incident.Set("Location.StreetName", "HARBOUR")
	incident.Set("Location.StreetType", "RD")
	incident.Set("Location.City", "HARLOW")
	incident.Set("Location.State", "PA")
	incident.Set("Location.ZIP", "170991234")

	victim := lejis.Create("LejisPersonIndexCard")
	victim.Set("GivenName", "JOHN")
	victim.Set("SurName", "PUBLIC")
	victim.Set("Involvement", "VICTIM")
	victim.Set("BirthDate.Value", "1970-01-31")
	victim.Set("RaceNCIC", "X")
	incident.Add("PersonIndexCards", victim)

	television := lejis.Create("LejisPropertyIndexCard")
	television.Set("Category", "TELEVISION")
	television.Set("Make", "NORTHWIND")
	television.Set("SerialID", "NW14-88213-K")
	incident.Add("PropertyIndexCards", television)
	return incident
}

func submit(url string) int {
	service := lejis.Create("LejisSubmissionWebService")
	service.Set("URL", url)
	answer, err := service.Call("SubmitIncident", burglary().IDispatch)
	if err != nil {
		number, text := lejis.Failure(err)
		if number == lejis.TransientError {
			fmt.Println("Not sent, try again later:", text)
			return 2
		}
		// tvFatalError, or a mistake in this program: neither gets better by itself.
		fmt.Println("Refused:", text)
		return 1
	}
	warnings := lejis.Object{IDispatch: answer.ToIDispatch()}
	fmt.Printf("Submitted with %d warning(s).\n", warnings.Count())
	// The first item has the number 1.
	for number := 1; number <= warnings.Count(); number++ {
		fmt.Println("Warning:", warnings.Get("Item", int32(number)).ToString())
	}
	return 0
}

func main() {
	if len(os.Args) != 2 {
		fmt.Println("usage: submit URL")
		os.Exit(64)
	}
	// The objects belong to this thread of the system.
	runtime.LockOSThread()
	if err := ole.CoInitialize(0); err != nil {
		panic(err)
	}
	os.Exit(submit(os.Args[1]))
}
