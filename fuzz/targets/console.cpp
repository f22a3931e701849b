// Any arguments and any standard input of calq: it ends with a status that it has, and each line of a text gets one
// line, in whatever pieces it comes and from wherever.
#include <fcntl.h>
#include <pty.h>
#include <sys/mman.h>
#include <termios.h>
#include <unistd.h>

#include <cstdio>
#include <string>
#include <thread>
#include <vector>

#include "console/byte_streams.h"
#include "console/calq.h"
#include "console/sheet_form.h"
#include "target.h"

namespace calquo {
namespace {

/// A file in memory.
class MemoryFile {
public:
    explicit MemoryFile(std::string_view bytes) : file_(::memfd_create("calq", 0)) {
        require(::write(file_, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size()), "no file in memory");
        ::lseek(file_, 0, SEEK_SET);
    }
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;
    ~MemoryFile() { ::close(file_); }

    int descriptor() const { return file_; }
    std::string path() const { return "/proc/self/fd/" + std::to_string(file_); }
    std::string bytes() const {
        std::string all(static_cast<std::size_t>(::lseek(file_, 0, SEEK_END)), '\0');
        require(::pread(file_, all.data(), all.size(), 0) == static_cast<ssize_t>(all.size()), "cannot be read again");
        return all;
    }

private:
    int file_;
};

/// Lets one of the process's descriptors stand for another one, as long as this lives.
class Redirection {
public:
    Redirection(int descriptor, int to) : descriptor_(descriptor), original_(::dup(descriptor)) {
        ::dup2(to, descriptor);
    }
    Redirection(const Redirection&) = delete;
    Redirection& operator=(const Redirection&) = delete;
    ~Redirection() {
        ::dup2(original_, descriptor_);
        ::close(original_);
    }

private:
    int descriptor_;
    int original_;
};

struct Run {
    int status = 0;
    std::string output;
    std::string messages;
};

int statusOf(const std::vector<std::string>& arguments, int input, int output, int messages) {
    std::vector<const char*> all;
    all.reserve(arguments.size());
    for (const std::string& argument : arguments) {
        all.push_back(argument.c_str());
    }
    const Redirection in(standardInput, input);
    const Redirection out(standardOutput, output);
    const Redirection error(standardError, messages);
    const int status = runCalq(all);
    std::fflush(stderr);
    return status;
}

Run runOf(const std::vector<std::string>& arguments, int input) {
    const MemoryFile output(""), messages("");
    const int status = statusOf(arguments, input, output.descriptor(), messages.descriptor());
    return {status, output.bytes(), messages.bytes()};
}

Run runOf(const std::vector<std::string>& arguments, const MemoryFile& input) {
    return runOf(arguments, input.descriptor());
}

/// Lines end with "\n", "\r\n" or "\r".
std::size_t linesIn(std::string_view bytes) {
    std::size_t count = 0;
    for (std::size_t index = 0; index < bytes.size(); ++index) {
        const bool isPair = bytes.substr(index, 2) == "\r\n";
        count += !isPair && (bytes[index] == '\r' || bytes[index] == '\n') ? 1 : 0;
    }
    return count + (bytes.empty() || bytes.ends_with('\n') || bytes.ends_with('\r') ? 0 : 1);
}

/// Standard input alone, answered and recorded.
void checkStream(const std::string& bytes) {
    const Run answers = runOf({"--seed=1"}, MemoryFile(bytes));
    const std::string records = runOf({"--seed=1", "--record"}, MemoryFile(bytes)).output;
    const MemoryFile sheet(bytes);
    const Run checked = runOf({"--check", sheet.path()}, MemoryFile(""));
    if (answers.status == 2) {
        require(checked.status == 2 && !checked.messages.empty(), "what is no sheet is no text, either");
        return;
    }
    require(answers.status == 0 && answers.messages.empty(), "standard input is not read");
    require(checked.status == (checked.output.empty() ? 0 : 1), "what differs is not told by the status");
    require(runOf({"--seed=1", "--file", sheet.path()}, MemoryFile("")).output == answers.output,
            "a file has other answers than standard input");
    require(linesIn(answers.output) == linesIn(records), "not each line gets a record");
    if (sheetFormOf(bytes) == SheetForm::Plain) {
        require(linesIn(answers.output) == linesIn(bytes), "not each line gets a line");
    }
}

/// The same lines so often that they come in pieces, and one line longer than a piece.
void checkLongStream(const std::string& bytes) {
    constexpr std::size_t piece = 65536;
    std::string many;
    while (many.size() < 2 * piece) {
        many += bytes + "\n";
    }
    const Run run = runOf({}, MemoryFile(many));
    const bool isText = run.status == 0 && sheetFormOf(many) == SheetForm::Plain;
    require(!isText || linesIn(run.output) == linesIn(many), "not each of many lines gets a line");
    const std::string longLine = "1" + std::string(piece, ' ') + "+1\n";
    require(runOf({}, MemoryFile(longLine)).output.starts_with("2\n"), "a long line is not read whole");
}

/// What cannot be opened or read is told, with the status for it, and what is a file and no line, too.
void checkNames() {
    for (const char* const name : {".", "/proc/self/fd/none"}) {
        const Run run = runOf({"--check", name}, MemoryFile(""));
        require(run.status == 2 && run.messages.find(name) != std::string::npos, "what cannot be read is not named");
    }
    const MemoryFile sheet("1");
    require(runOf({sheet.path()}, MemoryFile("")).messages.find("--file") != std::string::npos,
            "a file in the place of a line is not told");
}

/// A pipe that answers at once when nothing is there yet is waited for.
void checkSlowPipe(const std::string& bytes) {
    int ends[2];
    require(::pipe2(ends, O_NONBLOCK) == 0, "no pipe");
    constexpr std::size_t inAnyPipe = 4096;
    const std::string some = bytes.substr(0, inAnyPipe);
    std::thread writer([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
        require(::write(ends[1], some.data(), some.size()) == static_cast<ssize_t>(some.size()), "a full pipe");
        ::close(ends[1]);
    });
    const Run run = runOf({"--seed=1"}, ends[0]);
    writer.join();
    ::close(ends[0]);
    require(run.output == runOf({"--seed=1"}, MemoryFile(some)).output, "a slow pipe has other answers");
}

/// Lines of a person at a terminal: nothing but text comes back.
void checkTerminal(const std::string& bytes) {
    int person = -1, terminal = -1;
    require(::openpty(&person, &terminal, nullptr, nullptr, nullptr) == 0, "no terminal");
    termios mode{};
    ::tcgetattr(terminal, &mode);
    ::cfmakeraw(&mode);
    mode.c_lflag |= ICANON;  // its line ends with "\n", and control and D at its beginning end the input
    ::tcsetattr(terminal, TCSANOW, &mode);
    constexpr std::size_t mostTyped = 200;
    std::string typed = bytes.substr(0, mostTyped);
    std::erase_if(typed, [&](char one) { return std::ranges::count(mode.c_cc, static_cast<cc_t>(one)) != 0; });
    typed += '\n';
    const bool isText = sheetFormOf(typed) == SheetForm::Plain;
    typed += '\x04';
    require(::write(person, typed.data(), typed.size()) == static_cast<ssize_t>(typed.size()), "nobody can type");
    require(statusOf({"--seed=1"}, terminal, terminal, terminal) == 0 || !isText, "typed lines are not answered");
    ::fcntl(person, F_SETFL, O_NONBLOCK);
    std::string shown;
    char piece[4096];
    for (ssize_t count = 0; (count = ::read(person, piece, sizeof piece)) > 0;) {
        shown.append(piece, static_cast<std::size_t>(count));
    }
    ::close(terminal);
    ::close(person);
    require((shown.starts_with("> ") || !isText) && shown.ends_with('\n'), "nobody is asked for a line");
    require(std::ranges::none_of(
                shown, [](char one) { return (one >= 0 && one < ' ' && one != '\n' && one != '\t') || one == '\x7F'; }),
            "the terminal is sent what controls it");
}

void check(FuzzInput input) {
    InputReader reader(input);
    std::vector<std::string> arguments;
    for (int count = reader.byte() % 6; count > 0; --count) {
        arguments.push_back(reader.textUntil('\n').c_str());
    }
    const std::string bytes = reader.text();
    // A file that an input happens to name is none of the property's business.
    if (std::ranges::count(arguments, "--check") + std::ranges::count(arguments, "--file") != 0) {
        std::erase_if(arguments, [](const std::string& argument) { return !argument.starts_with("--"); });
        std::erase(arguments, "--");
    }
    const Run run = runOf(arguments, MemoryFile(bytes));
    require(run.status >= 0 && run.status <= 2, "a status that calq does not have");
    require(run.status != 2 || !run.messages.empty(), "status 2 without a message");
    checkStream(bytes);
    if (bytes.size() > 10 && bytes.size() % 16 == 0) {
        checkLongStream(bytes);
        checkNames();
        checkSlowPipe(bytes);
    }
    if (bytes.size() % 8 == 1) {
        checkTerminal(bytes);
    }
}

const Target target("console", check);

}  // namespace
}  // namespace calquo
