// The format of incident files: which elements the library reads, where they stand and what they hold. Files are held
// against this table, and docs/incident-format.md and its schemas are made from it.
#pragma once

#include <span>
#include <string_view>

namespace lejis_client {

enum class Content {
    kText,
    kDate,
    // Read as one value, the date, a blank and the time.
    kActivityDate,
    kActivityTime,
    // The one date that keeps its card from being read when its value is not a date.
    kBirthDate,
    kFlag,
    kMeasure,
    kYear,
    kStreetNumber,
    // The library writes it, always empty, and does not read it.
    kNothing,
    // An element that holds other elements, of which the library reads the first one only. The library searches
    // elements without a row, which only stand in paths, one after the other until it finds the wanted element.
    kFirst,
    // Like kFirst, for an element whose content has a section of its own.
    kFirstOfSection,
    // Like kFirstOfSection, but the library reads every such element.
    kEachOfSection,
};

struct FormatSection;

struct FormatRow {
    std::wstring_view path;
    Content content = Content::kText;
    // What it says, as it stands in sentences.
    std::wstring_view meaning = {};
    // The member of the section's class that it fills.
    std::wstring_view member = {};
    // Where the content is one of a section.
    const FormatSection* section = nullptr;
    // An attribute, which the library writes and does not read: it has this one value.
    std::wstring_view attribute = {};
    std::wstring_view attributeValue = {};
    // The path of the value without which the library does not send this one.
    std::wstring_view partner = {};
    // Without the element it is unknown which incident the file holds.
    bool isRequired = false;
    // Whether a withdrawal sends it, and so needs it.
    bool isInWithdrawal = false;
};

// The rows of an element that has a section of its own.
struct FormatSection {
    std::wstring_view title;
    // The library's class that reads it.
    std::wstring_view reader;
    std::span<const FormatRow> rows;
};

inline constexpr std::wstring_view kIncidentElement = L"lejis:RMSIncidentIndexCard";

// The section of the root; its rows lead to the other sections.
const FormatSection& IncidentSection();

}  // namespace lejis_client
