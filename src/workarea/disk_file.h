// Whole files: read at once, and replaced in a way that leaves either the old or the new one, whatever happens.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace calquo {

/// The name with its whole path, whatever folder is the current one later.
std::wstring fullFileName(const std::wstring& name);

bool fileExists(const std::wstring& name);

/// The most bytes that are read, 16 megabytes.
inline constexpr std::size_t largestFile = std::size_t{16} << 20;

/// All bytes of a file. Throws FileFault; TooLarge above `largestFile`.
std::string readFile(const std::wstring& name);

/// Puts a file of these bytes in the place of `name`. They are complete on the disk, in a temporary file of the same
/// folder, before that takes the name: ended at any moment, this leaves the old file or the new one, whole. The
/// temporary file vanishes with its writer. Throws FileFault; the old file is then as it was.
void replaceFile(const std::wstring& name, std::string_view bytes);

}  // namespace calquo
