// The folder of the program's own in which a run leaves things for the next: kept copies, and what is to be told then.
#pragma once

#include <string>
#include <vector>

namespace calquo {

/// The folder, "Kept Sheets" in the program's part of the user's local data; empty when the system names no place for
/// such data.
std::wstring recoveryFolder();

/// Makes a folder with those above it that are missing.
void makeFolder(const std::wstring& folder);

std::vector<std::wstring> fileNamesIn(const std::wstring& folder);

/// Leaves the name of a file to be told at the next start. Failures are silent; without a folder nothing is left.
void leaveNameToTell(const std::wstring& folder, const std::wstring& name);

/// Takes the name that an earlier run has left; empty where there is none.
std::wstring takeNameToTell(const std::wstring& folder);

}  // namespace calquo
