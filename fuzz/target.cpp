// The list of targets, and how a fault ends the program.
#include "target.h"

#include <cinttypes>
#include <cstdio>
#include <cstdlib>

namespace calquo {
namespace {

/// The targets are chained while the program starts, in whatever order their files are linked.
constinit const Target* firstTarget = nullptr;
constinit std::uint64_t executionCount = 0;

}  // namespace

Target::Target(std::string_view name, Check check) noexcept : name_(name), check_(check), next_(firstTarget) {
    firstTarget = this;
}

const Target& Target::find(std::string_view name) {
    for (const Target* target = firstTarget; target != nullptr; target = target->next_) {
        if (target->name_ == name) {
            return *target;
        }
    }
    std::fprintf(stderr, "no such target: %.*s\n", static_cast<int>(name.size()), name.data());
    std::exit(2);
}

void Target::run(FuzzInput input) const {
    check_(input);
    ++executionCount;
}

std::uint64_t executions() { return executionCount; }

void reportFault(const std::string& fault) {
    std::fprintf(stderr, "FAULT: %s\n%" PRIu64 " inputs\n", fault.c_str(), executionCount + 1);
    std::abort();
}

}  // namespace calquo
