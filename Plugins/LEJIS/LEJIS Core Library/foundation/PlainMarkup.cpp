#include "foundation/PlainMarkup.h"

#include "foundation/NotPlain.h"
#include "foundation/PlainCharacters.h"

#include <algorithm>
#include <span>

namespace lejis {
namespace {

// These limits, like the capacities of the lists, are far below what any MSXML accepts.
constexpr size_t kLongestName = 1000;
constexpr size_t kLongestText = size_t{1} << 20;

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

constexpr std::string_view kDeclarations[] = {
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>",
    "<?xml version=\"1.0\" encoding=\"utf-8\"?>",
    "<?xml version=\"1.0\"?>",
    "<?xml version='1.0' encoding='UTF-8'?>",
    "<?xml version='1.0' encoding='utf-8'?>",
    "<?xml version='1.0'?>",
};

// Namespaces whose names mean something to a parser.
constexpr std::string_view kParsersNamespaces[] = {"http://www.w3.org/XML/1998/namespace",
                                                   "http://www.w3.org/2000/xmlns", "urn:schemas-microsoft-com:"};

bool IsPlainUri(std::string_view uri) {
    const bool isVisible =
        std::ranges::all_of(uri, [](char each) { return each > ' ' && each < '\x7F' && each != '&'; });
    const bool isParsers =
        std::ranges::any_of(kParsersNamespaces, [&](std::string_view known) { return uri.starts_with(known); });
    return isVisible && !isParsers;
}

bool IsSame(std::string_view ascii, std::wstring_view text) {
    return std::ranges::equal(ascii, text, {}, [](char each) { return static_cast<wchar_t>(each); });
}

void Require(bool isPlain) {
    if (!isPlain) GiveUp();
}

}  // namespace

PlainMarkup::PlainMarkup(std::string_view bytes) : bytes_(bytes) {
    PassIf(kByteOrderMark);
    for (const std::string_view declaration : kDeclarations) {
        if (PassIf(declaration)) break;
    }
    PassBlanks();
    Pass('<');
    PassStartTag();
}

bool PlainMarkup::NextChild() {
    Require(open_.Count() > 0);
    if (isEmpty_) {
        isEmpty_ = false;
        text_ = {};
        Close();
        return false;
    }
    text_ = PassCharacters('<');
    Pass('<');
    if (PassIf('/')) {
        PassEndTag();
        return false;
    }
    PassStartTag();
    return true;
}

void PlainMarkup::Skip() {
    for (const size_t outside = open_.Count() - 1; open_.Count() > outside;) NextChild();
}

void PlainMarkup::RequireEnd() {
    PassBlanks();
    Require(open_.Count() == 0 && at_ == bytes_.size());
}

bool PlainMarkup::Is(const ElementName& name) const {
    return IsSame(LocalName(), name.LocalName()) && open_.Last().number == name.Namespace();
}

void PlainMarkup::AppendText(std::wstring& text, bool asMarkup) const {
    const auto isAscii = [&](char each) { return plain::IsAscii(each) && (asMarkup || each != '&'); };
    for (std::string_view rest = text_; !rest.empty();) {
        const auto end = static_cast<size_t>(std::ranges::find_if_not(rest, isAscii) - rest.begin());
        plain::AppendAscii(text, rest.substr(0, end));
        rest.remove_prefix(end);
        if (rest.empty()) return;
        const plain::Character next = plain::Decode(rest);
        plain::Append(text, next.value);
        rest.remove_prefix(next.length);
    }
}

bool PlainMarkup::PassIf(char character) {
    if (Here() != character) return false;
    ++at_;
    return true;
}

bool PlainMarkup::PassIf(std::string_view text) {
    if (!bytes_.substr(at_).starts_with(text)) return false;
    at_ += text.size();
    return true;
}

void PlainMarkup::Pass(char character) { Require(PassIf(character)); }

void PlainMarkup::PassBlanks() {
    while (plain::IsOf(plain::kBlank, Here())) ++at_;
}

PlainMarkup::QualifiedName PlainMarkup::PassName() {
    const size_t begin = at_;
    size_t localBegin = begin;
    PassNamePart();
    if (Here() == ':') {
        localBegin = ++at_;
        PassNamePart();
    }
    Require(at_ - begin <= kLongestName);
    return {bytes_.substr(begin, at_ - begin), localBegin - begin};
}

void PlainMarkup::PassNamePart() {
    Require(plain::IsOf(plain::kNameStart, Here()));
    while (plain::IsOf(plain::kNamePart, Here())) ++at_;
}

std::string_view PlainMarkup::PassCharacters(char stop) {
    const size_t begin = at_;
    for (;;) {
        while (at_ < bytes_.size() && !plain::IsOf(plain::kSpecial, bytes_[at_])) ++at_;
        if (Here() == stop) break;
        PassSpecialCharacter();
    }
    Require(at_ - begin <= kLongestText);
    return bytes_.substr(begin, at_ - begin);
}

void PlainMarkup::PassSpecialCharacter() {
    const std::string_view rest = bytes_.substr(at_);
    const char character = Here();
    if (character == '&' || !plain::IsAscii(character)) {
        at_ += plain::Decode(rest).length;
    } else {
        // What is left is a quote, a bracket, or white space; the end of the bytes looks like a null character.
        Require(character != '<' && !rest.starts_with("]]>"));
        Require(character > ' ' || plain::IsOf(plain::kBlank, character));
        ++at_;
    }
}

void PlainMarkup::PassStartTag() {
    Require(!open_.IsFull());
    const QualifiedName name = PassName();
    const size_t outerBindings = bindings_.Count();
    attributes_.Shorten(0);
    while (plain::IsOf(plain::kBlank, Here())) {
        PassBlanks();
        if (Here() == '>' || Here() == '/') break;
        PassAttribute();
    }
    isEmpty_ = PassIf('/');
    Pass('>');
    for (const QualifiedName& attribute : attributes_.Items()) {
        if (attribute.Prefix() != "xmlns") Resolve(attribute.Prefix());
    }
    open_.Add({name, Resolve(name.Prefix()), outerBindings});
}

void PlainMarkup::PassEndTag() {
    Require(PassIf(open_.Last().name.whole));
    PassBlanks();
    Pass('>');
    Close();
}

void PlainMarkup::PassAttribute() {
    const QualifiedName name = PassName();
    Pass('=');
    const char quote = Here();
    Require(quote == '"' || quote == '\'');
    ++at_;
    const std::string_view value = PassCharacters(quote);
    ++at_;
    AddAttribute(name);
    if (name.whole == "xmlns") Declare({}, value);
    if (name.Prefix() == "xmlns") Declare(name.Local(), value);
}

void PlainMarkup::Declare(std::string_view prefix, std::string_view uri) {
    Require(IsPlainUri(uri) && prefix != "xml" && prefix != "xmlns" && (!uri.empty() || prefix.empty()));
    Require(!bindings_.IsFull());
    NamespaceNumber number = 0;
    while (number < std::size(Constants::kPrefixes) && !IsSame(uri, Constants::kPrefixes[number].uri)) ++number;
    bindings_.Add({prefix, number < std::size(Constants::kPrefixes) ? number : kUnknown});
}

void PlainMarkup::AddAttribute(const QualifiedName& name) {
    Require(!attributes_.IsFull());
    for (const QualifiedName& other : attributes_.Items()) {
        // Two prefixes may stand for one namespace.
        const bool mayBeSame = !name.Prefix().empty() && !other.Prefix().empty() && name.Local() == other.Local();
        Require(name.whole != other.whole && !mayBeSame);
    }
    attributes_.Add(name);
}

NamespaceNumber PlainMarkup::Resolve(std::string_view prefix) const {
    const std::span<const Binding> bindings = bindings_.Items();
    for (auto binding = bindings.rbegin(); binding != bindings.rend(); ++binding) {
        if (binding->prefix == prefix) return binding->number;
    }
    // Nobody declares "xml", so what has this prefix ends here as well.
    Require(prefix.empty());
    return kUnknown;
}

void PlainMarkup::Close() {
    bindings_.Shorten(open_.Last().outerBindings);
    open_.Shorten(open_.Count() - 1);
}

}  // namespace lejis
