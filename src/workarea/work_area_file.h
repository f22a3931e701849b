// The files that the work area is read from and written to, as rich or plain text by the ending of their names.
#pragma once

#include <functional>
#include <string>

#include "workarea/file_fault.h"
#include "workarea/file_kind.h"
#include "workarea/known_files.h"
#include "workarea/plain_text.h"
#include "workarea/work_area.h"

namespace calquo {

/// Thrown when somebody does not want what WorkAreaFile::write was about to save.
struct SaveCancelled {};

class WorkAreaFile {
public:
    /// Is told why a file could not be read again, before it is written; false leaves all as it is.
    using UnreadableListener = std::function<bool(const FileFault&)>;

    /// Both must outlive this.
    explicit WorkAreaFile(WorkArea& workArea, Disk& disk = systemDisk()) : workArea_(workArea), files_(disk) {}

    /// Puts the text of a file in place of the work area's, and the caret at its end. An empty file is an empty text of
    /// either kind. Throws FileFault; the work area is then as it was.
    void read(const std::wstring& name);

    /// Writes the work area's text to a file, unless the file holds that text already. Plain text has the form of the
    /// plain text that was read last, and UTF-8 with CR LF after rich text. Tells the name under which a foreign file
    /// is kept that had this name, or nothing. Throws FileFault or SaveCancelled; an old file of this name is then as
    /// it was.
    std::wstring write(
        const std::wstring& name, const UnreadableListener& mayBeUnreadable = [](const FileFault&) { return true; });

    /// Whether a file that was read or written here holds the text, as far as this run knows.
    bool isInFile();

private:
    std::string bytesFor(FileKind kind) const;

    WorkArea& workArea_;
    KnownFiles files_;
    TextForm form_;
};

}  // namespace calquo
