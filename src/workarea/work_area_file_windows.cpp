// Between the bytes of files and the control's streams.
#include "workarea/work_area_file.h"

#include <new>

#include "workarea/disk_file.h"
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
        const std::string bytes = readFile(name);
        if (fileKindOf(name) == FileKind::RichText && !bytes.empty()) {
            requireTaken(workArea_.replaceContentByRichText(richTextToRead(bytes)));
            form_ = {};
        } else {
            const PlainText text = decodePlainText(bytes);
            const std::wstring characters(text.characters.begin(), text.characters.end());
            requireTaken(workArea_.replaceContentByPlainText(characters));
            form_ = text.form;
        }
    });
}

void WorkAreaFile::write(const std::wstring& name) const {
    withMemoryFaults([&] {
        if (fileKindOf(name) == FileKind::RichText) {
            replaceFile(name, richTextToWrite(workArea_.contentAsRichText()));
        } else {
            const std::wstring text = workArea_.contentAsPlainText();
            const std::u16string units(text.begin(), text.end());
            replaceFile(name, encodePlainText(units, form_));
        }
    });
}

}  // namespace calquo
