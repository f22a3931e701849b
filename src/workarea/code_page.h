// The system's code page, in which text stands that is in no encoding of Unicode.
#pragma once

#include "workarea/plain_text.h"

namespace calquo {

/// The code page of a number of the system's.
CodePage codePageOf(unsigned number);

/// The one that programs without Unicode use on this machine; Windows-1252 where that is UTF-8.
const CodePage& systemCodePage();

}  // namespace calquo
