// The lines of a sheet in any form that the window saves, or of plain text as it comes from a pipe or a terminal.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "console/byte_streams.h"
#include "console/sheet_form.h"

namespace calquo {

/// The lines of a file. Its first bytes tell its form. Plain text is given out as it comes: memory grows to the longest
/// line, of at most 64 MiB, and no further. Rich text and UTF-16 are read whole, up to the same size.
class LineReader {
public:
    /// Flushes `output`, with the prompt after it, before it waits for more, so that whoever sends lines one by one
    /// gets each answer before the next line is asked for.
    LineReader(const InputFile& file, OutputStream& output, std::string_view prompt = {});

    /// The next line in UTF-8, or in whatever code plain text has, without its line end ("\n", "\r\n" or "\r"), valid
    /// until the next call; false when there are no more. Throws ReadFault, also for a line that is too long and for
    /// what is no sheet.
    bool next(std::string_view& line);

private:
    void readMore();
    void makeRoom();
    void readBytes();
    bool takeForm();
    void readSheet(SheetForm form);

    const InputFile& file_;
    OutputStream& output_;
    std::string_view prompt_;
    std::vector<char> buffer_;
    std::size_t start_ = 0;     // of what has been read and not yet given out
    std::size_t lineFeed_ = 0;  // the first line feed from there on; end_ when there is none
    std::size_t return_ = 0;    // the same of carriage returns
    std::size_t end_ = 0;       // of what has been read
    bool formIsKnown_ = false;
    bool isAllRead_ = false;
};

}  // namespace calquo
