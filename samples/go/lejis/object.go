// Package lejis makes the objects of TVLejisCore handy: their members by name, their errors with number and text.
package lejis

import (
	"strings"

	ole "github.com/go-ole/go-ole"
	"github.com/go-ole/go-ole/oleutil"
)

// TransientError is tvTransientError: the same submission may succeed later.
const TransientError = 0xA38F7530

// Object is one of the library's.
type Object struct {
	*ole.IDispatch
}

// Create makes an object of a class.
func Create(class string) Object {
	unknown, err := oleutil.CreateObject("TVLejisCore." + class)
	must(err)
	defer unknown.Release()
	dispatch, err := unknown.QueryInterface(ole.IID_IDispatch)
	must(err)
	return Object{dispatch}
}

// Set gives a property a value; the path may lead through other objects: "Location.City".
func (object Object) Set(path string, value interface{}) {
	owner, name := object.owner(path)
	_, err := oleutil.PutProperty(owner.IDispatch, name, value)
	must(err)
}

// Get is the value of a property, to which a path may lead.
func (object Object) Get(path string, arguments ...interface{}) *ole.VARIANT {
	owner, name := object.owner(path)
	value, err := oleutil.GetProperty(owner.IDispatch, name, arguments...)
	must(err)
	return value
}

// Text is a property that is a text.
func (object Object) Text(path string) string { return object.Get(path).ToString() }

// Object is a property that is an object, or an item of a collection.
func (object Object) Object(path string, arguments ...interface{}) Object {
	return Object{object.Get(path, arguments...).ToIDispatch()}
}

// Call calls a method.
func (object Object) Call(name string, arguments ...interface{}) (*ole.VARIANT, error) {
	return oleutil.CallMethod(object.IDispatch, name, arguments...)
}

// Add puts an object into a collection.
func (object Object) Add(path string, item Object) {
	_, err := object.Object(path).Call("Add", item.IDispatch)
	must(err)
}

// Count is the number of items of a collection.
func (object Object) Count() int { return int(object.Get("Count").Value().(int32)) }

func (object Object) owner(path string) (Object, string) {
	names := strings.Split(path, ".")
	for _, name := range names[:len(names)-1] {
		object = object.Object(name)
	}
	return object, names[len(names)-1]
}

// Failure is the number and the text of the library's error.
func Failure(err error) (uint32, string) {
	failure, isOle := err.(*ole.OleError)
	if !isOle {
		return 0, err.Error()
	}
	if exception, isException := failure.SubError().(ole.EXCEPINFO); isException {
		return exception.SCODE(), failure.Description()
	}
	return uint32(failure.Code()), failure.Error()
}

func must(err error) {
	if err != nil {
		panic(err)
	}
}
