// Between the bytes of files and the control's streams.
#include "workarea/work_area_file.h"

#include <new>

#include "workarea/file_fault.h"
#include "workarea/file_kind.h"
#include "workarea/rich_text.h"

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

void requireTaken(bool taken) {
    if (!taken) {
        throw FileFault{FileFailure::Refused, {}};
    }
}

}  // namespace

void WorkAreaFile::read(const std::wstring& name) {
    withMemoryFaults([&] {
        files_.read(name, [&](std::string_view bytes) {
            if (fileKindOf(name) == FileKind::RichText && !bytes.empty()) {
                requireTaken(workArea_.replaceContentByRichText(richTextToRead(bytes)));
                form_ = {};
            } else {
                const PlainText text = decodePlainText(bytes);
                const std::wstring characters(text.characters.begin(), text.characters.end());
                requireTaken(workArea_.replaceContentByPlainText(characters));
                form_ = text.form;
            }
            return workArea_.revision();
        });
    });
}

std::wstring WorkAreaFile::write(const std::wstring& name) {
    std::wstring kept;
    withMemoryFaults([&] {
        kept = files_.save(name, workArea_.revision(), [&] {
            if (fileKindOf(name) == FileKind::RichText) {
                return richTextToWrite(workArea_.contentAsRichText());
            }
            const std::wstring text = workArea_.contentAsPlainText();
            const std::u16string units(text.begin(), text.end());
            return encodePlainText(units, form_);
        });
    });
    return kept;
}

bool WorkAreaFile::isInFile() { return files_.hold(workArea_.revision()); }

}  // namespace calquo
