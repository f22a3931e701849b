// Finding line ends in what has been read, and reading more.
#include "console/line_reader.h"

#include <algorithm>
#include <cstring>

#include "console/sheet_form.h"
#include "console/system_files.h"
#include "workarea/file_fault.h"

namespace calquo {
namespace {

constexpr std::size_t pieceSize = 65536;

/// A file without line ends, such as a device, must not take all memory.
constexpr std::size_t mostBytes = std::size_t{64} << 20;

/// In bytes of what is typed: the least that one reading needs room for.
constexpr std::size_t longestCharacter = 4;

/// The index of a byte from `begin` on; `end` when there is none.
std::size_t indexOf(char byte, const std::vector<char>& bytes, std::size_t begin, std::size_t end) {
    const auto* const found = static_cast<const char*>(std::memchr(bytes.data() + begin, byte, end - begin));
    return found == nullptr ? end : static_cast<std::size_t>(found - bytes.data());
}

[[noreturn]] void throwFileFault(const std::string& name, FileFailure failure) {
    const std::wstring reason = reasonOf({failure, {}});
    std::string message = "cannot read " + name + ": ";
    std::ranges::transform(reason, std::back_inserter(message), [](wchar_t unit) { return static_cast<char>(unit); });
    throw ReadFault{{message}};
}

}  // namespace

LineReader::LineReader(const InputFile& file, OutputStream& output, std::string_view prompt)
    : file_(file), output_(output), prompt_(prompt), buffer_(pieceSize) {
    keepBytes(file_.descriptor());
}

bool LineReader::next(std::string_view& line) {
    std::size_t lineEnd = std::min(lineFeed_, return_);
    // What follows a carriage return at the end may be its line feed.
    while (lineEnd + (return_ < lineFeed_ ? 1 : 0) >= end_ && !isAllRead_) {
        readMore();
        lineEnd = std::min(lineFeed_, return_);
    }
    line = std::string_view(buffer_.data() + start_, lineEnd - start_);
    if (lineEnd == end_) {
        start_ = end_;
        return !line.empty();
    }
    start_ = lineEnd + 1 == lineFeed_ && lineFeed_ < end_ ? lineEnd + 2 : lineEnd + 1;
    if (lineFeed_ < start_) {
        lineFeed_ = indexOf('\n', buffer_, start_, end_);
    }
    if (return_ < start_) {
        return_ = indexOf('\r', buffer_, start_, end_);
    }
    return true;
}

void LineReader::readMore() {
    output_.text() += prompt_;
    output_.flush();
    const std::size_t checked = end_ - start_;
    do {
        readBytes();
    } while (!formIsKnown_ && !takeForm());
    if (std::memchr(buffer_.data() + start_ + checked, '\0', end_ - start_ - checked) != nullptr) {
        throwFileFault(file_.name(), FileFailure::NotText);
    }
}

/// Moves what is left to the beginning of the buffer, which grows where that is no help.
void LineReader::makeRoom() {
    if (start_ > 0) {
        std::memmove(buffer_.data(), buffer_.data() + start_, end_ - start_);
        end_ -= start_;
        lineFeed_ -= start_;
        return_ -= start_;
        start_ = 0;
    }
    if (buffer_.size() - end_ < longestCharacter) {
        if (buffer_.size() >= mostBytes) {
            throw ReadFault{{(formIsKnown_ ? "a line of " + file_.name() + " is longer" : file_.name() + " is larger") +
                             " than 64 MiB"}};
        }
        buffer_.resize(2 * buffer_.size());
    }
}

void LineReader::readBytes() {
    makeRoom();
    const std::size_t room = std::min(buffer_.size() - end_, pieceSize);
    for (;;) {
        const std::ptrdiff_t result = readSome(file_.descriptor(), buffer_.data() + end_, room);
        if (result >= 0) {
            const std::size_t newEnd = end_ + static_cast<std::size_t>(result);
            lineFeed_ = lineFeed_ == end_ ? indexOf('\n', buffer_, end_, newEnd) : lineFeed_;
            return_ = return_ == end_ ? indexOf('\r', buffer_, end_, newEnd) : return_;
            end_ = newEnd;
            isAllRead_ = result == 0;
            return;
        }
        if (!waitUntilReady(file_.descriptor(), Direction::Read)) {
            throw ReadFault{{systemFault("cannot read " + file_.name())}};
        }
    }
}

/// Looks at the beginning. False when more of it is needed.
bool LineReader::takeForm() {
    const SheetForm form = sheetFormOf({buffer_.data(), end_});
    if (form == SheetForm::Unknown && !isAllRead_) {
        return false;
    }
    if (form == SheetForm::RichText || form == SheetForm::Utf16) {
        readSheet(form);
    }
    start_ = markLength(form);
    formIsKnown_ = true;
    return true;
}

/// Reads all of the file, and puts its text in place of its bytes.
void LineReader::readSheet(SheetForm form) {
    while (!isAllRead_) {
        readBytes();
    }
    try {
        const std::string text = textOfSheet({buffer_.data(), end_}, form);
        buffer_.assign(text.begin(), text.end());
    } catch (const FileFault& fault) {
        throwFileFault(file_.name(), fault.failure);
    }
    end_ = buffer_.size();
    lineFeed_ = indexOf('\n', buffer_, 0, end_);
    return_ = indexOf('\r', buffer_, 0, end_);
}

}  // namespace calquo
