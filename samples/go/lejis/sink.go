package lejis

import (
	"syscall"
	"unsafe"

	ole "github.com/go-ole/go-ole"
	"github.com/go-ole/go-ole/oleutil"
)

// The numbers of the events of a search.
const (
	SearchCompleted    = 1
	ConfigurationError = 3
	NetworkError       = 4
	ServiceError       = 5
)

var searchEvents = ole.NewGUID("{23838A68-74C7-4A5C-9530-7C5F571A5D78}")

const (
	ok             = 0
	notImplemented = 0x80004001
	noInterface    = 0x80004002
)

// sink is an automation object with one method of interest: Invoke, which the service calls with the event's number.
type sink struct {
	table *[7]uintptr
	heard func(event int32, argument *ole.VARIANT)
}

type parameters struct {
	arguments      *ole.VARIANT
	namedArguments *int32
	count          uint32
	namedCount     uint32
}

var sinkTable = [7]uintptr{
	syscall.NewCallback(func(this *sink, iid *ole.GUID, object **sink) uintptr {
		if !ole.IsEqualGUID(iid, ole.IID_IUnknown) && !ole.IsEqualGUID(iid, ole.IID_IDispatch) &&
			!ole.IsEqualGUID(iid, searchEvents) {
			*object = nil
			return noInterface
		}
		*object = this
		return ok
	}),
	// The sink belongs to the program, which keeps it: references are not counted.
	syscall.NewCallback(func(this *sink) uintptr { return 2 }),
	syscall.NewCallback(func(this *sink) uintptr { return 1 }),
	syscall.NewCallback(func(this *sink, count *uint32) uintptr {
		*count = 0
		return ok
	}),
	syscall.NewCallback(func(this *sink, index, language, information uintptr) uintptr { return notImplemented }),
	syscall.NewCallback(func(this *sink, iid, names, count, language, numbers uintptr) uintptr { return notImplemented }),
	syscall.NewCallback(func(this *sink, event, iid, language, flags uintptr, given *parameters,
		result, exception, argument uintptr) uintptr {
		this.heard(int32(event), given.arguments)
		return ok
	}),
}

// COM holds the sinks by addresses, which the garbage collector does not see.
var sinks []*sink

// Listen has the function called with the number and the argument of each event of a search service.
func Listen(service Object, heard func(event int32, argument *ole.VARIANT)) {
	own := &sink{&sinkTable, heard}
	sinks = append(sinks, own)
	_, err := oleutil.ConnectObject(service.IDispatch, searchEvents, (*ole.IUnknown)(unsafe.Pointer(own)))
	must(err)
}
