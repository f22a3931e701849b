// What the console program asks of the system about files: each system answers in a file of its own.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace calquo {

/// Opens a file for reading; -1, with errno set, when that fails.
/// @param path in UTF-8 on Windows, as the system has it elsewhere
int openForReading(const std::string& path);

/// Reads up to `room` bytes, which come at once as far as they are there; 0 at the end, -1 with errno set. What is
/// typed comes in UTF-8 on Windows.
std::ptrdiff_t readSome(int file, char* bytes, std::size_t room);

/// Writes bytes and tells how many they were; -1 with errno set. A terminal of Windows shows them as UTF-8.
std::ptrdiff_t writeSome(int file, const char* bytes, std::size_t count);

/// Whether a file, not a folder, has this name.
bool isFile(const std::string& path);

bool isTerminal(int file);

/// Keeps the system from changing what is read or written: line ends, or the end of a file at a control-Z.
void keepBytes(int file);

enum class Direction : std::uint8_t { Read, Write };

/// Called after a read or write that has failed, as errno says. Where nothing is wrong but the time, waits until the
/// file is ready and returns true: after an interruption, and for a pipe or terminal that somebody has set not to
/// block.
bool waitUntilReady(int file, Direction direction);

}  // namespace calquo
