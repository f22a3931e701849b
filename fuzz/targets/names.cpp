// Names of files in any characters: on a command line, among the kept copies, in messages; and the texts of widgets,
// which are taken apart again.
#include <tuple>

#include "shell/command_line.h"
#include "shell/file_messages.h"
#include "target.h"
#include "values/errors.h"
#include "widgets/widget_text.h"
#include "workarea/file_kind.h"
#include "workarea/kept_copies.h"

namespace calquo {
namespace {

std::wstring wide(std::string_view text) { return {text.begin(), text.end()}; }

void checkCommandLine(const std::wstring& text) {
    require(fileOnCommandLine(text).size() <= text.size(), "a name is longer than its line");
    std::wstring name = text;
    std::erase(name, L'"');
    const std::wstring quoted = L"\"C:\\Program Files\\x.exe\"  \"" + name + L"\" more";
    require(fileOnCommandLine(quoted) == name, "a quoted name is read as another");
}

RunStart runFrom(InputReader& reader) {
    const auto upTo = [&](int most) { return reader.byte() % most; };
    return {2000 + upTo(99), 1 + upTo(12), 1 + upTo(28),  upTo(24),
            upTo(60),        upTo(60),     upTo(250) * 4, static_cast<std::uint32_t>(reader.number(4))};
}

void checkCopies(InputReader& reader, std::vector<std::wstring> others) {
    const RunStart one = runFrom(reader);
    const RunStart other = runFrom(reader);
    const auto key = [](const RunStart& run) {
        return std::tuple(run.year, run.month, run.day, run.hour, run.minute, run.second, run.millisecond, run.process);
    };
    const std::size_t count = others.size();
    others.push_back(copyName(one));
    others.push_back(savedCopyName(copyName(other)));
    const std::vector<std::wstring> copies = copiesNewestFirst(others);
    require(copies.size() >= 2 && copies.size() <= count + 2, "a copy is not found");
    require(std::ranges::is_sorted(copies, std::greater()), "copies are not in order");
    if (copies.size() == 2) {
        const bool isOneNewer = key(one) > key(other);
        require(key(one) == key(other) || (copies.front() == copyName(one)) == isOneNewer,
                "the older copy comes first");
    }
    for (const std::wstring& copy : copies) {
        require(copiesNewestFirst({savedCopyName(copy)}).size() == 1, "the name of a saved copy is none");
        require(isSavedCopy(savedCopyName(copy)), "a saved copy is not known as one");
        require(fileKindOf(copy) == FileKind::RichText, "a copy is no rich text");
    }
}

void checkMessages(InputReader& reader, const std::wstring& name) {
    const FileFault fault{
        failureOf(static_cast<std::uint32_t>(reader.number(2)), reader.number(2), reader.byte() % 2 == 0),
        reader.byte() % 2 == 0 ? name : std::wstring()};
    require(!reasonOf(fault).empty() && !adviceOf(fault).empty(), "a failure without words");
    for (const BoxText& box : {readFailedBox(name, fault), saveFailedBox(name, fault), saveFailedAtExitBox(name, fault),
                               cannotBeReadAgainBox(name, fault)}) {
        require(box.text.find(name) != std::wstring::npos, "a message without the file's name");
        require(box.text.find(reasonOf(fault)) != std::wstring::npos, "a message without the reason");
    }
    require(keptFileHint(name).ends_with(name), "a hint without the file's name");
    const auto error = static_cast<std::uint32_t>(reader.number(4));
    require(dialogFailedBox(error).caption.ends_with(std::to_wstring(error)), "another error");
    try {
        require(fileRequestOf(static_cast<Command>(reader.number(2)), name).name == name, "another file is offered");
    } catch (const Except& raised) {
        require(raised.code == ErrorCode::InternalFault, "another error for a command without a dialog");
    }
}

void checkWidgetText(const std::string& label, const std::string& description) {
    const std::string stored = storedText(label, description);
    const bool hasBar = label.find('|') != std::string::npos;
    require(hasBar || (labelOf(stored) == label && descriptionOf(stored) == description), "another label");
    require(descriptionOf(labelOf(stored)).empty(), "a label has a description");
}

void check(FuzzInput input) {
    InputReader reader(input);
    const std::string first = reader.textUntil('\n');
    const std::string second = reader.textUntil('\n');
    checkCommandLine(wide(first));
    checkWidgetText(first, second);
    checkMessages(reader, wide(first));
    checkCopies(reader, {wide(first), wide(second), wide(first + ".rtf")});
}

const Target target("names", check);

}  // namespace
}  // namespace calquo
