// Holds what a SAX reader tells of an incident file against the format, in one pass.
#pragma once

#include "files/ActivityTime.h"
#include "files/FormatTree.h"
#include "files/Loss.h"
#include "files/WrittenName.h"

#include <string>
#include <string_view>
#include <vector>

namespace lejis_client {

class LossFinder {
public:
    // The first element is the root, which is an incident card.
    void Begin(int line, const WrittenName& name);
    // Takes an attribute of the element that has just begun.
    void Attribute(int line, const WrittenName& name, std::wstring_view value);
    // A piece of the text in the element that is open. The line is that in which the piece begins.
    void Text(int line, std::wstring_view text);
    void End();

    // In the order of the file, once it has been read.
    std::vector<Loss> Losses() const;

private:
    // A value that is sent with its partner alone.
    struct Half {
        const FormatRow* row;
        int line;
        std::wstring value;
    };

    struct OpenElement {
        const FormatNode* node;
        int line;
        // The index in open_ of the element whose reader looks for the children of this one: this element itself, or an
        // element further up when this one has no row.
        std::size_t reader;
        // Which of the elements that it looks for it has found: it reads the first one.
        std::vector<const FormatNode*> found;
        std::vector<Half> halves;
        // Begins with its first character that is not white space; the line is that of this character.
        std::wstring text;
        int textLine;
    };

    // An element that is not read, and all in it.
    struct Unread {
        int line;
        std::wstring text;
        // How deep in it the file is, and how many elements it holds.
        std::size_t depth;
        std::size_t elements;
    };

    void BeginRead(int line, const FormatNode& node);
    void BeginUnread(int line, const WrittenName& name, const std::wstring& why);
    void EndUnread();
    void EndValue(const OpenElement& element);
    void AddLostHalves(const std::vector<Half>& halves);
    bool WasFound(const FormatNode& node) const;
    // Whether the library reads one such element and passes over the others.
    static bool IsReadOnce(const FormatNode& node);
    std::vector<const FormatNode*> Expected() const;
    void Add(int line, std::wstring text, bool isFatal = false);

    std::vector<OpenElement> open_;
    Unread unread_ = {};
    // How deep the file is in an element that should hold nothing but its value.
    std::size_t depthInValue_ = 0;
    ActivityTime activityTime_;
    std::vector<Loss> losses_;
};

}  // namespace lejis_client
