#include "Pages.h"

#include <algorithm>
#include <cwchar>
#include <iterator>
#include <set>

namespace reference {
namespace {

std::wstring FileOf(const std::wstring& type) { return type + L".md"; }
std::wstring Link(const std::wstring& type) { return L"[" + type + L"](" + FileOf(type) + L")"; }
std::wstring Code(const std::wstring& text) { return L"`" + text + L"`"; }

std::wstring Hexadecimal(long number) {
    wchar_t text[16];
    std::swprintf(text, std::size(text), L"%08X", static_cast<unsigned>(number));
    return text;
}

class Writer {
public:
    explicit Writer(const Library& library) : library_(library) {
        for (const Class& one : library.classes) {
            classes_[one.defaultInterface] = one.name;
            covered_.insert({one.defaultInterface, one.events});
        }
    }

    std::map<std::wstring, std::wstring> Pages() const {
        std::map<std::wstring, std::wstring> pages;
        for (const Class& one : library_.classes) pages[FileOf(one.name)] = ClassPage(one);
        for (const Interface* one : InterfacesWithoutClass()) pages[FileOf(one->name)] = InterfacePage(*one);
        for (const Enumeration& one : library_.enumerations) pages[FileOf(one.name)] = EnumerationPage(one);
        pages[L"README.md"] = IndexPage();
        return pages;
    }

private:
    // Interfaces that are not the default one, nor the events, of a class: clients or the host implement them.
    std::vector<const Interface*> InterfacesWithoutClass() const {
        std::vector<const Interface*> loose;
        for (const auto& [name, one] : library_.interfaces) {
            if (!covered_.contains(name)) loose.push_back(&one);
        }
        return loose;
    }

    // A client declares a variable by the class, not by the interface.
    std::wstring ClientName(const std::wstring& type) const {
        const auto found = classes_.find(type);
        return found == classes_.end() ? type : found->second;
    }

    std::wstring TypeText(const std::wstring& type) const {
        const std::wstring name = ClientName(type);
        const bool hasPage = name != type || library_.interfaces.contains(type);
        return hasPage ? Link(name) : name;
    }

    std::wstring Signature(const wchar_t* event, const Member& member) const {
        const bool returns = !member.type.empty();
        std::wstring text = event ? event : returns ? L"Function" : L"Sub";
        text += L" " + member.name + L"(";
        for (const Parameter& parameter : member.parameters) {
            if (!text.ends_with(L"(")) text += L", ";
            // A handler must name the types of an event as the library does.
            text += L"ByVal " + parameter.name + L" As " + (event ? parameter.type : ClientName(parameter.type));
        }
        return text + L")" + (returns ? L" As " + ClientName(member.type) : L"");
    }

    std::wstring PropertyRow(const Member& member) const {
        std::wstring name = member.name;
        for (const Parameter& parameter : member.parameters) name += L"(" + parameter.name + L")";
        std::wstring access = member.writable ? L"read, write" : L"read";
        if (member.number == 0) access += L"; default";
        if (member.hidden) access += L"; hidden";
        return L"| " + Code(name) + L" | " + TypeText(member.type) + L" | " + access + L" | " +
               std::to_wstring(member.number) + L" | " + member.help + L" |\n";
    }

    std::wstring Properties(const Interface& one) const {
        std::wstring rows;
        for (const Member& member : one.members) {
            if (member.kind == Member::Kind::kProperty) rows += PropertyRow(member);
        }
        if (rows.empty()) return rows;
        return L"\n## Properties\n\n| Property | Type | Access | DISPID | Meaning |\n|---|---|---|---|---|\n" + rows;
    }

    std::wstring Methods(const wchar_t* heading, const wchar_t* event, const Interface& one) const {
        std::wstring text;
        for (const Member& member : one.members) {
            if (member.kind != Member::Kind::kMethod) continue;
            text += L"\n### " + member.name + L"\n\n```vb\n" + Signature(event, member) + L"\n```\n\n" + member.help +
                    L"\n\nDISPID " + std::to_wstring(member.number) + (member.hidden ? L", hidden" : L"") + L".\n";
        }
        return text.empty() ? text : L"\n## " + std::wstring(heading) + L"\n" + text;
    }

    // What the class and its interface say of themselves, once where one says it in the words of the other.
    static std::wstring Summary(const std::wstring& ofClass, const std::wstring& ofInterface) {
        const bool repeats = ofInterface.starts_with(ofClass.substr(0, ofClass.size() - 1));
        return repeats ? ofInterface : ofClass + L"\n\n" + ofInterface;
    }

    std::wstring ClassPage(const Class& one) const {
        const Interface& face = library_.interfaces.at(one.defaultInterface);
        const std::wstring progId = library_.name + L"." + one.name;
        std::wstring text = L"# " + one.name + L"\n\n" + Summary(one.help, face.help) + L"\n\n| | |\n|---|---|\n";
        text += one.creatable ? L"| ProgID | " + Code(progId) + L": " + Code(L"CreateObject(\"" + progId + L"\")") +
                                    L" or " + Code(L"New " + progId) + L" |\n"
                              : L"| ProgID | none: the library hands these objects out |\n";
        text += L"| Class | " + Code(one.id) + L" |\n";
        text += L"| Interface | " + Code(face.name) + L" " + Code(face.id) + L" |\n";
        for (const std::wstring& other : one.otherInterfaces) text += L"| Also implements | " + Link(other) + L" |\n";
        if (one.events.empty()) return text + Properties(face) + Methods(L"Methods", nullptr, face);
        const Interface& events = library_.interfaces.at(one.events);
        text += L"| Events | " + Code(events.name) + L" " + Code(events.id) + L" |\n";
        return text + Properties(face) + Methods(L"Methods", nullptr, face) + Methods(L"Events", L"Event", events);
    }

    std::wstring InterfacePage(const Interface& one) const {
        const bool raisesEvents = one.name.starts_with(L"_");
        return L"# " + one.name + L"\n\n" + one.help + L"\n\n| | |\n|---|---|\n| Interface | " + Code(one.id) +
               L" |\n" + Properties(one) +
               (raisesEvents ? Methods(L"Events", L"Event", one) : Methods(L"Methods", nullptr, one));
    }

    std::wstring EnumerationPage(const Enumeration& one) const {
        std::wstring text =
            L"# " + one.name + L"\n\n" + one.help + L"\n\n| Name | Value | Hexadecimal |\n|---|---|---|\n";
        for (const Value& value : one.values) {
            text += L"| " + Code(value.name) + L" | " + std::to_wstring(value.number) + L" | " +
                    Hexadecimal(value.number) + L" |\n";
        }
        return text;
    }

    std::wstring IndexPage() const {
        std::wstring text = L"# Reference of " + library_.name + L" " + library_.version + L"\n\n" + library_.help +
                            L", type library " + Code(library_.id) +
                            L". These pages are generated from it by `./docs.sh`; to change them, change the help "
                            L"strings in the `.idl` files.\n\n"
                            L"Signatures are written as Visual Basic shows them: `String` is a `BSTR`, `Long` has 32 "
                            L"bits, `Integer` 16, `Object` is an `IDispatch`; the `doc` and `elem` of the XML methods "
                            L"are a document and an element of MSXML 6. What the errors and events tell the user is "
                            L"listed in [messages.md](../messages.md).\n\n## Classes\n\n| Class | |\n|---|---|\n";
        for (const Class& one : library_.classes) text += L"| " + Link(one.name) + L" | " + one.help + L" |\n";
        text +=
            L"\n## Interfaces without a class\n\nImplemented by a client or by the host suite, or by several "
            L"classes.\n\n| Interface | |\n|---|---|\n";
        for (const Interface* one : InterfacesWithoutClass())
            text += L"| " + Link(one->name) + L" | " + one->help + L" |\n";
        text += L"\n## Enumerations\n\n| Enumeration | |\n|---|---|\n";
        for (const Enumeration& one : library_.enumerations) {
            text += L"| " + Link(one.name) + L" | " + one.help + L" |\n";
        }
        return text;
    }

    const Library& library_;
    // The classes by their default interfaces.
    std::map<std::wstring, std::wstring> classes_;
    // Interfaces that stand on the page of a class.
    std::set<std::wstring> covered_;
};

}  // namespace

std::map<std::wstring, std::wstring> WritePages(const Library& library) { return Writer(library).Pages(); }

}  // namespace reference
