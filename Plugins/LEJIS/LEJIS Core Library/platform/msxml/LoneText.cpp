#include "platform/msxml/LoneText.h"

#include "platform/ComError.h"
#include "platform/msxml/Document.h"
#include "platform/msxml/Node.h"
#include "platform/Text.h"

namespace msxml {

std::optional<platform::OutText> LoneText(std::wstring_view markup) {
    try {
        const Document document = CreateDocument();
        if (!LoadXml(document, platform::Join({L"<a>", markup, L"</a>"}))) return std::nullopt;
        return Text(Root(document));
    } catch (const platform::ComError&) {
        return std::nullopt;
    }
}

}  // namespace msxml
