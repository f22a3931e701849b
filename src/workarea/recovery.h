// Keeps the work area in a file of the program's own, and brings back what earlier runs have kept, however they ended.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "workarea/kept_copies.h"
#include "workarea/work_area_file.h"

namespace calquo {

/// Marks a copy as that of a running program, for all sessions and users of the machine, until the process ends in
/// whatever way.
class RunningCopyMark {
public:
    /// The name of the mark among those of the system.
    static std::wstring nameFor(const std::wstring& copy);

    explicit RunningCopyMark(const std::wstring& copy);
    RunningCopyMark(const RunningCopyMark&) = delete;
    RunningCopyMark& operator=(const RunningCopyMark&) = delete;
    ~RunningCopyMark();

    static bool isSet(const std::wstring& copy);

private:
    void* mutex_;
};

/// Failures are silent: what cannot be kept is no reason to disturb whoever is working.
class Recovery {
public:
    /// `workArea` must outlive this. `isSaved` tells whether a file of the user's holds the text. Without a folder
    /// nothing is kept; one that is missing is made when it is first needed.
    Recovery(WorkArea& workArea, std::function<bool()> isSaved, std::wstring folder);

    /// Whether the newest run that has ended left text that is in no file of the user's.
    bool hasUnsavedCopy() const;

    /// Puts the newest copy of an ended run in place of the work area's text, as one step for undo; the next call the
    /// one before that, and so on. False when there is none left; the next call begins with the newest again.
    bool bringBack();

    /// Runs an action that may put another text in place of the work area's. That is then left as a run that has ended
    /// leaves it. Nobody has to be told of text that was cleared away.
    void aroundReplacement(const std::function<void()>& replace);

    /// Keeps the text where it has changed. Shortly after a long writing it is left to wait for the next call, of this
    /// or of keepWaiting.
    void keep();
    void keepWaiting();
    /// Keeps the text where it has changed, whatever the pace; not what a file of the user's holds.
    void keepNow();
    /// Notes after a save that nobody has to be told of the copy.
    void noteSaved();
    /// Keeps the text at the end of the run, and notes where nobody has to be told of it.
    void keepAtEnd();

private:
    std::wstring path(const std::wstring& copy) const { return folder_ + L'\\' + copy; }
    std::vector<std::wstring> endedCopies() const;
    void removeOldCopies() const;
    void write();
    void renameAsSaved() const;

    WorkArea& workArea_;
    std::function<bool()> isSaved_;
    WorkAreaFile file_;
    std::wstring folder_;
    std::wstring copy_;  ///< The name of the file in which this run keeps its text now.
    std::unique_ptr<RunningCopyMark> running_;
    std::vector<std::wstring> broughtBack_;
    WritingPace pace_;
    bool isWaiting_ = false;
    bool isWritten_ = false;
};

}  // namespace calquo
