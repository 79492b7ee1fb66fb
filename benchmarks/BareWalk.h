#pragma once

#include "platform/msxml/MsXml.h"

namespace benchmarks {

// The floor of reading: base name, namespace and text of every element, nothing kept.
void BareWalk(const msxml::Document& document);

}  // namespace benchmarks
