#include "files/XmlFault.h"

#include "files/XmlFaultHandler.h"

namespace lejis_client {

std::wstring DescribeXmlFault(const std::string& content) {
    XmlFaultHandler handler;
    const bool isXml = handler.Read(content);
    return isXml || handler.Fault().empty() ? L"The XML cannot be loaded." : handler.Fault();
}

}  // namespace lejis_client
