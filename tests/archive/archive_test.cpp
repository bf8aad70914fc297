#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <fstream>

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
  void SetUp() override {
    std::string pattern = (fs::temp_directory_path() / "tombrello-XXXXXX").string();
    folder_ = mkdtemp(pattern.data());
    fs::permissions(folder_, fs::perms::all);
    for (const char* name : {"program", "user"}) {
      fs::create_directory(folder_ / name);
      give_away(folder_ / name);
    }
  }
  void TearDown() override { fs::remove_all(folder_); }

  static void give_away(const fs::path& path) {
    if (geteuid() != 0) return;
    EXPECT_EQ(chown(path.c_str(), PlainUser::kNobody, 0), 0);
  }
  static void put(const fs::path& path, const std::string& content) {
    std::ofstream(path, std::ios::binary) << content;
    give_away(path);
  }
  static std::string content(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
  }
  fs::path program(const std::string& name) const { return folder_ / "program" / name; }
  fs::path user(const std::string& name) const { return folder_ / "user" / name; }
  DiskArchive archive() const { return {folder_ / "program", folder_ / "user"}; }
  Names beside() const {
    Names names;
    for (const auto& entry : fs::directory_iterator(folder_ / "program")) {
      names.push_back(entry.path().filename());
    }
    return names;
  }
  /// A later run reads what this one has saved, wherever it lies.
  void expect_kept_for_the_next_run(const std::string& bytes) const {
    const PlainUser plain;
    DiskArchive saving = archive();
    EXPECT_TRUE(saving.replace("config.zvq", bytes));
    EXPECT_EQ(saving.trouble(), Trouble::none);
    EXPECT_EQ(archive().read("config.zvq", 99), bytes);
  }

  fs::path folder_;
};

TEST_F(ArchiveTest, ReplacesWholeFilesBesideTheProgram) {
  const std::string bytes("uno\r\n\0\xFF due", 11);
  DiskArchive saving = archive();
  EXPECT_TRUE(saving.replace("config.zvq", std::string(5000, 'x')));
  EXPECT_TRUE(saving.replace("config.zvq", bytes));
  EXPECT_EQ(saving.read("config.zvq", 1000), bytes);
  EXPECT_EQ(saving.read("config.zvq", 3), "uno") << "no more than asked";
  EXPECT_EQ(beside(), Names{"config.zvq"});
}

TEST_F(ArchiveTest, WhatIsNoPlainFileIsLeftAlone) {
  fs::create_directory(program("config.zvq"));
  ASSERT_EQ(mkfifo(program("Players").c_str(), 0600), 0);
  fs::create_symlink("/dev/zero", program("zero"));
  for (const char* name : {"config.zvq", "Players", "zero", "missing", "no/such/folder", ""}) {
    EXPECT_FALSE(archive().read(name, 4096)) << name;
  }
  expect_kept_for_the_next_run("mine");
  EXPECT_EQ(content(user("config.zvq")), "mine");
}

TEST_F(ArchiveTest, TheUsersOwnFileCountsWhereItIsNewerOrTheOnlyOne) {
  put(user("config.zvq"), "own");
  EXPECT_FALSE(archive().read("config.zvq", 99)) << "the program's folder can be written";
  put(program("config.zvq"), "beside");
  EXPECT_EQ(archive().read("config.zvq", 99), "beside");
  fs::last_write_time(program("config.zvq"),
                      fs::file_time_type::clock::now() - std::chrono::hours(1));
  EXPECT_EQ(archive().read("config.zvq", 99), "own") << "a save beside had failed";

  // A file in the folder's place: nobody can write into it, root neither.
  DiskArchive nowhere(program("config.zvq"), folder_ / "user");
  EXPECT_EQ(nowhere.read("config.zvq", 99), "own");
  EXPECT_TRUE(nowhere.replace("config.zvq", "new"));
  EXPECT_EQ(nowhere.read("config.zvq", 99), "new");
}

TEST_F(ArchiveTest, AnInstalledProgramKeepsNothingBesideItself) {
  put(program("config.zvq"), "beside");
  DiskArchive installed(folder_ / "program", folder_ / "user", DiskArchive::Keep::with_user);
  EXPECT_EQ(installed.read("config.zvq", 99), "beside") << "nothing else is there yet";
  EXPECT_TRUE(installed.replace("config.zvq", "mine"));
  EXPECT_EQ(installed.read("config.zvq", 99), "mine");
  EXPECT_EQ(content(program("config.zvq")), "beside");
}

TEST_F(ArchiveTest, NothingIsLostWhereTheFileCantBeReplaced) {
  put(program("config.zvq"), "old");
  fs::permissions(program("config.zvq"), fs::perms::owner_write);
  if (geteuid() == 0) expect_kept_for_the_next_run("a file that can't be read");
  EXPECT_EQ(content(program("config.zvq")), geteuid() == 0 ? "old" : "");

  fs::remove(program("config.zvq"));
  fs::create_symlink(folder_ / "no" / "such", program("config.zvq"));
  expect_kept_for_the_next_run("a link to nothing");
  fs::remove(program("config.zvq"));
  fs::create_symlink("config.zvq", program("config.zvq"));
  expect_kept_for_the_next_run("a link to itself");
  fs::remove(program("config.zvq"));
  fs::create_directory(folder_ / "linked");
  give_away(folder_ / "linked");
  put(folder_ / "linked/file", "old");
  fs::create_symlink(folder_ / "linked/file", program("config.zvq"));
  expect_kept_for_the_next_run("a link to a file of ours");
  EXPECT_EQ(content(folder_ / "linked/file"), "a link to a file of ours");
}

TEST_F(ArchiveTest, NothingIsLostInFoldersOfOthers) {
  if (geteuid() != 0) GTEST_SKIP() << "one user alone can't be two";
  std::ofstream(program("config.zvq")) << "another's";
  fs::permissions(program("config.zvq"), fs::perms(0666));
  ASSERT_EQ(chown(program("").c_str(), 0, 0), 0);
  fs::permissions(program(""), fs::perms(01777));
  expect_kept_for_the_next_run("another's file in a folder for all");
  EXPECT_EQ(content(program("config.zvq")), "another's");

  fs::remove(program("config.zvq"));
  fs::create_directory(folder_ / "closed");
  std::ofstream(folder_ / "closed/file") << "another's";
  fs::permissions(folder_ / "closed/file", fs::perms(0666));
  fs::create_symlink(folder_ / "closed/file", program("config.zvq"));
  expect_kept_for_the_next_run("a link into a closed folder");
  EXPECT_EQ(content(folder_ / "closed/file"), "another's");
}

TEST_F(ArchiveTest, RightsStayAndAreEnoughForTheNextRun) {
  const mode_t before = umask(0777);
  expect_kept_for_the_next_run("hidden even from its owner");
  umask(before);
  EXPECT_EQ(fs::status(program("config.zvq")).permissions(), fs::perms(0600));
  fs::permissions(program("config.zvq"), fs::perms(0664));
  expect_kept_for_the_next_run("shared");
  EXPECT_EQ(fs::status(program("config.zvq")).permissions(), fs::perms(0664));
}

TEST_F(ArchiveTest, GivesUpQuietly) {
  put(program("file"), "x");
  DiskArchive nowhere(program("file/program"), program("file/user"));
  EXPECT_FALSE(nowhere.replace("config.zvq", "x"));
  EXPECT_NE(nowhere.trouble(), Trouble::none);
  EXPECT_FALSE(nowhere.read("config.zvq", 99));
  EXPECT_TRUE(nowhere.list("music", 9).empty());
}

/// As on a disk that is nearly full: no file grows past so many bytes.
class NearlyFull {
 public:
  explicit NearlyFull(rlim_t bytes) : before_signal_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit less = {bytes, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &less);
  }
  ~NearlyFull() {
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, before_signal_);
  }

 private:
  rlimit before_{};
  void (*before_signal_)(int);
};

TEST_F(ArchiveTest, AFullDiskKeepsTheOldFile) {
  const std::string old(670, 'o');
  DiskArchive saving = archive();
  ASSERT_TRUE(saving.replace("config.zvq", old));
  {
    const NearlyFull disk(300);
    EXPECT_FALSE(saving.replace("config.zvq", std::string(670, 'n')));
    EXPECT_EQ(saving.trouble(), Trouble::full);
  }
  EXPECT_EQ(saving.read("config.zvq", 999), old);
  EXPECT_EQ(beside(), Names{"config.zvq"});
}

TEST_F(ArchiveTest, ListsTheFirstPlainFilesByName) {
  fs::create_directories(program("music/more.mid"));
  for (const char* name : {"valzer.mid", "polca.mid", "note.txt", ".hidden", "Zeta.mid"}) {
    put(program(std::string("music/") + name), "x");
  }
  fs::create_symlink("polca.mid", program("music/link.mid"));
  EXPECT_EQ(archive().list("music", 9),
            (Names{"Zeta.mid", "link.mid", "note.txt", "polca.mid", "valzer.mid"}));
  EXPECT_EQ(archive().list("music", 2), (Names{"Zeta.mid", "link.mid"}));
  EXPECT_TRUE(archive().list("sounds", 9).empty());
}

}  // namespace
}  // namespace tombrello::qt
