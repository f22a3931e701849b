// The files that the work area is read from and written to, as rich or plain text by the ending of their names.
#pragma once

#include <string>

#include "workarea/plain_text.h"
#include "workarea/work_area.h"

namespace calquo {

class WorkAreaFile {
public:
    /// `workArea` must outlive this.
    explicit WorkAreaFile(WorkArea& workArea) : workArea_(workArea) {}

    /// Puts the text of a file in place of the work area's, and the caret at its end. An empty file is an empty text of
    /// either kind. Throws FileFault; the work area is then as it was.
    void read(const std::wstring& name);

    /// Writes the work area's text to a file. Plain text has the form of the plain text that was read last, and UTF-8
    /// with CR LF after rich text. Throws FileFault; an old file of this name is then as it was.
    void write(const std::wstring& name) const;

private:
    WorkArea& workArea_;
    TextForm form_;
};

}  // namespace calquo
