// search URL USER SURNAME
// Searches LEJIS for a person and lists the incidents found.
// Ends with 0: answered, 1: refused, trying again does not help, 2: try again later.
package main

import (
	"fmt"
	"os"
	"runtime"
	"syscall"
	"unsafe"

	ole "github.com/go-ole/go-ole"

	"lejis.example/samples/lejis"
)

const pending = -1

var exitCode = pending

func heard(event int32, argument *ole.VARIANT) {
	switch event {
	case lejis.SearchCompleted:
		list(lejis.Object{IDispatch: argument.ToIDispatch()})
		exitCode = 0
	case lejis.NetworkError:
		fmt.Println("No answer, try again later:", argument.ToString())
		exitCode = 2
	case lejis.ConfigurationError:
		fmt.Println("Not set up correctly, tell the administrator:", argument.ToString())
		exitCode = 1
	case lejis.ServiceError:
		fmt.Println("Refused:", argument.ToString())
		exitCode = 1
	}
}

func list(incidents lejis.Object) {
	fmt.Printf("%d incident(s) found.\n", incidents.Count())
	// The first item has the number 1.
	for number := 1; number <= incidents.Count(); number++ {
		incident := incidents.Object("Item", int32(number))
		fmt.Println(incident.Text("OrganizationORI"), incident.Text("ActivityID"), incident.Text("ChargeDescriptionText"))
		persons := incident.Object("PersonIndexCards")
		for personNumber := 1; personNumber <= persons.Count(); personNumber++ {
			person := persons.Object("Item", int32(personNumber))
			fmt.Printf("    %s %s (%s)\n", person.Text("GivenName"), person.Text("SurName"), person.Text("Involvement"))
		}
	}
}

// The events come from the thread's messages.
func dispatchMessages() {
	const remove = 1
	// On the heap: a handler is Go again, which may move the stack under a message that stands there.
	message := new([64]byte)
	user := syscall.NewLazyDLL("user32.dll")
	user.NewProc("MsgWaitForMultipleObjects").Call(0, 0, 0, 50, 0x04FF)
	for {
		if found, _, _ := user.NewProc("PeekMessageW").Call(uintptr(unsafe.Pointer(message)), 0, 0, 0, remove); found == 0 {
			return
		}
		user.NewProc("TranslateMessage").Call(uintptr(unsafe.Pointer(message)))
		user.NewProc("DispatchMessageW").Call(uintptr(unsafe.Pointer(message)))
	}
}

func search(url, user, surname string) int {
	service := lejis.Create("LejisSearchWebService")
	service.Set("URL", url)
	service.Set("Username", user)
	request := lejis.Create("LejisSearchRequest")
	request.Set("personArguments.SurName", surname)
	request.Set("InquiryControls.MaxIncidents", int32(50))
	lejis.Listen(service, heard)
	// Raises nothing and returns at once; exactly one of the events follows.
	if _, err := service.Call("Search", request.IDispatch); err != nil {
		panic(err)
	}
	for exitCode == pending {
		dispatchMessages()
	}
	return exitCode
}

func main() {
	if len(os.Args) != 4 {
		fmt.Println("usage: search URL USER SURNAME")
		os.Exit(64)
	}
	// The objects belong to this thread of the system, and so do its messages.
	runtime.LockOSThread()
	if err := ole.CoInitialize(0); err != nil {
		panic(err)
	}
	os.Exit(search(os.Args[1], os.Args[2], os.Args[3]))
}
