// What makes a file a foreign one, and where it stays.
#include "workarea/known_files.h"

#include <algorithm>
#include <array>

#include "workarea/disk_file.h"
#include "workarea/file_fault.h"

namespace calquo {
namespace {

/// The 64-bit FNV-1a hash of bytes that come in pieces.
class Digest {
public:
    void add(std::string_view bytes) {
        for (const char byte : bytes) {
            value_ = (value_ ^ static_cast<unsigned char>(byte)) * prime;
        }
    }
    std::uint64_t value() const { return value_; }

private:
    static constexpr std::uint64_t prime = 0x100000001B3;
    std::uint64_t value_ = 0xCBF29CE484222325;
};

std::uint64_t digestOf(std::string_view bytes) {
    Digest digest;
    digest.add(bytes);
    return digest.value();
}

std::uint64_t digestOfFile(Disk& disk, const std::wstring& name) {
    const auto file = disk.open(name);
    std::string piece(std::size_t{1} << 16, '\0');
    Digest digest;
    while (const std::size_t length = file->read(piece.data(), piece.size())) {
        digest.add({piece.data(), length});
    }
    return digest.value();
}

/// Whether two whole paths are the same but for the case of ASCII letters. Other letters that the system takes for the
/// same make a known file foreign, which costs a name and loses nothing.
bool isSamePath(std::wstring_view one, std::wstring_view other) {
    const auto lower = [](wchar_t unit) { return unit >= L'A' && unit <= L'Z' ? unit - L'A' + L'a' : unit; };
    return std::ranges::equal(one, other, {}, lower, lower);
}

}  // namespace

SaveStep saveStepAt(const SavePlace& place) {
    if (place.isKnown) {
        return place.holdsText ? SaveStep::None : SaveStep::Write;
    }
    return place.size.value_or(0) == 0 ? SaveStep::Write : SaveStep::KeepAndWrite;
}

std::wstring keptName(const std::wstring& name, int number) {
    return name + L".bak" + (number == 1 ? L"" : std::to_wstring(number));
}

void KnownFiles::read(const std::wstring& name, const std::function<TextRevision(std::string_view bytes)>& take) {
    const std::wstring file = disk_.target(name);
    const std::string bytes = readFile(disk_, file);
    Row row{file, {}, digestOf(bytes), {}};
    rows_.reserve(rows_.size() + 1);
    row.revision = take(bytes);
    note(std::move(row));
}

std::wstring KnownFiles::save(const std::wstring& name, TextRevision revision,
                              const std::function<std::string()>& bytes) {
    const std::wstring file = disk_.target(name);
    const auto state = disk_.find(file);
    const Row* const row = state ? knownRow(file, *state) : nullptr;
    const SaveStep step = saveStepAt({state ? std::optional(state->size) : std::nullopt, row != nullptr,
                                      row != nullptr && row->revision == revision});
    if (step == SaveStep::None) {
        return {};
    }
    const std::wstring wanted = step == SaveStep::KeepAndWrite ? nameToKeep(file) : std::wstring();
    const std::string content = bytes();
    // All memory is had before the file changes: what has been saved is known, or the next save would keep it as a
    // foreign file.
    Row saved{file, {}, digestOf(content), revision};
    Row foreign{wanted, {}, std::nullopt, std::nullopt};
    foreign.name.reserve(longestPath);
    rows_.reserve(rows_.size() + 2);
    std::wstring kept = replaceFile(disk_, file, content, wanted);
    note(std::move(saved));
    if (!kept.empty()) {
        foreign.name = kept;
        note(std::move(foreign));
    }
    return kept;
}

bool KnownFiles::hold(TextRevision revision) const {
    return std::ranges::any_of(rows_, [&](const Row& row) { return row.revision == revision; });
}

const KnownFiles::Row* KnownFiles::knownRow(const std::wstring& name, const FileState& state) {
    const auto row =
        std::ranges::find_if(rows_, [&](const Row& candidate) { return isSamePath(candidate.name, name); });
    if (row == rows_.end() || row->state != state) {
        return nullptr;
    }
    try {
        return !row->digest || digestOfFile(disk_, name) == *row->digest ? &*row : nullptr;
    } catch (const FileFault&) {
        return nullptr;  // what cannot be compared is kept
    }
}

void KnownFiles::note(Row row) {
    std::erase_if(rows_, [&](const Row& other) { return isSamePath(other.name, row.name); });
    try {
        if (const auto state = disk_.find(row.name)) {
            row.state = *state;
            rows_.push_back(std::move(row));
        }
    } catch (...) {
        // Of what cannot be found any more nothing is known.
    }
}

std::wstring KnownFiles::nameToKeep(const std::wstring& name) {
    for (int number = 1;; ++number) {
        std::wstring kept = keptName(name, number);
        if (kept.size() > longestPath) {
            throw FileFault{FileFailure::PathTooLong, {}};
        }
        try {
            const auto state = disk_.find(kept);
            if (!state || state->size == 0) {
                return kept;
            }
            const Row* const row = knownRow(kept, *state);
            if (row != nullptr && !row->revision) {
                return kept;
            }
        } catch (const FileFault& fault) {
            if (fault.failure != FileFailure::IsFolder) {
                throw;
            }
        }
    }
}

}  // namespace calquo
