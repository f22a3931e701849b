// Between the bytes of files and the control's streams.
#include "workarea/work_area_file.h"

#include <limits>
#include <new>

#include "widgets/windows_api.h"
#include "workarea/code_page.h"
#include "workarea/disk_file.h"
#include "workarea/file_fault.h"
#include "workarea/file_kind.h"
#include "workarea/rich_text_filter.h"
#include "workarea/text_cost.h"

namespace calquo {
namespace {

/// Runs `action` with its lack of memory as a fault.
template <typename Action>
void withMemoryFaults(Action action) {
    try {
        action();
    } catch (const std::bad_alloc&) {
        throw FileFault{FileFailure::OutOfMemory, {}};
    }
}

// The system's characters are UTF-16 units.
static_assert(sizeof(wchar_t) == sizeof(char16_t));

void requireTaken(bool taken, FileFailure failure) {
    if (!taken) {
        throw FileFault{failure, {}};
    }
}

PlainTextRules plainTextRules() { return {systemCodePage(), mostTextCost()}; }

/// Throws when the bytes could not be read again.
void refuseWhatCannotBeRead(FileKind kind, std::string_view bytes) {
    if (bytes.size() > largestFile) {
        throw FileFault{FileFailure::TooLarge, {}};
    }
    if (kind == FileKind::RichText) {
        cleanRichText(bytes, mostTextCost(), LastLineEnd::Dropped);
    } else {
        decodePlainText(bytes, plainTextRules());
    }
}

}  // namespace

std::uint64_t mostTextCost() { return isUnderWine() ? mostInWine : std::numeric_limits<std::uint64_t>::max(); }

void WorkAreaFile::read(const std::wstring& name) {
    withMemoryFaults([&] {
        files_.read(name, [&](std::string_view bytes) {
            if (fileKindOf(name) == FileKind::RichText && !bytes.empty()) {
                const std::string text = workArea_.onScreen(bytes, mostTextCost());
                requireTaken(workArea_.replaceContentByRichText(text), FileFailure::Refused);
                form_ = {};
            } else {
                const PlainText text = decodePlainText(bytes, plainTextRules());
                const auto* const characters = reinterpret_cast<const wchar_t*>(text.characters.data());
                // Plain text has nothing else that a control could refuse.
                requireTaken(workArea_.replaceContentByPlainText({characters, text.characters.size()}),
                             FileFailure::OutOfMemory);
                form_ = text.form;
            }
            return workArea_.revision();
        });
    });
}

std::wstring WorkAreaFile::write(const std::wstring& name, const UnreadableListener& mayBeUnreadable) {
    std::wstring kept;
    withMemoryFaults([&] {
        kept = files_.save(name, workArea_.revision(), [&] {
            std::string bytes = bytesFor(fileKindOf(name));
            try {
                refuseWhatCannotBeRead(fileKindOf(name), bytes);
            } catch (const FileFault& fault) {
                if (!mayBeUnreadable(fault)) {
                    throw SaveCancelled{};
                }
            }
            return bytes;
        });
    });
    return kept;
}

std::string WorkAreaFile::bytesFor(FileKind kind) const {
    if (kind == FileKind::RichText) {
        return workArea_.sheetAsRichText();
    }
    const std::wstring text = workArea_.contentAsPlainText();
    return encodePlainText({reinterpret_cast<const char16_t*>(text.data()), text.size()}, form_, systemCodePage());
}

bool WorkAreaFile::isInFile() { return files_.hold(workArea_.revision()); }

}  // namespace calquo
