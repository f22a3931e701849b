// The command line of Calquo.exe: the file that it names.
#pragma once

#include <string>
#include <string_view>

namespace calquo {

/// The file that a command line names: its first word after the program's own name, without the quotation marks that
/// let a word have blanks in it. Empty when there is none.
std::wstring fileOnCommandLine(std::wstring_view commandLine);

}  // namespace calquo
