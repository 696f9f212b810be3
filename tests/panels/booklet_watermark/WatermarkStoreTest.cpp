#include "panels/booklet_watermark/watermark/WatermarkStore.h"
#include "panels/booklet_watermark/watermark/WatermarkDefaults.h"

#include "platform/system/SafeFile.h"
#include "platform/system/SharedStoreFile.h"
#include "platform/values/PropertyList.h"
#include "support/EventfulClock.h"
#include "support/SmallDisk.h"
#include "support/TestTexts.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <array>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace kesta::booklet_watermark {
namespace {

using namespace Qt::StringLiterals;

constexpr uid_t kNobody = 65534;

_WatermarkData Text(const QString& text)
{
    _WatermarkData record;
    record.text.set(text);
    record.isText = 1;
    return record;
}

_WatermarkData Picture(const QString& fileName)
{
    _WatermarkData record;
    record.fileName.set(fileName);
    return record;
}

_WatermarkData FullRecord()
{
    _WatermarkData record = Text(u"Entwurf <ä & \"ö\">"_s);
    record.fileName.set(u"logo.png"_s);
    record.filePath.set(u"/pictures/logo.png"_s);
    record.fontName.set(u"DejaVuSans"_s);
    record.xOffset = 0.1F;
    record.yOffset = -2.25F;
    record.fontColor = {0.1F, 0.2F, 0.3F, 0.4F};
    record.wellColor = {0.5F, 0.6F, 0.7F, 0.8F};
    record.angle = -30;
    record.density = 26;
    record.scale = 101;
    record.units = 1;
    record.fontSize = 73;
    record.xPosition = 280.627441;
    record.yPosition = 0.1;
    record.glyphs = {0x0102, 0xfffe};
    return record;
}

// What its file holds, key by key.
QByteArray FullFile()
{
    const std::pair<const char*, const char*> lines[] = {
        {"angle", "<integer>-30</integer>"},
        {"density", "<integer>26</integer>"},
        {"filePath", "<string>/pictures/logo.png</string>"},
        {"filename", "<string>logo.png</string>"},
        {"fontColorAlpha", "<real>0.4</real>"},
        {"fontColorBlue", "<real>0.3</real>"},
        {"fontColorGreen", "<real>0.2</real>"},
        {"fontColorRed", "<real>0.1</real>"},
        {"fontName", "<string>DejaVuSans</string>"},
        {"fontSize", "<integer>73</integer>"},
        {"glyphCount", "<integer>2</integer>"},
        {"glyphs", "<data>AgH+/w==</data>"},
        {"scale", "<integer>101</integer>"},
        {"textString", "<string>Entwurf &lt;ä &amp; &quot;ö&quot;&gt;</string>"},
        {"units", "<integer>1</integer>"},
        {"wellColorAlpha", "<real>0.8</real>"},
        {"wellColorBlue", "<real>0.7</real>"},
        {"wellColorGreen", "<real>0.6</real>"},
        {"wellColorRed", "<real>0.5</real>"},
        {"xOffset", "<real>0.1</real>"},
        {"xPos", "<real>280.627441</real>"},
        {"yOffset", "<real>-2.25</real>"},
        {"yPos", "<real>0.1</real>"},
    };
    QByteArray file = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">\n\t<dict>\n"
                      "\t\t<key>Entwurf &lt;ä &amp; &quot;ö&quot;&gt;</key>\n\t\t<dict>\n";
    for (const auto& [key, value] : lines)
        file += QByteArray("\t\t\t<key>") + key + "</key>\n\t\t\t" + value + '\n';
    return file + "\t\t</dict>\n\t</dict>\n</plist>\n";
}

QByteArray Content(const QString& path)
{
    return ReadFile(path, 1 << 20).bytes.value_or("(unreadable)");
}

int Mode(const QString& path)
{
    struct stat status = {};
    return stat(QFile::encodeName(path).constData(), &status) == 0 ? static_cast<int>(status.st_mode & 07777) : -1;
}

struct Browser : WatermarkListBrowser {
    QStringList items{u"as before"_s};
    void setItems(const QStringList& names) override { items = names; }
};

class WatermarkStoreTest : public testing::Test {
protected:
    WatermarkStoreTest()
    {
        QDir(folder.path()).mkdir(u"machine"_s);
        qputenv("KESTA_DATA_ROOT", QFile::encodeName(machine));
        qputenv("XDG_DATA_HOME", QFile::encodeName(folder.filePath(u"user"_s)));
    }
    ~WatermarkStoreTest() override
    {
        qunsetenv("KESTA_DATA_ROOT");
        qunsetenv("XDG_DATA_HOME");
    }

    _WatermarkData load(const QString& name) const
    {
        _WatermarkData record;
        EXPECT_TRUE(loadWatermarkData(kWatermarkFile, name, record)) << name.toStdString();
        return record;
    }
    void write(const QByteArray& bytes) const { ASSERT_FALSE(WriteFile(path, bytes)); }

    QTemporaryDir folder;
    const QString machine = folder.filePath(u"machine"_s);
    const QString path = machine + u"/Kesta/com.kesta.printing.watermarks.plist"_s;
    const QString ofUser = folder.filePath(u"user/kesta-print/Kesta/com.kesta.printing.watermarks.plist"_s);
};

TEST_F(WatermarkStoreTest, EveryFieldComesBackByteForByte)
{
    saveWatermarkData(kWatermarkFile, FullRecord());
    EXPECT_EQ(Content(path), FullFile());
    const _WatermarkData loaded = load(FullRecord().text.get());
    EXPECT_EQ(loaded, FullRecord());
    saveWatermarkData(kWatermarkFile, loaded);
    EXPECT_EQ(Content(path), FullFile());
}

TEST_F(WatermarkStoreTest, AWatermarkThatIsNotThereMakesTheRecordZero)
{
    _WatermarkData record = FullRecord();
    EXPECT_FALSE(loadWatermarkData(kWatermarkFile, u"absent"_s, record));
    EXPECT_EQ(record, _WatermarkData());
    saveWatermarkList(kWatermarkFile, QStringList{u"absent"_s});
    record = FullRecord();
    EXPECT_FALSE(loadWatermarkData(kWatermarkFile, "WatermarkListEntries", record));
    EXPECT_EQ(record, _WatermarkData());
}

TEST_F(WatermarkStoreTest, TheNameAndTheKindFollowTheText)
{
    saveWatermarkData(kWatermarkFile, Picture(u"logo.png"_s));
    EXPECT_EQ(load(u"logo.png"_s).isText, 0);

    saveWatermarkData(kWatermarkFile, Text(u"Draft"_s));
    _WatermarkData replacement = Text(u"Draft"_s);
    replacement.angle = 7;
    saveWatermarkData(kWatermarkFile, replacement);
    EXPECT_EQ(load(u"Draft"_s), replacement);

    _WatermarkData record = Text(u"the text before"_s);
    ASSERT_TRUE(loadWatermarkData(kWatermarkFile, u"logo.png"_s, record));
    EXPECT_EQ(record.isText, 0);
}

TEST_F(WatermarkStoreTest, ListsComeBackInTheirOrder)
{
    Browser browser;
    EXPECT_EQ(loadWatermarkList(kWatermarkFile, &browser), std::nullopt);
    EXPECT_EQ(browser.items, QStringList{u"as before"_s});

    const QStringList names{u"b"_s, u"a"_s, u"b"_s, QString()};
    saveWatermarkList(kWatermarkFile, names);
    saveWatermarkList(kWatermarkFile, std::nullopt);
    saveWatermarkList("", QStringList());
    EXPECT_EQ(loadWatermarkList(kWatermarkFile, &browser), names);
    EXPECT_EQ(browser.items, names);
    saveWatermarkList("com.kesta.printing.faximage.plist", QStringList{u"other"_s});
    EXPECT_EQ(loadWatermarkList(kWatermarkFile), names);

    write(WritePropertyList(Dictionary{{"WatermarkListEntries", Array{Value("x"), Value(true), Value("y")}}}));
    EXPECT_EQ(loadWatermarkList(kWatermarkFile), (QStringList{u"x"_s, u"y"_s}));
}

TEST_F(WatermarkStoreTest, RemovalComparesExactly)
{
    removeWatermarkData(kWatermarkFile, "Draft");
    EXPECT_FALSE(QFile::exists(path));
    saveWatermarkData(kWatermarkFile, Text(u"Draft"_s));
    saveWatermarkList(kWatermarkFile, QStringList{u"Copy"_s, u"Draft"_s, u"draft"_s, u"Draft"_s});

    const QByteArray before = Content(path);
    for (const char* other : {"DRAFT", "Draf", "", "WatermarkListEntries"})
        removeWatermarkData(kWatermarkFile, other);
    EXPECT_EQ(Content(path), before);
    removeWatermarkData(kWatermarkFile, "Draft");
    EXPECT_EQ(loadWatermarkList(kWatermarkFile), (QStringList{u"Copy"_s, u"draft"_s, u"Draft"_s}));
    _WatermarkData record;
    EXPECT_FALSE(loadWatermarkData(kWatermarkFile, "Draft", record));
}

TEST_F(WatermarkStoreTest, FontsAreBytesUnderTheirKeys)
{
    storeFontData(kWatermarkFile, "KS-DejaVuSans-KS", "no file yet");
    EXPECT_FALSE(QFile::exists(path));
    saveWatermarkList(kWatermarkFile, QStringList());
    const QByteArray font("%!PS-TrueTypeFont\0\xff", 19);
    storeFontData(kWatermarkFile, "KS-DejaVuSans-KS", font);

    QByteArray buffer("before ");
    loadFontData(kWatermarkFile, "KS-DejaVuSans-KS", buffer);
    loadFontData(kWatermarkFile, "KS-Other-KS", buffer);
    loadFontData(kWatermarkFile, "WatermarkListEntries", buffer);
    EXPECT_EQ(buffer, "before " + font);

    saveWatermarkData(kWatermarkFile, Picture(u"KS-DejaVuSans-KS"_s)); // nothing guards a font's key
    buffer.clear();
    loadFontData(kWatermarkFile, "KS-DejaVuSans-KS", buffer);
    EXPECT_EQ(buffer, QByteArray());
    EXPECT_EQ(load(u"KS-DejaVuSans-KS"_s), Picture(u"KS-DejaVuSans-KS"_s));
}

TEST_F(WatermarkStoreTest, DefaultsAreDraftConfidentialAndCopy)
{
    const Bundle bundle = test::BundleWithTexts({"DraftWatermark", "ConfidentialWatermark", "CopyWatermark"});
    CreateDefaultWatermarks(bundle);
    EXPECT_EQ(loadWatermarkList(kWatermarkFile),
              (QStringList{u"DraftWatermark"_s, u"ConfidentialWatermark"_s, u"CopyWatermark"_s}));
    _WatermarkData expected = Text(u"CopyWatermark"_s);
    expected.fontName.set(u"ArialMT"_s);
    expected.fontColor = {0.75F, 0.75F, 1, 1};
    expected.wellColor = {0, 0, 1, 1};
    expected.angle = 45;
    expected.density = 25;
    expected.scale = 100;
    expected.fontSize = 72;
    expected.xPosition = 276.36319;
    expected.yPosition = 306.785675;
    EXPECT_EQ(load(u"CopyWatermark"_s), expected);
    EXPECT_EQ(load(u"DraftWatermark"_s).yPosition, 311.049927);
    EXPECT_EQ(load(u"ConfidentialWatermark"_s).xPosition, 201.350601);

    CreateDefaultWatermarks(Bundle());
    EXPECT_EQ(loadWatermarkList(kWatermarkFile), QStringList(3, u"STRING NOT FOUND"_s));
}

TEST_F(WatermarkStoreTest, AFileCutAnywhereIsKeptAsideBeforeANewOne)
{
    saveWatermarkList(kWatermarkFile, QStringList{u"ä"_s});
    const QByteArray whole = Content(path);
    const qsizetype end = whole.lastIndexOf("</plist>") + 8;
    testing::internal::CaptureStderr();
    const test::EventfulClock clock;
    for (qsizetype size = 0; size < end; size += 7) {
        write(whole.first(size));
        EXPECT_EQ(loadWatermarkList(kWatermarkFile), std::nullopt) << size;
        removeWatermarkData(kWatermarkFile, u"ä"_s);
        storeFontData(kWatermarkFile, "font", "bytes");
        ASSERT_EQ(Content(path), whole.first(size));
        saveWatermarkList(kWatermarkFile, QStringList{u"ä"_s});
        ASSERT_EQ(Content(path), whole) << size;
        ASSERT_EQ(Content(path + u".damaged"_s), whole.first(size));
    }
    testing::internal::GetCapturedStderr();
}

TEST_F(WatermarkStoreTest, WhatIsWrongWithAFileIsSaid)
{
    saveWatermarkList(kWatermarkFile, QStringList());
    const test::EventfulClock clock;
    write("<plist>\n<array></dict>");
    testing::internal::CaptureStderr();
    EXPECT_EQ(CopyXMLData(kWatermarkFile), std::nullopt);
    const std::string said = testing::internal::GetCapturedStderr();
    EXPECT_EQ(said.find("CopyXMLData()::CFPropertyListCreateFromXMLData() error: line 2, "), 0U) << said;

    write("<plist><array/></plist>");
    testing::internal::CaptureStderr();
    saveWatermarkData(kWatermarkFile, Text(u"Draft"_s));
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "CopyXMLData()::CFPropertyListCreateFromXMLData() error: the list is not a dictionary\n");
    EXPECT_EQ(Content(path + u".damaged"_s), "<plist><array/></plist>");
    EXPECT_EQ(load(u"Draft"_s), Text(u"Draft"_s));
}

// Another program that is half way through its own save.
TEST_F(WatermarkStoreTest, AStoreThatIsBeingWrittenIsWaitedFor)
{
    saveWatermarkList(kWatermarkFile, QStringList{u"Draft"_s});
    const QByteArray whole = Content(path);
    write(whole.first(whole.size() / 2));
    {
        test::EventfulClock clock;
        clock.meanwhile = [&] { write(whole); };
        saveWatermarkData(kWatermarkFile, Text(u"Draft"_s));
    }
    EXPECT_FALSE(QFile::exists(path + u".damaged"_s));
    EXPECT_EQ(loadWatermarkList(kWatermarkFile), QStringList{u"Draft"_s});
    EXPECT_EQ(load(u"Draft"_s), Text(u"Draft"_s));
}

// Each may overwrite the other's change, but the store is never lost.
TEST_F(WatermarkStoreTest, TwoProgramsThatSaveAtOnceLeaveAStore)
{
    saveWatermarkList(kWatermarkFile, QStringList{u"Draft"_s});
    std::array<pid_t, 2> programs{};
    for (pid_t& program : programs) {
        program = fork();
        if (program != 0)
            continue;
        for (int turn = 0; turn < 15; ++turn)
            saveWatermarkData(kWatermarkFile, Text(QString(20 * (turn % 7) + 1, u'a')));
        _exit(0);
    }
    for (const pid_t program : programs) {
        int status = 0;
        EXPECT_EQ(waitpid(program, &status, 0), program);
        EXPECT_EQ(status, 0);
    }
    EXPECT_FALSE(QFile::exists(path + u".damaged"_s));
    EXPECT_EQ(loadWatermarkList(kWatermarkFile), QStringList{u"Draft"_s});
}

TEST_F(WatermarkStoreTest, AStoreThatCannotBeReadNowIsLeftAlone)
{
    saveWatermarkList(kWatermarkFile, QStringList{u"Draft"_s});
    const QByteArray whole = Content(path);
    testing::internal::CaptureStderr();
    {
        rlimit before{};
        getrlimit(RLIMIT_NOFILE, &before);
        const rlimit none{0, before.rlim_max};
        setrlimit(RLIMIT_NOFILE, &none);
        saveWatermarkData(kWatermarkFile, Text(u"Draft"_s));
        setrlimit(RLIMIT_NOFILE, &before);
    }
    const std::string said = testing::internal::GetCapturedStderr();
    EXPECT_NE(said.find("Too many open files"), std::string::npos) << said;
    EXPECT_NE(said.find("saveWatermarkData: Error 24 writing data to file\n"), std::string::npos) << said;
    EXPECT_EQ(Content(path), whole);
    EXPECT_FALSE(QFile::exists(path + u".damaged"_s));
}

TEST_F(WatermarkStoreTest, AFullDiskLeavesTheOldContentAndIsSaid)
{
    saveWatermarkList(kWatermarkFile, QStringList{u"short"_s});
    const QByteArray oldContent = Content(path);
    testing::internal::CaptureStderr();
    {
        const test::SmallDisk disk(static_cast<rlim_t>(oldContent.size()));
        saveWatermarkData(kWatermarkFile, FullRecord());
        saveWatermarkList(kWatermarkFile, QStringList{QString(300, u'x')});
        storeFontData(kWatermarkFile, "font", QByteArray(5000, 'x'));
    }
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "saveWatermarkData: Error 27 writing data to file\n");
    EXPECT_EQ(Content(path), oldContent);
}

TEST_F(WatermarkStoreTest, NewFilesAreOpenToWhomTheirFolderIs)
{
    const mode_t umaskBefore = umask(077);
    chmod(QFile::encodeName(machine).constData(), 02770);
    saveWatermarkList(kWatermarkFile, QStringList());
    EXPECT_EQ(Mode(machine + u"/Kesta"_s), 02770);
    EXPECT_EQ(Mode(path), 0660);
    chmod(QFile::encodeName(path).constData(), 0640);
    saveWatermarkList(kWatermarkFile, QStringList());
    EXPECT_EQ(Mode(path), 0640);
    umask(umaskBefore);
}

TEST_F(WatermarkStoreTest, TheUsersOwnFolderStandsIn)
{
    EXPECT_EQ(CopyPreferenceFileURL(kWatermarkFile), path);
    for (const char* outside : {"", "../x.plist", "a/b", ".hidden"})
        EXPECT_EQ(CopyPreferenceFileURL(outside), std::nullopt) << outside;

    const QString elsewhere = folder.filePath(u"elsewhere"_s);
    saveWatermarkList(kWatermarkFile, QStringList{u"another's"_s});
    ASSERT_TRUE(QFile::rename(path, elsewhere) && QFile::link(elsewhere, path)); // somebody's trap
    const QByteArray before = Content(elsewhere);
    saveWatermarkList(kWatermarkFile, QStringList{u"own"_s});
    EXPECT_EQ(Content(elsewhere), before);
    EXPECT_EQ(CopyPreferenceFileURL(kWatermarkFile), ofUser);
    EXPECT_EQ(Mode(ofUser), 0600);

    qputenv("KESTA_DATA_ROOT", "/dev/null");
    EXPECT_EQ(loadWatermarkList(kWatermarkFile), QStringList{u"own"_s});
    qputenv("XDG_DATA_HOME", "/dev/null");
    EXPECT_EQ(CopyPreferenceFileURL(kWatermarkFile), std::nullopt);
    testing::internal::CaptureStderr();
    saveWatermarkData(kWatermarkFile, FullRecord());
    saveWatermarkList(kWatermarkFile, QStringList());
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "saveWatermarkData: Error 2 writing data to file\n");
    EXPECT_EQ(loadWatermarkList(kWatermarkFile), std::nullopt);
}

// Runs the check as a user who has no special rights.
void ExpectAsNobody(const std::function<bool()>& check)
{
    EXPECT_EXIT(
        {
            if (geteuid() == 0 && setuid(kNobody) != 0)
                std::exit(2);
            std::exit(check() ? 0 : 1);
        },
        testing::ExitedWithCode(0), "");
}

TEST_F(WatermarkStoreTest, WhoMayNotWriteTheSharedStoreHasAnOwn)
{
    saveWatermarkList(kWatermarkFile, QStringList{u"shared"_s});
    QDir(folder.path()).mkdir(u"user"_s);
    chmod(QFile::encodeName(folder.path()).constData(), 0755);
    chmod(QFile::encodeName(folder.filePath(u"user"_s)).constData(), 0777);
    chmod(QFile::encodeName(machine).constData(), 0755);
    const QByteArray shared = QFile::encodeName(machine + u"/Kesta"_s);
    const QByteArray file = QFile::encodeName(path);

    chmod(shared.constData(), 0777);
    chmod(file.constData(), 0666);
    ExpectAsNobody([&] { return CopyPreferenceFileURL(kWatermarkFile) == path; });
    chmod(file.constData(), 0444);
    ExpectAsNobody([&] { return CopyPreferenceFileURL(kWatermarkFile) == ofUser; });
    chmod(file.constData(), 0666);
    chmod(shared.constData(), 0555);
    ExpectAsNobody([&] {
        saveWatermarkList(kWatermarkFile, QStringList{u"own"_s});
        return loadWatermarkList(kWatermarkFile) == QStringList{u"own"_s} && Content(ofUser).contains("own");
    });
    EXPECT_FALSE(Content(path).contains("own"));
    chmod(shared.constData(), 0777);
}

} // namespace
} // namespace kesta::booklet_watermark
