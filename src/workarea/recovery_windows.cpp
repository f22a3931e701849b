// The folder and the files of the kept copies.
#include "workarea/recovery.h"

#include <algorithm>
#include <new>

#include "values/program.h"
#include "widgets/windows_api.h"
#include "workarea/disk_file.h"
#include "workarea/file_fault.h"
#include "workarea/recovery_folder.h"

namespace calquo {
namespace {

std::wstring nameFromNowOn() {
    SYSTEMTIME now{};
    GetSystemTime(&now);
    return copyName({now.wYear, now.wMonth, now.wDay, now.wHour, now.wMinute, now.wSecond, now.wMilliseconds,
                     GetCurrentProcessId()});
}

/// Does something for the sake of the next start alone: what cannot be done is left.
template <typename Action>
void asFarAsPossible(Action action) {
    try {
        action();
    } catch (const FileFault&) {
        // A disk that is full, say.
    } catch (const std::bad_alloc&) {
        // The memory may be there again at the next time.
    }
}

}  // namespace

std::wstring RunningCopyMark::nameFor(const std::wstring& copy) {
    // For programs of any version.
    return std::wstring(L"Global\\").append(wideProgramName).append(L" ").append(copy);
}

RunningCopyMark::RunningCopyMark(const std::wstring& copy)
    : mutex_(CreateMutexW(nullptr, FALSE, nameFor(copy).c_str())) {}

RunningCopyMark::~RunningCopyMark() {
    if (mutex_ != nullptr) {
        CloseHandle(mutex_);
    }
}

bool RunningCopyMark::isSet(const std::wstring& copy) {
    const HANDLE mutex = OpenMutexW(SYNCHRONIZE, FALSE, nameFor(copy).c_str());
    if (mutex == nullptr) {
        return GetLastError() == ERROR_ACCESS_DENIED;  // of a program that runs with other rights
    }
    CloseHandle(mutex);
    return true;
}

Recovery::Recovery(WorkArea& workArea, std::function<bool()> isSaved, std::wstring folder)
    : workArea_(workArea),
      isSaved_(std::move(isSaved)),
      file_(workArea, systemDiskForOwnFiles()),
      folder_(std::move(folder)),
      copy_(nameFromNowOn()),
      running_(std::make_unique<RunningCopyMark>(copy_)) {}

std::vector<std::wstring> Recovery::endedCopies() const {
    std::vector<std::wstring> copies;
    if (!folder_.empty()) {
        copies = copiesNewestFirst(fileNamesIn(folder_));
    }
    std::erase_if(copies, RunningCopyMark::isSet);
    return copies;
}

bool Recovery::hasUnsavedCopy() const {
    const std::vector<std::wstring> copies = endedCopies();
    return !copies.empty() && !isSavedCopy(copies.front());
}

bool Recovery::bringBack() {
    for (const std::wstring& copy : endedCopies()) {
        if (std::ranges::find(broughtBack_, copy) != broughtBack_.end()) {
            continue;
        }
        broughtBack_.push_back(copy);
        try {
            const std::wstring own = copy_;
            aroundReplacement([&] { file_.read(path(copy)); });
            if (own != copy_) {
                broughtBack_.push_back(own);  // it is not the one before
            }
            return true;
        } catch (const FileFault&) {
            // The one before may be readable.
        }
    }
    broughtBack_.clear();
    return false;
}

void Recovery::aroundReplacement(const std::function<void()>& replace) {
    keepAtEnd();
    const TextRevision before = workArea_.revision();
    const bool wasSaved = isSaved_();
    replace();
    if (!isWritten_ || workArea_.revision() == before) {
        return;
    }
    if (wasSaved || workArea_.isEmpty()) {
        renameAsSaved();
    }
    asFarAsPossible([&] {
        std::wstring copy = nameFromNowOn();
        running_ = std::make_unique<RunningCopyMark>(copy);
        copy_ = std::move(copy);
        isWritten_ = false;
    });
}

void Recovery::keep() {
    isWaiting_ = true;
    keepWaiting();
}

void Recovery::keepWaiting() {
    if (isWaiting_ && pace_.allows(WritingPace::Clock::now())) {
        keepNow();
    }
}

void Recovery::keepNow() {
    isWaiting_ = false;
    if (!isSaved_()) {
        write();
    }
}

void Recovery::noteSaved() {
    if (isWritten_ && isSaved_()) {
        renameAsSaved();
    }
}

void Recovery::keepAtEnd() {
    // What was only read is safe where it is; but a copy is the text of its run's end, and not an older one.
    if (isWritten_ || !isSaved_()) {
        write();
    }
    if (isWritten_ && (isSaved_() || workArea_.isEmpty())) {
        renameAsSaved();
    }
}

void Recovery::write() {
    // What was emptied on purpose is worth more as it was before.
    if (folder_.empty() || file_.isInFile() || workArea_.isEmpty()) {
        return;
    }
    isWaiting_ = true;
    const auto begin = WritingPace::Clock::now();
    asFarAsPossible([&] {
        if (!isWritten_) {
            makeFolder(folder_);
            removeOldCopies();
        }
        file_.write(path(copy_));
        isWritten_ = true;
        isWaiting_ = false;
        DeleteFileW(path(savedCopyName(copy_)).c_str());
    });
    pace_.wrote(begin, WritingPace::Clock::now());
}

void Recovery::renameAsSaved() const {
    asFarAsPossible([&] { MoveFileW(path(copy_).c_str(), path(savedCopyName(copy_)).c_str()); });
}

void Recovery::removeOldCopies() const {
    // Of a run that was killed. One that is being written cannot be deleted.
    for (const std::wstring& file : fileNamesIn(folder_)) {
        if (file.ends_with(temporaryEnding)) {
            DeleteFileW(path(file).c_str());
        }
    }
    const std::vector<std::wstring> copies = endedCopies();
    // This run's own will be one of those that stay.
    for (std::size_t index = mostCopies - 1; index < copies.size(); ++index) {
        DeleteFileW(path(copies[index]).c_str());
    }
}

}  // namespace calquo
