// What a type library says, as plain values. Types are named as a Visual Basic client sees them.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace reference {

struct Parameter {
    std::wstring name;
    std::wstring type;
};

struct Member {
    enum class Kind { kProperty, kMethod };

    Kind kind = Kind::kMethod;
    std::wstring name;
    std::wstring help;
    long number = 0;
    bool readable = false;
    bool writable = false;
    bool hidden = false;
    std::vector<Parameter> parameters;
    // Empty for a method that returns nothing.
    std::wstring type;
};

struct Interface {
    std::wstring name;
    std::wstring id;
    std::wstring help;
    std::vector<Member> members;
};

struct Class {
    std::wstring name;
    std::wstring id;
    std::wstring help;
    bool creatable = false;
    std::wstring defaultInterface;
    std::vector<std::wstring> otherInterfaces;
    // Empty for a class without events.
    std::wstring events;
};

// Without a help string: the compiler of the type library takes none here, so the enumeration's explains its values.
struct Value {
    std::wstring name;
    long number = 0;
};

struct Enumeration {
    std::wstring name;
    std::wstring help;
    std::vector<Value> values;
};

struct Library {
    std::wstring name;
    std::wstring id;
    std::wstring help;
    std::wstring version;
    // By name, event interfaces among them.
    std::map<std::wstring, Interface> interfaces;
    std::vector<Class> classes;
    std::vector<Enumeration> enumerations;
};

}  // namespace reference
