#include "platform/system/Directories.h"
#include "platform/system/SafeFile.h"
#include "platform/system/UserPreferences.h"
#include "support/EventfulClock.h"
#include "support/SmallDisk.h"
#include "support/TestTexts.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <array>
#include <cerrno>
#include <cstddef>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/ptrace.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
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
    EXPECT_FALSE(WriteFileInPlace(path, "tiny"));
    EXPECT_EQ(Content(path), "tiny");
    EXPECT_FALSE(WriteFile(path, ""));
    EXPECT_EQ(Content(path), "");

    ASSERT_TRUE(QFile::link(folder.filePath(QStringLiteral("beyond")), folder.filePath(QStringLiteral("link"))));
    EXPECT_FALSE(WriteFile(folder.filePath(QStringLiteral("link")), "through"));
    EXPECT_EQ(Content(folder.filePath(QStringLiteral("beyond"))), "through");
}

TEST_F(FilesTest, AFullDiskLeavesTheFileAsItWas)
{
    ASSERT_FALSE(WriteFile(path, "the old content"));
    const QString other = folder.filePath(QStringLiteral("new")), third = folder.filePath(QStringLiteral("third"));
    std::optional<FileError> replaced, created, inPlace;
    {
        const test::SmallDisk disk(1000);
        replaced = WriteFile(path, QByteArray(5000, 'x'));
        created = WriteFile(other, QByteArray(5000, 'x'));
        inPlace = WriteFileInPlace(third, QByteArray(5000, 'x'));
    }
    ASSERT_TRUE(replaced && created && inPlace);
    EXPECT_EQ(replaced->code, EFBIG);
    EXPECT_TRUE(replaced->text.startsWith(path + QStringLiteral(": "))) << replaced->text.toStdString();
    EXPECT_EQ(Content(path), "the old content");
    EXPECT_FALSE(QFile::exists(other) || QFile::exists(third));
}

// From here on the program's file system reserves no room.
void RefuseToReserve()
{
    std::array<sock_filter, 4> rules{{
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_fallocate, 0, 1),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | EOPNOTSUPP),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
    }};
    sock_fprog filter{rules.size(), rules.data()};
    if (prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0 || prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &filter) != 0)
        _exit(2);
}

TEST_F(FilesTest, GrowWhereTheFileSystemReservesNoRoom)
{
    ASSERT_FALSE(WriteFileInPlace(path, "old"));
    const QByteArray large(200'000, 'x');
    EXPECT_EXIT(
        {
            RefuseToReserve();
            _exit(WriteFileInPlace(path, large) ? 1 : 0);
        },
        testing::ExitedWithCode(0), "");
    EXPECT_EQ(Content(path), large);
    EXPECT_EXIT(
        {
            RefuseToReserve();
            const test::SmallDisk disk(300'000);
            _exit(WriteFileInPlace(path, QByteArray(400'000, 'y')) ? 0 : 1);
        },
        testing::ExitedWithCode(0), "");
    EXPECT_EQ(Content(path), large);
}

// Writes in a program of its own, which is killed at its n-th stop at a system call. Whether it came to its end.
bool WriteUntilKilled(const QString& path, const QByteArray& bytes, int stops)
{
    const pid_t writer = fork();
    if (writer == 0) {
        ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
        raise(SIGSTOP);
        WriteFile(path, bytes);
        _exit(0);
    }
    int status = 0;
    waitpid(writer, &status, 0);
    for (int stop = 0; WIFSTOPPED(status) && stop < stops; ++stop) {
        ptrace(PTRACE_SYSCALL, writer, nullptr, nullptr);
        waitpid(writer, &status, 0);
    }
    if (WIFEXITED(status))
        return true;
    kill(writer, SIGKILL);
    waitpid(writer, &status, 0);
    return false;
}

TEST_F(FilesTest, AKillAtAnySystemCallLeavesTheOldOrTheNewContent)
{
    const QByteArray oldContent(3000, 'o'), newContent(150'000, 'n');
    int stops = 0, sawNew = 0;
    for (bool ended = false; !ended; ++stops) {
        ASSERT_FALSE(WriteFile(path, oldContent));
        ended = WriteUntilKilled(path, newContent, stops);
        const QByteArray content = Content(path);
        ASSERT_TRUE(content == oldContent || content == newContent) << stops << ": " << content.size() << " bytes";
        sawNew += content == newContent ? 1 : 0;
        // What was written aside has a name only when it is whole.
        for (const QFileInfo& left : QDir(folder.path()).entryInfoList(QDir::Files | QDir::Hidden)) {
            ASSERT_TRUE(left.filePath() == path || left.size() == newContent.size()) << stops;
            if (left.filePath() != path)
                QFile::remove(left.filePath());
        }
    }
    EXPECT_GT(stops, 20);
    EXPECT_GT(sawNew, 1); // killed after the renaming, too
}

TEST_F(FilesTest, KeepWhatTheOldFileWas)
{
    ASSERT_FALSE(WriteFile(path, "old"));
    ASSERT_EQ(chmod(QFile::encodeName(path).constData(), 0640), 0);
    if (getuid() == 0) {
        ASSERT_EQ(chown(QFile::encodeName(path).constData(), 12, 34), 0);
    }
    const QString link = folder.filePath(QStringLiteral("link"));
    ASSERT_TRUE(QFile::link(path, link));
    EXPECT_FALSE(WriteFile(link, "new"));
    EXPECT_TRUE(QFileInfo(link).isSymLink());
    EXPECT_EQ(Content(path), "new");
    struct stat status = {};
    ASSERT_EQ(stat(QFile::encodeName(path).constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0640u);
    EXPECT_EQ(status.st_uid, getuid() == 0 ? 12u : getuid());

    const QString twin = folder.filePath(QStringLiteral("twin"));
    ASSERT_EQ(::link(QFile::encodeName(path).constData(), QFile::encodeName(twin).constData()), 0);
    EXPECT_FALSE(WriteFile(path, "both"));
    EXPECT_EQ(Content(twin), "both");

    const QString endless = folder.filePath(QStringLiteral("endless"));
    ASSERT_TRUE(QFile::link(endless, endless));
    EXPECT_EQ(WriteFile(endless, "x").value().code, ELOOP);
}

TEST_F(FilesTest, AFileThatIsBeingWrittenIsNotDamaged)
{
    const auto isWhole = [](const QByteArray& bytes) { return bytes.endsWith('.'); };
    ASSERT_FALSE(WriteFile(path, "half"));
    {
        test::EventfulClock clock;
        EXPECT_EQ(ReadFileAtRest(path, 100, isWhole).error.code, EILSEQ);
        EXPECT_EQ(clock.waited, 200);
    }
    {
        test::EventfulClock clock;
        clock.meanwhile = [&] {
            if (clock.waited == 150) {
                EXPECT_FALSE(WriteFileInPlace(path, "half and the rest."));
            }
        };
        EXPECT_EQ(ReadFileAtRest(path, 100, isWhole).bytes, "half and the rest.");
    }
    ASSERT_FALSE(WriteFile(path, "half"));
    {
        test::EventfulClock clock;
        clock.meanwhile = [&] { EXPECT_FALSE(WriteFileInPlace(path, QByteArray::number(clock.waited))); };
        EXPECT_EQ(ReadFileAtRest(path, 100, isWhole).error.code, EBUSY);
    }
}

TEST_F(FilesTest, PreferencesThatCannotBeReadNowAreLeftAlone)
{
    ASSERT_TRUE(WriteUserPreferences("x.plist", Dictionary{{"good", true}}));
    const QString file = folder.filePath(QStringLiteral("kesta-print/x.plist"));
    const QByteArray content = Content(file);
    testing::internal::CaptureStderr();
    {
        rlimit before{};
        getrlimit(RLIMIT_NOFILE, &before);
        const rlimit none{0, before.rlim_max};
        setrlimit(RLIMIT_NOFILE, &none);
        EXPECT_EQ(CopyUserPreferences("x.plist"), std::nullopt);
        setrlimit(RLIMIT_NOFILE, &before);
    }
    EXPECT_NE(testing::internal::GetCapturedStderr().find("Too many open files"), std::string::npos);
    EXPECT_EQ(Content(file), content);
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
    const test::EventfulClock clock;
    for (const char* damaged : {"<plist><dict>", "<plist><array/></plist>"}) {
        ASSERT_FALSE(WriteFile(file, damaged));
        testing::internal::CaptureStderr();
        EXPECT_EQ(CopyUserPreferences("x.plist"), Dictionary());
        EXPECT_NE(testing::internal::GetCapturedStderr().find("kept as"), std::string::npos);
        EXPECT_EQ(Content(file + QStringLiteral(".damaged")), damaged);
        EXPECT_FALSE(QFile::exists(file));
    }
    QFile large(file);
    ASSERT_TRUE(large.open(QIODevice::WriteOnly) && large.resize(17 << 20));
    testing::internal::CaptureStderr();
    EXPECT_EQ(CopyUserPreferences("x.plist"), Dictionary());
    EXPECT_NE(testing::internal::GetCapturedStderr().find("too large; kept as"), std::string::npos);
    EXPECT_FALSE(QFile::exists(file));
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
