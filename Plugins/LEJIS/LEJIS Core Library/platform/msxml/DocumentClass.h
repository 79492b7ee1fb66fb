#pragma once

#include "platform/msxml/MsXml.h"

namespace msxml {

// A new document as MSXML makes it. Its class is looked up once and then kept: a look-up costs as much as the writing
// of a hundred elements.
Document NewDocument();

// Lets go of the class, while COM is still there.
void ReleaseDocumentClass() noexcept;

}  // namespace msxml
