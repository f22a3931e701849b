// The files that this run has read or saved, and what a save does about one that somebody else has put in its place.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "workarea/disk.h"

namespace calquo {

/// A number for each text that the work area has held; equal numbers mean the same text.
using TextRevision = std::uint32_t;

enum class SaveStep : std::uint8_t {
    None,         ///< The file holds the text.
    Write,        ///< Nobody misses what the file holds, if there is one.
    KeepAndWrite  ///< The file is foreign, and stays beside the new one.
};

/// What there is where a save wants to write.
struct SavePlace {
    std::optional<std::uint64_t> size;  ///< Of the file; none where there is no file.
    bool isKnown = false;               ///< This run has read or written the file, and nobody has changed it since.
    bool holdsText = false;             ///< What was read or written is the text that is to be saved.
};

SaveStep saveStepAt(const SavePlace& place);

/// The name under which a foreign file stays: `name` and ".bak" for the first, ".bak2" and so on for others.
std::wstring keptName(const std::wstring& name, int number);

class KnownFiles {
public:
    /// `disk` must outlive this.
    explicit KnownFiles(Disk& disk) : disk_(disk) {}

    /// All bytes of a file, which `take` takes as the text of a revision that it tells. Throws FileFault.
    void read(const std::wstring& name, const std::function<TextRevision(std::string_view bytes)>& take);

    /// Saves the text of a revision, whose bytes are asked for where they are to be written. Tells the name under which
    /// a foreign file is kept, or nothing. Throws FileFault; all files are then as they were.
    std::wstring save(const std::wstring& name, TextRevision revision, const std::function<std::string()>& bytes);

    /// Whether the text of a revision was read from a file or saved to one.
    bool hold(TextRevision revision) const;

private:
    struct Row {
        std::wstring name;
        FileState state;
        std::optional<std::uint64_t> digest;   ///< None where size and time have to do.
        std::optional<TextRevision> revision;  ///< None for a foreign file that was kept under this name.
    };

    /// What is known of a file that is as it was left; null for any other.
    const Row* knownRow(const std::wstring& name, const FileState& state);
    /// Adds a row, for which there must be room, with the state in which the file is now.
    void note(Row row);
    /// The first name for a kept file that no foreign one has.
    std::wstring nameToKeep(const std::wstring& name);

    Disk& disk_;
    std::vector<Row> rows_;
};

}  // namespace calquo
