#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <filesystem>
#include <fstream>

#include "faulty_system.h"
#include "qt/disk_archive.h"

namespace tombrello::qt {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

/// In the shoes of a user who may do nothing special, where the tests are run by one who may.
class PlainUser {
 public:
  PlainUser() { EXPECT_EQ(geteuid() == 0 ? seteuid(kNobody) : 0, 0); }
  ~PlainUser() { EXPECT_EQ(seteuid(getuid()), 0); }
  static constexpr uid_t kNobody = 65534;
};

class ArchiveTest : public testing::Test {
 protected:
  ArchiveTest() {
    fs::permissions(folder_, fs::perms::all);
    for (const char* name : {"program", "user", "linked"}) {
      fs::create_directory(folder_ / name);
      give_away(folder_ / name);
    }
  }
  ~ArchiveTest() override { fs::remove_all(folder_); }

  static fs::path make_folder() {
    std::string pattern = (fs::temp_directory_path() / "tombrello-XXXXXX").string();
    return mkdtemp(pattern.data());
  }
  static void give_away(const fs::path& path) {
    EXPECT_EQ(geteuid() == 0 ? chown(path.c_str(), PlainUser::kNobody, 0) : 0, 0);
  }
  static void put(const fs::path& path, const std::string& content) {
    std::ofstream(path, std::ios::binary) << content;
    give_away(path);
  }
  static std::string content(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
  }
  DiskArchive archive() const { return {folder_ / "program", folder_ / "user"}; }
  Names beside() const {
    Names names;
    for (const auto& entry : fs::directory_iterator(folder_ / "program"))
      names.push_back(entry.path().filename());
    return names;
  }
  /// A later run reads what this one has saved, wherever it lies.
  void expect_kept_for_the_next_run(const std::string& bytes) const {
    const PlainUser plain;
    DiskArchive saving = archive();
    EXPECT_TRUE(saving.replace(kFile, bytes)) << bytes;
    EXPECT_EQ(saving.trouble(), Trouble::none);
    EXPECT_EQ(archive().read(kFile, 99), bytes);
  }
  /// The same, with a link in the file's place.
  void expect_kept_behind_link(const fs::path& target, const std::string& bytes) const {
    fs::remove(beside_);
    fs::create_symlink(target, beside_);
    expect_kept_for_the_next_run(bytes);
  }

  static constexpr const char* kFile = "config.zvq";
  const fs::path folder_ = make_folder();
  const fs::path beside_ = folder_ / "program" / kFile;
  const fs::path own_ = folder_ / "user" / kFile;
};

TEST_F(ArchiveTest, ReadsNoMoreThanIsAskedAndPlainFilesAlone) {
  const std::string bytes("uno\r\n\0\xFF due", 11);
  expect_kept_for_the_next_run(bytes);
  EXPECT_EQ(archive().read(kFile, 3), "uno");
  fs::remove(beside_);
  fs::create_directory(beside_);
  ASSERT_EQ(mkfifo((folder_ / "program/Players").c_str(), 0600), 0);
  fs::create_symlink("/dev/zero", folder_ / "program/zero");
  for (const char* name : {kFile, "Players", "zero", "missing", "no/such/folder", ""}) {
    EXPECT_FALSE(archive().read(name, 4096)) << name;
  }
  expect_kept_for_the_next_run("mine");
  EXPECT_EQ(content(own_), "mine");
}

TEST_F(ArchiveTest, TheUsersOwnFileCountsWhereItIsNewerOrTheOnlyOne) {
  put(own_, "own");
  EXPECT_FALSE(archive().read(kFile, 99)) << "the program's folder can be written";
  put(beside_, "beside");
  EXPECT_EQ(archive().read(kFile, 99), "beside");
  fs::last_write_time(beside_, fs::file_time_type::clock::now() - std::chrono::hours(1));
  EXPECT_EQ(archive().read(kFile, 99), "own") << "a save beside had failed";

  // A file in the folder's place: nobody can write into it, root neither.
  DiskArchive nowhere(beside_, folder_ / "user");
  EXPECT_EQ(nowhere.read(kFile, 99), "own");
  EXPECT_TRUE(nowhere.replace(kFile, "new"));
  EXPECT_EQ(nowhere.read(kFile, 99), "new");
  DiskArchive nowhere_at_all(beside_, own_);
  EXPECT_FALSE(nowhere_at_all.replace(kFile, "x"));
  EXPECT_EQ(nowhere_at_all.trouble(), Trouble::broken) << "what the user's folder had";
  EXPECT_FALSE(nowhere_at_all.read(kFile, 99));
}

TEST_F(ArchiveTest, AnInstalledProgramKeepsNothingBesideItself) {
  put(beside_, "beside");
  DiskArchive installed(folder_ / "program", folder_ / "user", DiskArchive::Keep::with_user);
  EXPECT_EQ(installed.read(kFile, 99), "beside") << "nothing else is there yet";
  EXPECT_TRUE(installed.replace(kFile, "mine"));
  EXPECT_EQ(installed.read(kFile, 99), "mine");
  EXPECT_EQ(content(beside_), "beside");
}

TEST_F(ArchiveTest, NothingIsLostWhereTheFileCantBeReplaced) {
  put(beside_, "old");
  fs::permissions(beside_, fs::perms::owner_write);
  if (geteuid() == 0) expect_kept_for_the_next_run("a file that can't be read");
  EXPECT_EQ(content(beside_), geteuid() == 0 ? "old" : "");
  expect_kept_behind_link(folder_ / "no/such", "a link to nothing");
  expect_kept_behind_link(kFile, "a link to itself");
  put(folder_ / "linked/file", "old");
  expect_kept_behind_link(folder_ / "linked/file", "a link to a file of ours");
  EXPECT_EQ(content(folder_ / "linked/file"), "a link to a file of ours");
}

TEST_F(ArchiveTest, NothingIsLostInFoldersOfOthers) {
  if (geteuid() != 0) GTEST_SKIP() << "one user alone can't be two";
  for (const fs::path& file : {beside_, folder_ / "linked/file"}) {
    std::ofstream(file) << "another's";
    fs::permissions(file, fs::perms(0666));
    ASSERT_EQ(chown(file.parent_path().c_str(), 0, 0), 0);
  }
  fs::permissions(beside_.parent_path(), fs::perms(01777));
  expect_kept_for_the_next_run("another's file in a folder for all");
  EXPECT_EQ(content(beside_), "another's");
  expect_kept_behind_link(folder_ / "linked/file", "a link into a closed folder");
  EXPECT_EQ(content(folder_ / "linked/file"), "another's");
}

TEST_F(ArchiveTest, RightsStayAndAreEnoughForTheNextRun) {
  const mode_t before = umask(0777);
  expect_kept_for_the_next_run("hidden even from its owner");
  umask(before);
  EXPECT_EQ(fs::status(beside_).permissions(), fs::perms(0600));
  fs::permissions(beside_, fs::perms(0664));
  expect_kept_for_the_next_run("shared");
  EXPECT_EQ(fs::status(beside_).permissions(), fs::perms(0664));
}

TEST_F(ArchiveTest, AFullDiskKeepsTheOldFile) {
  const std::string old(670, 'o');
  DiskArchive saving = archive();
  ASSERT_TRUE(saving.replace(kFile, old));
  // As on a disk that is nearly full: no file grows past so many bytes.
  std::signal(SIGXFSZ, SIG_IGN);
  rlimit before{};
  getrlimit(RLIMIT_FSIZE, &before);
  const rlimit less = {300, before.rlim_max};
  setrlimit(RLIMIT_FSIZE, &less);
  EXPECT_FALSE(saving.replace(kFile, std::string(670, 'n')));
  EXPECT_EQ(saving.trouble(), Trouble::full);
  setrlimit(RLIMIT_FSIZE, &before);
  std::signal(SIGXFSZ, SIG_DFL);
  EXPECT_EQ(saving.read(kFile, 999), old);
  EXPECT_EQ(beside(), Names{kFile});
}

TEST_F(ArchiveTest, ListsTheFirstPlainFilesByName) {
  const fs::path music = folder_ / "program/music";
  fs::create_directories(music / "more.mid");
  for (const char* name : {"valzer.mid", "polca.mid", "note.txt", ".hidden", "Zeta.mid"})
    put(music / name, "x");
  fs::create_symlink("polca.mid", music / "link.mid");
  EXPECT_EQ(archive().list("music", 9),
            (Names{"Zeta.mid", "link.mid", "note.txt", "polca.mid", "valzer.mid"}));
  EXPECT_EQ(archive().list("music", 2), (Names{"Zeta.mid", "link.mid"}));
  EXPECT_TRUE(archive().list("sounds", 9).empty());
}

const std::string kOld(700, 'o');
const std::string kNew(650, 'n');

class FaultsTest : public ArchiveTest {
 protected:
  /// A save in a process of its own, begun with the old file alone: 1 if it was said to be kept,
  /// 0 if not, -1 if it didn't live to say so.
  int save(faults::Fault fault, int& calls) const {
    fs::remove_all(folder_ / "user");
    std::ofstream(beside_) << kOld;
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
    EXPECT_TRUE(archive.replace(kFile, "next"));
    EXPECT_EQ(archive.read(kFile, 9999), "next");
    EXPECT_EQ(beside(), Names{kFile});
  }
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
  std::ofstream(beside_) << kOld;
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
