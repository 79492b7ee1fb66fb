#include "files/LossFinder.h"

#include "files/Quoted.h"
#include "files/UnreadName.h"
#include "files/ValueFault.h"
#include "text/Layout.h"
#include "text/NearestName.h"
#include "text/Trimmed.h"

#include <algorithm>

namespace lejis_client {
namespace {

// Attributes that instruct XML parsers and say nothing about the incident.
bool IsForPrograms(const WrittenName& name) {
    constexpr std::wstring_view kSchemaInstance = L"http://www.w3.org/2001/XMLSchema-instance";
    if (name.qualified == L"xmlns" || name.qualified.starts_with(L"xmlns:")) return true;
    if (name.qualified == L"xml:space") return true;
    return name.space == kSchemaInstance &&
           (name.local == L"schemaLocation" || name.local == L"noNamespaceSchemaLocation");
}

}  // namespace

void LossFinder::Begin(int line, const WrittenName& name) {
    if (unread_.depth > 0) {
        ++unread_.depth;
        ++unread_.elements;
    } else if (open_.empty()) {
        open_.push_back({&IncidentTree(), line, 0, {}, {}, {}, 0});
    } else if (!open_.back().node->children) {
        ++depthInValue_;
        Add(line, name.Text() + L" is not read: it stands in " + std::wstring(open_.back().node->name.qualified) +
                      L", and its text is taken for a part of that.");
    } else if (const FormatNode* const node = open_.back().node->Child(name.space, name.local); !node) {
        BeginUnread(line, name, WhyUnread(name, Expected()));
    } else if (WasFound(*node)) {
        BeginUnread(line, name, L" is not read: only the first one is.");
    } else {
        BeginRead(line, *node);
    }
}

void LossFinder::Attribute(int line, const WrittenName& name, std::wstring_view value) {
    if (unread_.depth > 0 || depthInValue_ > 0 || IsForPrograms(name)) return;
    const FormatNode& node = *open_.back().node;
    const std::wstring element(node.name.qualified);
    if (!node.row || node.row->attribute.empty()) {
        return Add(line, L"The attribute " + name.Text() + L" of " + element + L" is not read.");
    }
    const FormatName known(node.row->attribute);
    if (!known.Is(name.space, name.local)) {
        const std::wstring_view names[] = {known.local};
        const std::wstring ending =
            NearestName(name.local, names) ? L"; did you mean " + std::wstring(known.qualified) + L"?" : L".";
        Add(line, L"The attribute " + name.Text() + L" of " + element + L" is not read" + ending);
    } else if (value != node.row->attributeValue) {
        Add(line, name.Text() + L' ' + Quoted(value) + L" is not read: " + element + L" is always taken in the unit " +
                      Quoted(node.row->attributeValue) + L".");
    }
}

void LossFinder::Text(int line, std::wstring_view text) {
    if (unread_.depth > 0 || open_.empty()) return;
    OpenElement& element = open_.back();
    if (element.text.empty()) {
        // Most texts are the white space between elements.
        const std::size_t begin = std::min(text.find_first_not_of(kWhiteSpace), text.size());
        element.textLine = line + static_cast<int>(std::ranges::count(text.substr(0, begin), L'\n'));
        text.remove_prefix(begin);
    }
    element.text += text;
}

void LossFinder::End() {
    if (unread_.depth > 0) return EndUnread();
    if (depthInValue_ > 0) {
        --depthInValue_;
        return;
    }
    const OpenElement& element = open_.back();
    if (!element.node->children) {
        EndValue(element);
    } else if (!element.text.empty()) {
        Add(element.textLine, L"The text " + Quoted(Trimmed(element.text)) + L" in " +
                                  std::wstring(element.node->name.qualified) + L" is not read.");
    }
    AddLostHalves(element.halves);
    open_.pop_back();
}

std::vector<Loss> LossFinder::Losses() const {
    std::vector<Loss> losses = losses_;
    if (auto loss = activityTime_.FindLoss()) losses.push_back(*std::move(loss));
    std::ranges::stable_sort(losses, {}, &Loss::line);
    return losses;
}

void LossFinder::BeginRead(int line, const FormatNode& node) {
    const std::size_t place = open_.size();
    const std::size_t reader = open_.back().reader;
    if (IsReadOnce(node)) open_[reader].found.push_back(&node);
    open_.push_back({&node, line, node.row ? place : reader, {}, {}, {}, 0});
}

void LossFinder::BeginUnread(int line, const WrittenName& name, const std::wstring& why) {
    unread_ = {line, name.Text() + why, 1, 0};
}

void LossFinder::EndUnread() {
    if (--unread_.depth > 0) return;
    std::wstring text = std::move(unread_.text);
    if (unread_.elements > 0) text += L" Nor is what stands in it: " + Counted(unread_.elements, L"element") + L".";
    Add(unread_.line, std::move(text));
}

void LossFinder::EndValue(const OpenElement& element) {
    const FormatRow& row = *element.node->row;
    const std::wstring_view value = Trimmed(element.text);
    if (!row.partner.empty() && !value.empty()) {
        const std::size_t reader = open_[open_.size() - 2].reader;
        open_[reader].halves.push_back({&row, element.line, std::wstring(value)});
    }
    if (row.content == Content::kActivityDate || row.content == Content::kActivityTime) {
        activityTime_.Set(row, element.line, value);
    } else if (const auto fault = FaultOf(row.content, value)) {
        Add(element.line, std::wstring(element.node->name.qualified) + L' ' + Quoted(value) + fault->ending,
            fault->isFatal);
    }
}

void LossFinder::AddLostHalves(const std::vector<Half>& halves) {
    for (const Half& half : halves) {
        const std::wstring_view partner = half.row->partner;
        const bool isWhole = std::ranges::any_of(halves, [&](const Half& other) { return other.row->path == partner; });
        if (isWhole) continue;
        Add(half.line, std::wstring(half.row->path) + L' ' + Quoted(half.value) + L" is not sent without " +
                           std::wstring(partner) + L".");
    }
}

bool LossFinder::WasFound(const FormatNode& node) const {
    return IsReadOnce(node) && std::ranges::count(open_[open_.back().reader].found, &node) > 0;
}

bool LossFinder::IsReadOnce(const FormatNode& node) { return node.row && node.row->content != Content::kEachOfSection; }

std::vector<const FormatNode*> LossFinder::Expected() const {
    std::vector<const FormatNode*> expected;
    for (const FormatNode& child : *open_.back().node->children) {
        if (!WasFound(child)) expected.push_back(&child);
    }
    return expected;
}

void LossFinder::Add(int line, std::wstring text, bool isFatal) { losses_.push_back({line, std::move(text), isFatal}); }

}  // namespace lejis_client
