// Any order of saves and reads of this run, and of changes by others, on a disk that fails at any call: no text of
// anybody else is lost, and a save that fails leaves all files as they were.
#include <set>

#include "support/fake_disk.h"
#include "target.h"
#include "workarea/disk_file.h"
#include "workarea/kept_copies.h"
#include "workarea/known_files.h"

namespace calquo {
namespace {

class Run {
public:
    explicit Run(InputReader reader) : reader_(reader) {
        disk_.failing = [this](int, std::string_view) { return failure(); };
    }

    void run() {
        while (!reader_.isAtEnd()) {
            const std::uint8_t step = reader_.byte();
            const std::wstring name = names[step >> 4 & 3];
            mayFail_ = (step & 8) != 0;
            disk_.failsHalfWay = (step & 0x80) != 0;
            switch (step % 4) {
                case 0:
                    putByOthers(name);
                    break;
                case 1:
                    read(name);
                    break;
                case 2:
                    ++revision_;
                    [[fallthrough]];
                default:
                    save(name);
            }
        }
    }

private:
    static constexpr const wchar_t* names[] = {L"a.rtf", L"b.txt", L"a.rtf.bak", L"a.rtf.bak2"};

    std::optional<FileFailure> failure() {
        if (!mayFail_ || reader_.byte() % 8 != 0) {
            return std::nullopt;
        }
        constexpr FileFailure failures[] = {FileFailure::DiskFull, FileFailure::InUse, FileFailure::AccessDenied,
                                            FileFailure::Other};
        return failures[reader_.byte() % std::size(failures)];
    }

    void putByOthers(const std::wstring& name) {
        const auto before = disk_.files.find(name);
        if (before != disk_.files.end()) {
            foreign_.erase(before->second.bytes);  // they replace what they like
        }
        const std::string bytes = reader_.byte() % 8 == 0 ? "" : "others' " + std::to_string(++number_);
        disk_.put(name, bytes);
        if (!bytes.empty()) {
            foreign_.insert(bytes);
        }
    }

    void read(const std::wstring& name) {
        try {
            known_.read(name, [&](std::string_view bytes) {
                foreign_.erase(std::string(bytes));  // its text is shown, and may be replaced
                return ++revision_;
            });
            require(mayFail_ || known_.hold(revision_), "a text that was read is not known");
        } catch (const FileFault&) {
            // What could not be read is foreign as before.
        }
    }

    void save(const std::wstring& name) {
        std::string bytes = "own " + std::to_string(revision_);
        auto before = contents();
        try {
            const std::wstring kept = known_.save(name, revision_, [&] { return bytes; });
            require(kept.empty() || disk_.files.contains(kept), "what is said to be kept is not there");
            makeRoom(kept.empty() ? name : kept, before);
            if (!kept.empty()) {
                kept_[kept] = before[name];
            }
            require(mayFail_ || known_.hold(revision_), "a text that was saved is not known");
        } catch (const FileFault&) {
            // A replacement that takes the old file away and fails may leave the new text alone, under another name.
            require(disk_.failsHalfWay || std::ranges::includes(contents(), before),
                    "a save that failed has changed a file");
            makeRoom(name, before);
        }
        std::set<std::string> present;
        for (const auto& [file, content] : disk_.files) {
            present.insert(content.bytes);
        }
        require(std::ranges::includes(present, foreign_), "a text of somebody else is lost");
    }

    /// A file that this run itself has put aside is replaced when its name is needed, unless somebody has changed it.
    void makeRoom(const std::wstring& name, const std::map<std::wstring, std::string>& before) {
        const auto ours = kept_.find(name);
        const auto present = before.find(name);
        if (ours != kept_.end() && present != before.end() && ours->second == present->second) {
            foreign_.erase(present->second);
        }
    }

    std::map<std::wstring, std::string> contents() const {
        std::map<std::wstring, std::string> all;
        for (const auto& [file, content] : disk_.files) {
            all[file] = content.bytes;
        }
        return all;
    }

    InputReader reader_;
    FakeDisk disk_;
    KnownFiles known_{disk_};
    bool mayFail_ = false;
    TextRevision revision_ = 1;
    int number_ = 0;
    std::map<std::wstring, std::string> kept_;
    std::set<std::string> foreign_;  ///< Texts that nobody has seen in the program.
};

/// Copies that take any time each, wanted at any times: writing them has at most a twentieth of the time.
void checkPace(InputReader reader) {
    WritingPace pace;
    WritingPace::Time now{};
    WritingPace::Clock::duration writing{}, waiting{};
    bool isFirst = true;
    while (!reader.isAtEnd()) {
        const WritingPace::Clock::duration passed(reader.byte()), duration(reader.byte());
        now += passed;
        waiting += passed;
        if (pace.allows(now)) {
            require(isFirst || waiting >= 20 * writing, "copies are written too often");
            pace.wrote(now, now + duration);
            now += duration;
            writing = duration;
            waiting = {};
            isFirst = false;
        }
    }
}

void check(FuzzInput input) {
    Run(InputReader(input)).run();
    checkPace(InputReader(input));
}

const Target target("saves", check);

}  // namespace
}  // namespace calquo
