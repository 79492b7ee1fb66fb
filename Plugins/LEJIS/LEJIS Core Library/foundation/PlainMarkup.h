#pragma once

#include "foundation/BoundedList.h"
#include "foundation/ElementName.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace lejis {

// Scans XML that leaves no doubt what any parser makes of it. It reads UTF-8, elements with ASCII names and declared
// prefixes, attributes, and texts. Everything else throws NotPlain, well-formed or not: MSXML judges it.
class PlainMarkup {
public:
    // The bytes must outlive the scanner, which then stands in the root element.
    explicit PlainMarkup(std::string_view bytes);

    // Steps into the next child of the element that the scanner stands in. Without another child, steps out of the
    // element and returns false; Text is then what stood before the end tag.
    bool NextChild();
    // Steps out of the element, past all that it holds.
    void Skip();
    // Throws when more than white space follows the root.
    void RequireEnd();

    // The namespace of the element that the scanner stands in, if Constants knows it.
    std::optional<NamespaceNumber> Namespace() const {
        const NamespaceNumber number = open_.Last().number;
        return number == kUnknown ? std::nullopt : std::optional(number);
    }
    std::string_view LocalName() const { return open_.Last().name.Local(); }
    bool Is(const ElementName& name) const;

    // Appends the last text. As markup, its references stay references.
    void AppendText(std::wstring& text, bool asMarkup) const;

private:
    static constexpr NamespaceNumber kUnknown = UINT8_MAX;

    struct QualifiedName {
        std::string_view whole;
        size_t localBegin;

        std::string_view Prefix() const { return whole.substr(0, localBegin == 0 ? 0 : localBegin - 1); }
        std::string_view Local() const { return whole.substr(localBegin); }
    };
    struct Binding {
        std::string_view prefix;
        NamespaceNumber number;
    };
    struct Open {
        QualifiedName name;
        NamespaceNumber number;
        // The number of bindings that hold outside of the element.
        size_t outerBindings;
    };

    char Here() const { return at_ < bytes_.size() ? bytes_[at_] : '\0'; }
    bool PassIf(char character);
    bool PassIf(std::string_view text);
    void Pass(char character);
    void PassBlanks();
    QualifiedName PassName();
    void PassNamePart();
    std::string_view PassCharacters(char stop);
    void PassSpecialCharacter();
    // Both begin after the bracket, or the slash, that the tag begins with.
    void PassStartTag();
    void PassEndTag();
    void PassAttribute();
    void Declare(std::string_view prefix, std::string_view uri);
    void AddAttribute(const QualifiedName& name);
    NamespaceNumber Resolve(std::string_view prefix) const;
    void Close();

    const std::string_view bytes_;
    size_t at_ = 0;
    std::string_view text_;
    // The element that was begun last has no content.
    bool isEmpty_ = false;
    BoundedList<Open, 200> open_;
    BoundedList<Binding, 100> bindings_;
    // The attributes of the start tag that is being read.
    BoundedList<QualifiedName, 50> attributes_;
};

}  // namespace lejis
