// Whole files: read at once, and replaced in a way that leaves either the old or the new one, whatever happens.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "workarea/disk.h"

namespace calquo {

/// The most bytes that are read, 64 megabytes.
inline constexpr std::size_t largestFile = std::size_t{64} << 20;

/// The longest path that all programs of the system can use, in UTF-16 units.
inline constexpr std::size_t longestPath = 259;

/// All bytes of a file. Throws FileFault; TooLarge above `largestFile`.
std::string readFile(Disk& disk, const std::wstring& name);

/// Puts a file of these bytes in the place of `name`. They are complete on the disk, in a temporary file of the same
/// folder, before that takes the name: ended at any moment, this leaves the old file or the new one, whole. The old
/// file stays under the name `kept` unless that is empty, in the end in place of another one; should the disk not let
/// it have that name, under a temporary one. Tells which it is. Throws FileFault; all files are then as they were.
std::wstring replaceFile(Disk& disk, const std::wstring& name, std::string_view bytes, const std::wstring& kept = {});

/// What the name of a temporary file ends with, where there is room for it.
inline constexpr wchar_t temporaryEnding[] = L".tmp";

/// A name for a temporary file, made of `random` and as long as `room` characters allow, of which there is one at
/// least.
std::wstring temporaryName(std::uint32_t random, std::size_t room);

}  // namespace calquo
