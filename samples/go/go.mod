module lejis.example/samples

go 1.18

require github.com/go-ole/go-ole v1.3.0
