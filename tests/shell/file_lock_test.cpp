// The lock of the one instance, by the same tests on every system.

#include "shell/file_lock.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <filesystem>
#include <system_error>

using namespace Qt::StringLiterals;

namespace {

using Outcome = FileLock::Outcome;
using IfMissing = FileLock::IfMissing;

class FileLockTest : public ::testing::Test {
protected:
    QString Path(const QString &name) const { return folder_.filePath(name); }

    QString Make(const QString &name, const QByteArray &bytes) const {
        QFile file(Path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return Path(name);
    }

    static Outcome Try(const QString &path, IfMissing ifMissing = IfMissing::Create) {
        return FileLock().TryLock(path, ifMissing);
    }

private:
    QTemporaryDir folder_;
};

TEST_F(FileLockTest, StandsBetweenTwoUntilItIsDestroyed) {
    const QString path = Path(u"ein Schloss – Ω.lock"_s);
    {
        FileLock first;
        ASSERT_EQ(first.TryLock(path, IfMissing::Create), Outcome::Taken);
        EXPECT_EQ(Try(path), Outcome::HeldByAnother);
        EXPECT_EQ(Try(path, IfMissing::LeaveMissing), Outcome::HeldByAnother);
        const FileLock moved = std::move(first); // the lock goes along
        EXPECT_EQ(Try(path), Outcome::HeldByAnother);
    }
    EXPECT_EQ(Try(path), Outcome::Taken);
    EXPECT_TRUE(QFile::exists(path)); // the file stays
}

TEST_F(FileLockTest, LeavesAMissingFileMissingOnRequest) {
    EXPECT_EQ(Try(Path(u"lock"_s), IfMissing::LeaveMissing), Outcome::Impossible);
    EXPECT_FALSE(QFile::exists(Path(u"lock"_s)));
    EXPECT_EQ(Try(Path(u"no folder/lock"_s)), Outcome::Impossible);
}

TEST_F(FileLockTest, LeavesWhatTheFileHolds) {
    const QString path = Make(u"lock"_s, "content");
    {
        FileLock lock;
        ASSERT_EQ(lock.TryLock(path, IfMissing::Create), Outcome::Taken);
    }
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "content");
}

TEST_F(FileLockTest, LocksAFileThatMayOnlyBeRead) {
    const QString path = Make(u"lock"_s, {});
    QFile::setPermissions(path, QFile::ReadOwner);
    FileLock lock;
    EXPECT_EQ(lock.TryLock(path, IfMissing::Create), Outcome::Taken);
    EXPECT_EQ(Try(path), Outcome::HeldByAnother);
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner); // or it could not be removed
}

TEST_F(FileLockTest, LocksNothingButAFile) {
    QDir().mkpath(Path(u"folder"_s));
    EXPECT_EQ(Try(Path(u"folder"_s)), Outcome::Impossible);
    Make(u"file"_s, {});
    std::error_code noLink; // not everybody may make one on Windows
    std::filesystem::create_symlink("file", Path(u"link"_s).toStdU16String(), noLink);
    if (!noLink) {
        EXPECT_EQ(Try(Path(u"link"_s)), Outcome::Impossible);
    }
}

// One who only looks into the file is no second instance.
TEST_F(FileLockTest, IsTakenWhileSomebodyReads) {
    QFile reader(Make(u"lock"_s, "content"));
    ASSERT_TRUE(reader.open(QIODevice::ReadOnly));
    EXPECT_EQ(Try(reader.fileName()), Outcome::Taken);
}

TEST(FileLockUser, HasANameThatIsGoodInAFile) {
    EXPECT_FALSE(FileLock::User().isEmpty());
    EXPECT_FALSE(FileLock::User().contains(u'/'));
    EXPECT_FALSE(FileLock::User().contains(u'\\'));
}

} // namespace
