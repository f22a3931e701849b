// A disk in memory on which any call can be made to fail.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "workarea/disk.h"
#include "workarea/file_fault.h"

namespace calquo {

class FakeDisk : public Disk {
public:
    struct File {
        std::string bytes;
        std::uint64_t time = 0;
    };
    std::map<std::wstring, File> files;

    /// Tells for each call, by its number from 0 on and its name, what it fails with.
    std::function<std::optional<FileFailure>(int number, std::string_view call)> failing;
    int calls = 0;
    int pauses = 0;
    /// Whether a replacement that fails takes the old file away first, as the system's may.
    bool failsHalfWay = false;

    void put(const std::wstring& name, std::string_view bytes) { files[name] = {std::string(bytes), ++clock_}; }
    std::string bytes(const std::wstring& name) const {
        const auto file = files.find(name);
        return file == files.end() ? "(none)" : file->second.bytes;
    }

    std::wstring target(const std::wstring& name) override { return name; }
    std::optional<FileState> find(const std::wstring& name) override {
        enter("find");
        const auto file = files.find(name);
        return file == files.end() ? std::nullopt
                                   : std::optional(FileState{file->second.bytes.size(), file->second.time});
    }
    void refuseWhatMayNotBeReplaced(const std::wstring&) override { enter("refuse"); }
    std::unique_ptr<OpenedFile> open(const std::wstring& name) override {
        enter("open");
        if (!files.contains(name)) {
            throw FileFault{FileFailure::Missing, {}};
        }
        return std::make_unique<Reading>(*this, files.at(name).bytes);
    }
    std::unique_ptr<NewFile> create(const std::wstring& name) override {
        enter("create");
        return files.contains(name) ? nullptr : std::make_unique<Writing>(*this, name);
    }
    void replace(const std::wstring& name, const std::wstring& replacement) override {
        try {
            enter("replace");
        } catch (const FileFault&) {
            if (failsHalfWay) {
                files.erase(name);
            }
            throw;
        }
        if (!files.contains(name)) {
            throw FileFault{FileFailure::Missing, {}};
        }
        move(replacement, name);
    }
    void rename(const std::wstring& from, const std::wstring& to) override {
        enter("rename");
        move(from, to);
    }
    void keep(const std::wstring& name, const std::wstring& other) override {
        enter("keep");
        if (!files.emplace(other, files.at(name)).second) {
            throw FileFault{FileFailure::Other, {}};
        }
    }
    void remove(const std::wstring& name) override { files.erase(name); }
    void pause() override { ++pauses; }
    std::uint32_t random() override { return nextRandom++; }

    std::uint32_t nextRandom = 0;

private:
    struct Reading : OpenedFile {
        Reading(FakeDisk& ownDisk, std::string ownBytes) : disk(ownDisk), bytes(std::move(ownBytes)) {}
        std::uint64_t size() override { return bytes.size(); }
        std::size_t read(char* room, std::size_t most) override {
            disk.enter("read");
            constexpr std::size_t piece = 7;  // as networks may do
            const std::size_t length = std::string_view(bytes).substr(place).copy(room, std::min(most, piece));
            place += length;
            return length;
        }
        FakeDisk& disk;
        std::string bytes;
        std::size_t place = 0;
    };
    struct Writing : NewFile {
        Writing(FakeDisk& ownDisk, std::wstring ownName) : disk(ownDisk), name(std::move(ownName)) {
            disk.put(name, "");
        }
        ~Writing() override {
            if (!finished) {
                disk.files.erase(name);
            }
        }
        void write(std::string_view piece) override {
            disk.enter("write");
            disk.files.at(name).bytes += piece;
        }
        void flush() override { disk.enter("flush"); }
        void finish() override { finished = true; }
        FakeDisk& disk;
        std::wstring name;
        bool finished = false;
    };

    void enter(std::string_view call) {
        if (failing) {
            if (const auto failure = failing(calls++, call)) {
                throw FileFault{*failure, {}};
            }
        }
    }
    void move(const std::wstring& from, const std::wstring& to) {
        files[to] = files.at(from);
        files.erase(from);
    }

    std::uint64_t clock_ = 0;
};

}  // namespace calquo
