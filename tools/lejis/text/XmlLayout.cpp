#include "text/XmlLayout.h"

#include <algorithm>

namespace lejis_client {
namespace {

class Layout {
public:
    // A tag and the text up to the next one.
    void Add(std::wstring_view tag, std::wstring_view text) {
        const bool ends = tag.starts_with(L"</");
        if (ends) --depth_;
        // An element that holds no other one stays on one line.
        if (!ends || !began_) NewLine();
        lines_ += tag;
        began_ = !ends && !tag.ends_with(L"/>");
        if (!began_) return;
        lines_ += text;
        ++depth_;
    }

    std::wstring Lines() const { return lines_ + L'\n'; }

private:
    void NewLine() {
        if (!lines_.empty()) lines_ += L'\n' + std::wstring(2 * depth_, L' ');
    }

    std::wstring lines_;
    std::size_t depth_ = 0;
    // Whether the last tag was the first one of an element.
    bool began_ = false;
};

}  // namespace

std::wstring Indented(std::wstring_view markup) {
    Layout layout;
    while (!markup.empty()) {
        const std::size_t end = std::min(markup.find(L'>'), markup.size() - 1) + 1;
        const std::size_t next = std::min(markup.find(L'<', end), markup.size());
        layout.Add(markup.substr(0, end), markup.substr(end, next - end));
        markup.remove_prefix(next);
    }
    return layout.Lines();
}

}  // namespace lejis_client
