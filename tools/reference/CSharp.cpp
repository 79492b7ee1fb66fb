#include "CSharp.h"

#include <map>

namespace reference {
namespace {

// A type of the type library in C#, and how it is marshalled where that is not what C# takes for granted.
struct CSharpType {
    std::wstring name;
    std::wstring marshalling;
};

CSharpType TypeOf(const std::wstring& type) {
    static const std::map<std::wstring, CSharpType> types = {
        {L"", {L"void", L""}},          {L"Integer", {L"short", L""}},          {L"Long", {L"int", L""}},
        {L"String", {L"string", L""}},  {L"Boolean", {L"bool", L""}},           {L"Date", {L"DateTime", L""}},
        {L"Variant", {L"object", L""}}, {L"Object", {L"object", L"IDispatch"}}, {L"IUnknown", {L"object", L"IUnknown"}},
    };
    const auto found = types.find(type);
    return found == types.end() ? CSharpType{type, L""} : found->second;
}

std::wstring MarshalledAs(const CSharpType& type, const wchar_t* target) {
    return type.marshalling.empty()
               ? L""
               : L"[" + std::wstring(target) + L"MarshalAs(UnmanagedType." + type.marshalling + L")] ";
}

std::wstring Escaped(const std::wstring& text) {
    std::wstring escaped;
    for (const wchar_t character : text) {
        switch (character) {
            case L'&':
                escaped += L"&amp;";
                break;
            case L'<':
                escaped += L"&lt;";
                break;
            case L'>':
                escaped += L"&gt;";
                break;
            default:
                escaped += character;
        }
    }
    return escaped;
}

std::wstring Summary(const wchar_t* indentation, const std::wstring& help) {
    return help.empty() ? L"" : indentation + std::wstring(L"/// <summary>") + Escaped(help) + L"</summary>\n";
}

// "{...}" without its braces.
std::wstring GuidAttribute(const std::wstring& id) { return L"Guid(\"" + id.substr(1, id.size() - 2) + L"\")"; }

std::wstring Number(const Member& member) { return L"[DispId(" + std::to_wstring(member.number) + L")] "; }

std::wstring Parameters(const Member& member) {
    std::wstring text;
    for (const Parameter& parameter : member.parameters) {
        const CSharpType type = TypeOf(parameter.type);
        if (!text.empty()) text += L", ";
        text += MarshalledAs(type, L"") + type.name + L" " + parameter.name;
    }
    return text;
}

std::wstring Method(const Member& member) {
    const CSharpType result = TypeOf(member.type);
    return L"        " + Number(member) + MarshalledAs(result, L"return: ") + result.name + L" " + member.name + L"(" +
           Parameters(member) + L");\n";
}

std::wstring Property(const Member& member) {
    const CSharpType type = TypeOf(member.type);
    // C# has one property with parameters, whose name in the type library is Item.
    const std::wstring name = member.parameters.empty() ? member.name : L"this[" + Parameters(member) + L"]";
    std::wstring text = L"        " + type.name + L" " + name + L" { ";
    if (member.readable) text += Number(member) + MarshalledAs(type, L"return: ") + L"get; ";
    if (member.writable) text += Number(member) + MarshalledAs(type, L"param: ") + L"set; ";
    return text + L"}\n";
}

std::wstring InterfaceText(const Interface& one, bool isEvents) {
    const std::wstring kind = isEvents ? L"InterfaceIsIDispatch" : L"InterfaceIsDual";
    std::wstring text = Summary(L"    ", one.help) + L"    [ComImport, " + GuidAttribute(one.id) +
                        L", InterfaceType(ComInterfaceType." + kind + L")]\n    public interface " + one.name +
                        L"\n    {\n";
    for (const Member& member : one.members) {
        text += Summary(L"        ", member.help);
        text += member.kind == Member::Kind::kMethod ? Method(member) : Property(member);
    }
    return text + L"    }\n";
}

// A class that programs create becomes a C# class. The type of a variable becomes an interface with the name that other
// languages use, and "new" on the interface creates the class.
std::wstring ClassText(const Class& one, const Interface& face) {
    std::wstring text = L"    [ComImport, " + GuidAttribute(one.id) + L", ClassInterface(ClassInterfaceType.None)";
    if (!one.events.empty()) text += L", ComSourceInterfaces(typeof(" + one.events + L"))";
    text += L"]\n    public class " + one.name + L"Class\n    {\n    }\n\n";
    return text + Summary(L"    ", one.help) + L"    [ComImport, " + GuidAttribute(face.id) + L", CoClass(typeof(" +
           one.name + L"Class))]\n    public interface " + one.name + L" : " + face.name + L"\n    {\n    }\n";
}

std::wstring EnumerationText(const Enumeration& one) {
    std::wstring text = Summary(L"    ", one.help) + L"    public enum " + one.name + L"\n    {\n";
    for (const Value& value : one.values)
        text += L"        " + value.name + L" = " + std::to_wstring(value.number) + L",\n";
    return text + L"    }\n";
}

std::wstring Head(const Library& library) {
    return L"// " + library.help + L", type library " + library.id + L" " + library.version +
           L".\n// Generated from the type library by docs.sh; to change it, change the .idl files.\n"
           L"// What is Null elsewhere is DBNull.Value here.\n"
           L"using System;\nusing System.Runtime.InteropServices;\n\nnamespace " +
           library.name + L"\n{\n";
}

}  // namespace

std::wstring WriteCSharp(const Library& library) {
    std::wstring text = Head(library);
    const std::wstring head = text;
    const auto separate = [&] {
        if (text != head) text += L"\n";
    };
    for (const Enumeration& one : library.enumerations) {
        separate();
        text += EnumerationText(one);
    }
    for (const auto& [name, one] : library.interfaces) {
        separate();
        text += InterfaceText(one, name.starts_with(L"_"));
    }
    for (const Class& one : library.classes) {
        if (!one.creatable) continue;
        separate();
        text += ClassText(one, library.interfaces.at(one.defaultInterface));
    }
    return text + L"}\n";
}

}  // namespace reference
