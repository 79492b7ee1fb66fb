#include "SchemaTypes.h"

namespace incident_format {
namespace {

using lejis_client::Content;

struct Type {
    const wchar_t* name;
    // The schema text of the type. It refers to another type as "@:NAME".
    const wchar_t* definition;
    std::set<Content> contents;
};

// The library reads dates and numbers as the user's regional settings have them; these are the forms that it reads
// everywhere. White space at the ends is passed over, as it is by the library.
const Type kTypes[] = {
    {L"Nothing",
     LR"(<xsd:restriction base="xsd:token"><xsd:length value="0"/></xsd:restriction>)",
     {Content::kNothing, Content::kDate, Content::kActivityDate, Content::kMeasure, Content::kYear,
      Content::kStreetNumber}},
    {L"GivenDate",
     LR"(<xsd:restriction base="xsd:date"><xsd:pattern value="[0-9]{4}-[0-9]{2}-[0-9]{2}"/></xsd:restriction>)",
     {Content::kBirthDate, Content::kDate, Content::kActivityDate}},
    {L"Date", LR"(<xsd:union memberTypes="@:GivenDate @:Nothing"/>)", {Content::kDate, Content::kActivityDate}},
    {L"Time",
     LR"(<xsd:restriction base="xsd:token"><xsd:pattern value="(([01][0-9]|2[0-3]):[0-5][0-9](:[0-5][0-9])?)?"/></xsd:restriction>)",
     {Content::kActivityTime}},
    {L"Flag",
     LR"(<xsd:restriction base="xsd:token"><xsd:pattern value="(true|false|1|0)?"/></xsd:restriction>)",
     {Content::kFlag}},
    {L"ShortNumber", LR"(<xsd:union memberTypes="xsd:short @:Nothing"/>)", {Content::kMeasure, Content::kYear}},
    {L"LongNumber", LR"(<xsd:union memberTypes="xsd:int @:Nothing"/>)", {Content::kStreetNumber}},
};

std::wstring WithPrefix(std::wstring text, std::wstring_view prefix) {
    for (std::size_t place; (place = text.find(L"@:")) != std::wstring::npos;) text.replace(place, 1, prefix);
    return text;
}

bool IsUsed(const Type& type, const std::set<Content>& used) {
    for (const Content content : type.contents) {
        if (used.contains(content)) return true;
    }
    return false;
}

}  // namespace

std::wstring TypeName(Content content, std::wstring_view prefix) {
    // The last type of a content is the content's own; those before it are what it is made of.
    std::wstring name = L"xsd:string";
    for (const Type& type : kTypes) {
        if (type.contents.contains(content)) name = std::wstring(prefix) + L':' + type.name;
    }
    return name;
}

std::wstring TypeDefinitions(const std::set<Content>& used, std::wstring_view prefix) {
    std::wstring text;
    for (const Type& type : kTypes) {
        if (!IsUsed(type, used)) continue;
        text += L"  <xsd:simpleType name=\"" + std::wstring(type.name) + L"\">\n    " +
                WithPrefix(type.definition, prefix) + L"\n  </xsd:simpleType>\n";
    }
    return text;
}

}  // namespace incident_format
