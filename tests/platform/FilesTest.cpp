#include "platform/system/Directories.h"
#include "platform/system/SafeFile.h"
#include "platform/system/UserPreferences.h"
#include "support/SmallDisk.h"
#include "support/TestTexts.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cerrno>
#include <sys/stat.h>
#include <unistd.h>

namespace kesta {
namespace {

QByteArray Content(const QString& path)
{
    return ReadFile(path, 1 << 20).bytes.value_or("(unreadable)");
}

int Mode(const QString& path)
{
    struct stat status = {};
    return stat(QFile::encodeName(path).constData(), &status) == 0 ? static_cast<int>(status.st_mode & 0777) : -1;
}

class FilesTest : public testing::Test {
protected:
    FilesTest() { qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder.path())); }
    ~FilesTest() override { qunsetenv("XDG_CONFIG_HOME"); }

    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("file"));
};

TEST_F(FilesTest, AreWrittenWholeAndCutToTheirLength)
{
    EXPECT_FALSE(WriteFile(path, "a long content"));
    EXPECT_FALSE(WriteFile(path, "short"));
    EXPECT_EQ(Content(path), "short");
    EXPECT_FALSE(WriteFile(path, ""));
    EXPECT_EQ(Content(path), "");

    ASSERT_TRUE(QFile::link(folder.filePath(QStringLiteral("beyond")), folder.filePath(QStringLiteral("link"))));
    EXPECT_FALSE(WriteFile(folder.filePath(QStringLiteral("link")), "through"));
    EXPECT_EQ(Content(folder.filePath(QStringLiteral("beyond"))), "through");
}

TEST_F(FilesTest, AFullDiskLeavesTheFileAsItWas)
{
    ASSERT_FALSE(WriteFile(path, "the old content"));
    const QString other = folder.filePath(QStringLiteral("new"));
    std::optional<FileError> replaced, created;
    {
        const test::SmallDisk disk(1000);
        replaced = WriteFile(path, QByteArray(5000, 'x'));
        created = WriteFile(other, QByteArray(5000, 'x'));
    }
    ASSERT_TRUE(replaced && created);
    EXPECT_EQ(replaced->code, EFBIG);
    EXPECT_TRUE(replaced->text.startsWith(path + QStringLiteral(": "))) << replaced->text.toStdString();
    EXPECT_EQ(Content(path), "the old content");
    EXPECT_FALSE(QFile::exists(other));
}

TEST_F(FilesTest, SecretsAreTheirOwnersAlone)
{
    const mode_t umaskBefore = umask(022);
    EXPECT_FALSE(WriteFile(path, "open to all"));
    EXPECT_EQ(Mode(path), 0644);
    EXPECT_FALSE(WriteFile(path, "secret", FileAccess::OwnerOnly));
    EXPECT_EQ(Mode(path), 0600);
    EXPECT_FALSE(WriteFile(folder.filePath(QStringLiteral("new")), "secret", FileAccess::OwnerOnly));
    EXPECT_EQ(Mode(folder.filePath(QStringLiteral("new"))), 0600);
    umask(umaskBefore);
}

TEST_F(FilesTest, ReadingIsBoundedAndSaysWhy)
{
    ASSERT_FALSE(WriteFile(path, QByteArray(1000, 'x')));
    EXPECT_TRUE(ReadFile(path, 1000).bytes);
    const FileContent tooLarge = ReadFile(path, 999);
    EXPECT_FALSE(tooLarge.bytes);
    EXPECT_EQ(tooLarge.error.text, path + QStringLiteral(": larger than 999 bytes"));
    EXPECT_EQ(ReadFile(folder.path(), 1000).error.code, EISDIR);
    EXPECT_EQ(ReadFile(folder.filePath(QStringLiteral("absent")), 1000).error.code, ENOENT);
    EXPECT_FALSE(ReadFile(QStringLiteral("/dev/zero"), 100'000).bytes);
    EXPECT_EQ(WriteFile(folder.path(), "x").value().code, EISDIR);
}

TEST_F(FilesTest, PreferencesComeBack)
{
    const Dictionary preferences{{"key", Array{Value("one"), Value("two")}}};
    EXPECT_EQ(CopyUserPreferences("x.plist"), Dictionary());
    EXPECT_TRUE(WriteUserPreferences("x.plist", preferences));
    EXPECT_EQ(CopyUserPreferences("x.plist"), preferences);
    EXPECT_EQ(Mode(folder.filePath(QStringLiteral("kesta-print/x.plist"))), 0600);
    EXPECT_EQ(Mode(folder.filePath(QStringLiteral("kesta-print"))), 0700);
    for (const char* outside : {"", "../x.plist", "a/b", ".hidden"})
        EXPECT_EQ(CopyUserPreferences(outside), std::nullopt) << outside;
}

TEST_F(FilesTest, DamagedPreferencesAreKeptAside)
{
    const QString file = folder.filePath(QStringLiteral("kesta-print/x.plist"));
    ASSERT_TRUE(WriteUserPreferences("x.plist", Dictionary()));
    for (const char* damaged : {"<plist><dict>", "<plist><array/></plist>"}) {
        ASSERT_FALSE(WriteFile(file, damaged));
        testing::internal::CaptureStderr();
        EXPECT_EQ(CopyUserPreferences("x.plist"), Dictionary());
        EXPECT_NE(testing::internal::GetCapturedStderr().find("kept as"), std::string::npos);
        EXPECT_EQ(Content(file + QStringLiteral(".damaged")), damaged);
        EXPECT_FALSE(QFile::exists(file));
    }
}

TEST_F(FilesTest, AFailedWriteOfPreferencesSaysItsCode)
{
    ASSERT_TRUE(WriteUserPreferences("x.plist", Dictionary{{"old", true}}));
    testing::internal::CaptureStderr();
    bool written = true;
    {
        const test::SmallDisk disk(100);
        written = WriteUserPreferences("x.plist", Dictionary{{"new", QString(5000, u'x')}});
    }
    EXPECT_FALSE(written);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "WriteUserPreferences() failed (27)\n");
    EXPECT_EQ(CopyUserPreferences("x.plist"), (Dictionary{{"old", true}}));
}

TEST_F(FilesTest, FoldersFollowTheEnvironment)
{
    EXPECT_EQ(ConfigDirectory(), folder.path() + QStringLiteral("/kesta-print"));
    qputenv("XDG_CONFIG_HOME", "relative"); // counts as none
    const QByteArray home = qgetenv("HOME");
    qputenv("HOME", "/home/somebody/");
    EXPECT_EQ(ConfigDirectory(), QStringLiteral("/home/somebody/.config/kesta-print"));
    EXPECT_EQ(DataDirectory(), QStringLiteral("/home/somebody/.local/share/kesta-print"));
    qputenv("KESTA_DATA_ROOT", "/srv/shared/");
    EXPECT_EQ(MachineDirectory(), QStringLiteral("/srv/shared"));
    qputenv("KESTA_DATA_ROOT", "relative");
    EXPECT_TRUE(QDir::isAbsolutePath(MachineDirectory()));
    qunsetenv("KESTA_DATA_ROOT");
    qunsetenv("HOME");
    EXPECT_EQ(ConfigDirectory(), QString());
    EXPECT_EQ(CopyUserPreferences("x.plist"), std::nullopt);
    qputenv("HOME", home);
}

} // namespace
} // namespace kesta
