#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <fstream>

#include "faulty_system.h"
#include "qt/disk_archive.h"

namespace tombrello::qt {
namespace {

namespace fs = std::filesystem;

const std::string kOld(700, 'o');
const std::string kNew(650, 'n');
const std::string kNext = "next";
constexpr const char* kFile = "config.zvq";

class FaultsTest : public testing::Test {
 protected:
  void SetUp() override {
    std::string pattern = (fs::temp_directory_path() / "tombrello-XXXXXX").string();
    folder_ = mkdtemp(pattern.data());
    fs::create_directories(folder_ / "program");
  }
  void TearDown() override { fs::remove_all(folder_); }

  DiskArchive archive() const { return {folder_ / "program", folder_ / "user"}; }

  /// A save in a process of its own, begun with the old file alone: 1 if it was said to be kept,
  /// 0 if not, -1 if it didn't live to say so.
  int save(faults::Fault fault, int& calls) const {
    fs::remove_all(folder_ / "user");
    std::ofstream(folder_ / "program" / kFile) << kOld;
    const pid_t child = fork();
    if (child == 0) {
      DiskArchive archive = this->archive();
      faults::arm(fault);
      const bool kept = archive.replace(kFile, kNew);
      const int made = faults::disarm();
      const bool told = kept == (archive.trouble() == Trouble::none);
      _exit(told && made < 120 ? made + (kept ? 128 : 0) : 127);
    }
    int status = 0;
    waitpid(child, &status, 0);
    if (WIFSIGNALED(status)) return -1;
    EXPECT_NE(WEXITSTATUS(status), 127) << "what is told of the trouble differs";
    calls = WEXITSTATUS(status) % 128;
    return WEXITSTATUS(status) / 128;
  }

  /// Old or new, whole, as was answered; and nothing stays once the next save is through.
  void expect_whole(int answer) const {
    DiskArchive archive = this->archive();
    const auto found = archive.read(kFile, 9999);
    EXPECT_TRUE(found == kOld || found == kNew) << found.value_or("nothing").size() << " bytes";
    EXPECT_TRUE(answer < 0 || (found == kNew) == (answer == 1)) << "said " << answer;
    EXPECT_TRUE(archive.replace(kFile, kNext));
    EXPECT_EQ(archive.read(kFile, 9999), kNext);
    for (const auto& entry : fs::directory_iterator(folder_ / "program")) {
      EXPECT_EQ(entry.path().filename(), kFile);
    }
  }

  fs::path folder_;
};

TEST_F(FaultsTest, EachCallOfASaveMayFailOrBeTheLast) {
  int calls = 0;
  ASSERT_EQ(save({}, calls), 1);
  ASSERT_GT(calls, 10);
  for (int call = 1, most = calls; call <= most; ++call) {
    for (const int error : {ENOSPC, EIO, EACCES, EINTR}) {
      SCOPED_TRACE("call " + std::to_string(call) + " fails with " + std::to_string(error));
      expect_whole(save({.call = call, .error = error}, calls));
    }
    SCOPED_TRACE("killed at call " + std::to_string(call) + ", or cut short there");
    const int answer = save({.call = call, .kill = true}, calls);
    EXPECT_EQ(answer, -1);
    expect_whole(answer);
    expect_whole(save({.call = call, .cut = true}, calls));
  }
}

TEST_F(FaultsTest, WhatCantBeReadToItsEndIsntRead) {
  std::ofstream(folder_ / "program" / kFile) << kOld;
  DiskArchive archive = this->archive();
  for (int call = 1, most = call; call <= most; ++call) {
    faults::arm({.call = call, .error = EIO});
    const auto found = archive.read(kFile, 9999);
    most = std::max(most, faults::disarm());
    EXPECT_TRUE(!found || found == kOld) << "call " << call;
  }
}

}  // namespace
}  // namespace tombrello::qt
