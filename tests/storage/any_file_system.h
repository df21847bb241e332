#pragma once

// All file systems under one suite: TEST_P(X, ...) of a fixture derived from AnyFileSystem runs on each.

#include <gmock/gmock.h>

#include <optional>
#include <string>

#include "storage/disk_file_system.h"
#include "storage/failing_file_system.h"
#include "storage/memory_file_system.h"
#include "storage/noticing_file_system.h"
#include "support/temporary_folder.h"

namespace vorbano::test {

enum class Kind { disk, memory, failingNowhere, noticing };

inline std::string nameOf(const ::testing::TestParamInfo<Kind>& info) {
    switch (info.param) {
        case Kind::disk:
            return "OnDisk";
        case Kind::memory:
            return "InMemory";
        case Kind::noticing:
            return "ThroughTheNoticingOne";
        case Kind::failingNowhere:
            break;
    }
    return "ThroughTheFailingOneThatDoesNotFail";
}

class AnyFileSystem : public ::testing::TestWithParam<Kind> {
  protected:
    AnyFileSystem() {
        switch (GetParam()) {
            case Kind::disk:
                files_ = &disk_.emplace(folder_.path());
                break;
            case Kind::memory:
                files_ = &memory_;
                break;
            case Kind::failingNowhere:
                files_ = &failing_;
                break;
            case Kind::noticing:
                files_ = &noticing_;
                break;
        }
    }
    FileSystem& files() { return *files_; }

  private:
    TemporaryFolder folder_;
    MemoryFileSystem memory_;
    FailingFileSystem failing_{memory_};
    NoticingFileSystem noticing_{memory_, [](const Unwritten&) {}};
    std::optional<DiskFileSystem> disk_;
    FileSystem* files_ = nullptr;
};

}  // namespace vorbano::test

#define ON_EVERY_FILE_SYSTEM(Fixture)                                                              \
    INSTANTIATE_TEST_SUITE_P(                                                                      \
        Storage, Fixture,                                                                          \
        ::testing::Values(::vorbano::test::Kind::disk, ::vorbano::test::Kind::memory,              \
                          ::vorbano::test::Kind::failingNowhere, ::vorbano::test::Kind::noticing), \
        ::vorbano::test::nameOf)
