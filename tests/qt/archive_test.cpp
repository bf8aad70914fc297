#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "qt/disk_archive.h"

namespace tombrello::qt {
namespace {

class ArchiveTest : public testing::Test {
 protected:
  QString program(const QString& name) const { return folder_.filePath("program/" + name); }
  QString user(const QString& name) const { return folder_.filePath("user/" + name); }
  void SetUp() override { QDir(folder_.path()).mkdir("program"); }

  QTemporaryDir folder_;
  DiskArchive archive_{folder_.filePath("program"), folder_.filePath("user")};
};

void put(const QString& path, const QByteArray& content) {
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(content);
}

TEST_F(ArchiveTest, ReplacesWholeFilesBesideTheProgram) {
  const std::string bytes("uno\r\n\0\xFF due", 11);
  EXPECT_TRUE(archive_.replace("config.zvq", std::string(5000, 'x')));
  EXPECT_TRUE(archive_.replace("config.zvq", bytes));
  EXPECT_EQ(archive_.read("config.zvq", 1000), bytes);
  EXPECT_EQ(archive_.read("config.zvq", 3), "uno") << "no more than asked";
  EXPECT_EQ(QDir(program("")).entryList(QDir::Files | QDir::Hidden), QStringList("config.zvq"));
}

TEST_F(ArchiveTest, WhatIsNoPlainFileIsLeftAlone) {
  QDir(program("")).mkdir("config.zvq");
  ASSERT_EQ(mkfifo(qPrintable(program("Players")), 0600), 0);
  ASSERT_TRUE(QFile::link("/dev/zero", program("zero")));
  for (const char* name : {"config.zvq", "Players", "zero", "missing", "no/such/folder", ""}) {
    EXPECT_FALSE(archive_.read(name, 4096)) << name;
  }
  EXPECT_TRUE(archive_.replace("config.zvq", "mine")) << "it lands with the user";
  EXPECT_EQ(archive_.read("config.zvq", 99), "mine");
  EXPECT_TRUE(QFile::exists(user("config.zvq")));
}

TEST_F(ArchiveTest, TheUsersOwnFileCountsOnlyWithoutTheOther) {
  QDir(folder_.path()).mkdir("user");
  put(user("config.zvq"), "old");
  EXPECT_FALSE(archive_.read("config.zvq", 99)) << "the program's folder can be written";
  put(program("config.zvq"), "beside");
  EXPECT_EQ(archive_.read("config.zvq", 99), "beside");

  // A file in the folder's place: nobody can write into it, root neither.
  DiskArchive nowhere(program("config.zvq"), user(""));
  EXPECT_EQ(nowhere.read("config.zvq", 99), "old");
  EXPECT_TRUE(nowhere.replace("config.zvq", "new"));
  EXPECT_EQ(nowhere.read("config.zvq", 99), "new");
}

// Also for those who may write everywhere.
TEST_F(ArchiveTest, AnInstalledProgramKeepsNothingBesideItself) {
  put(program("config.zvq"), "beside");
  DiskArchive installed(program(""), user(""), DiskArchive::Keep::with_user);
  EXPECT_EQ(installed.read("config.zvq", 99), "beside") << "nothing else is there yet";
  EXPECT_TRUE(installed.replace("config.zvq", "mine"));
  EXPECT_EQ(installed.read("config.zvq", 99), "mine");
  EXPECT_EQ(archive_.read("config.zvq", 99), "beside");
}

TEST_F(ArchiveTest, GivesUpQuietly) {
  put(program("file"), "x");
  DiskArchive nowhere(program("file/program"), program("file/user"));
  EXPECT_FALSE(nowhere.replace("config.zvq", "x"));
  EXPECT_FALSE(nowhere.read("config.zvq", 99));
  EXPECT_TRUE(nowhere.list("music").empty());
}

TEST_F(ArchiveTest, ListsPlainFilesByName) {
  QDir(program("")).mkpath("music/more.mid");
  for (const char* name : {"valzer.mid", "polca.mid", "note.txt"}) {
    put(program(QString("music/") + name), "x");
  }
  EXPECT_EQ(archive_.list("music"),
            (std::vector<std::string>{"note.txt", "polca.mid", "valzer.mid"}));
  EXPECT_TRUE(archive_.list("sounds").empty());
}

}  // namespace
}  // namespace tombrello::qt
