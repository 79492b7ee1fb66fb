// MSXML 6. Nothing else in the library includes its header.
#pragma once

#include <msxml6.h>
#include <ole2.h>
#include <windows.h>
#include <wrl/client.h>

namespace platform::msxml {

using Document = Microsoft::WRL::ComPtr<IXMLDOMDocument2>;
using Element = Microsoft::WRL::ComPtr<IXMLDOMElement>;
using Node = Microsoft::WRL::ComPtr<IXMLDOMNode>;

}  // namespace platform::msxml

// The short name for the folders above the platform.
namespace msxml = platform::msxml;
