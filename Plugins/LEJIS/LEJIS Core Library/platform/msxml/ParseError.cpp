#include "platform/msxml/ParseError.h"

#include "platform/ComError.h"
#include "platform/Text.h"

using platform::Check;

namespace msxml {

ParseError Read(IXMLDOMParseError* error) {
    long code = 0;
    BSTR reason = nullptr;
    Check(error->get_errorCode(&code));
    Check(error->get_reason(&reason));
    return {code, platform::TakeText(reason)};
}

ParseError LastParseError(const Document& document) {
    Microsoft::WRL::ComPtr<IXMLDOMParseError> error;
    Check(document->get_parseError(error.GetAddressOf()));
    return Read(error.Get());
}

}  // namespace msxml
