#include "panels/booklet_watermark/WatermarkList.h"

#include "panels/booklet_watermark/watermark/WatermarkStore.h"
#include "platform/system/SharedStoreFile.h"
#include "support/TestTexts.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace kesta::booklet_watermark {
namespace {

_WatermarkData TextWatermark(const QString& text, SInt32 size = 72)
{
    _WatermarkData record;
    record.text.set(text);
    record.isText = 1;
    record.fontSize = size;
    record.xOffset = 0.1F;
    return record;
}

class WatermarkListTest : public testing::Test {
protected:
    WatermarkListTest()
    {
        qputenv("XDG_DATA_HOME", QFile::encodeName(home.path()));
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(home.path()));
        qputenv("KESTA_DATA_ROOT", QFile::encodeName(machine()));
    }
    ~WatermarkListTest() override
    {
        for (const char* name : {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "KESTA_DATA_ROOT"})
            qunsetenv(name);
        listOfWatermarks().clear();
    }
    QString machine() const { return home.filePath(u"machine"_s); }
    // From now on there is a store for everybody.
    void shareStore() const { QDir().mkpath(machine() + u"/Kesta"_s); }

    bool save(const _WatermarkData& record, const QString& oldName = {})
    {
        return SaveWatermark(record, oldName, [this](const _WatermarkData& removed) {
            if (!removed.text.isEmpty())
                dropped << removed.text.get();
        });
    }
    static SInt32 sizeOf(const QString& name)
    {
        _WatermarkData record;
        return loadWatermarkData(kWatermarkFile, name, record) ? record.fontSize : 0;
    }

    QTemporaryDir home;
    Bundle bundle = test::BundleWithAllTexts();
    QStringList dropped;
};

TEST_F(WatermarkListTest, ANewStoreGetsTheThreeOfTheLanguage)
{
    LoadWatermarks(bundle);
    EXPECT_EQ(listOfWatermarks().join(u' '), u"DraftWatermark ConfidentialWatermark CopyWatermark"_s);
    saveWatermarkList(kWatermarkFile, QStringList{u"gone"_s, u"CopyWatermark"_s});
    LoadWatermarks(bundle);
    EXPECT_EQ(listOfWatermarks(), QStringList{u"CopyWatermark"_s}) << "a first name without a record";
    EXPECT_EQ(loadWatermarkList(kWatermarkFile)->size(), 2) << "which the store keeps";
    _WatermarkData picture;
    picture.fileName.set(u"logo.png"_s);
    saveWatermarkData(kWatermarkFile, picture);
    saveWatermarkList(kWatermarkFile, QStringList{u"logo.png"_s});
    LoadWatermarks(bundle);
    EXPECT_EQ(listOfWatermarks(), QStringList{u"logo.png"_s}) << "a picture is no empty one";
    saveWatermarkList(kWatermarkFile, QStringList());
    LoadWatermarks(bundle);
    EXPECT_TRUE(listOfWatermarks().isEmpty()) << "an empty list is a list";
}

TEST_F(WatermarkListTest, AnEditedWatermarkKeepsItsPlaceAndReplacesItsNamesake)
{
    LoadWatermarks(bundle);
    EXPECT_TRUE(save(TextWatermark(u"Mine"_s)));
    EXPECT_TRUE(save(TextWatermark(u"Mine"_s, 20)));
    EXPECT_EQ(listOfWatermarks().count(u"Mine"_s), 1) << "once in the list";
    EXPECT_EQ(sizeOf(u"Mine"_s), 20);

    EXPECT_TRUE(save(TextWatermark(u"Renamed"_s, 30), u"ConfidentialWatermark"_s));
    EXPECT_EQ(listOfWatermarks().join(u' '), u"DraftWatermark Renamed CopyWatermark Mine"_s);
    EXPECT_EQ(sizeOf(u"ConfidentialWatermark"_s), 0);

    dropped.clear();
    EXPECT_TRUE(save(TextWatermark(u"Mine"_s, 40), u"DraftWatermark"_s));
    EXPECT_EQ(listOfWatermarks().join(u' '), u"Mine Renamed CopyWatermark"_s);
    EXPECT_EQ(dropped.join(u' '), u"DraftWatermark Mine"_s) << "both may have been the last of their fonts";
    EXPECT_EQ(loadWatermarkList(kWatermarkFile), listOfWatermarks());

    EXPECT_TRUE(DeleteWatermark(u"Renamed"_s, [](const _WatermarkData&) {}));
    EXPECT_EQ(listOfWatermarks().join(u' '), u"Mine CopyWatermark"_s);
    EXPECT_EQ(sizeOf(u"Renamed"_s), 0);
}

TEST_F(WatermarkListTest, WhatOthersDidMeanwhileStays)
{
    LoadWatermarks(bundle);
    saveWatermarkData(kWatermarkFile, TextWatermark(u"Theirs"_s));
    saveWatermarkList(kWatermarkFile, QStringList{u"DraftWatermark"_s, u"Theirs"_s});
    EXPECT_TRUE(save(TextWatermark(u"Mine"_s)));
    EXPECT_EQ(listOfWatermarks().join(u' '), u"DraftWatermark Theirs Mine"_s);
}

TEST_F(WatermarkListTest, AStoreThatCantBeWrittenLosesNothing)
{
    LoadWatermarks(bundle);
    const QString file = *CopyPreferenceFileURL(QLatin1StringView(kWatermarkFile));
    const QString aside = file + u".aside"_s;
    ASSERT_TRUE(QFile::rename(file, aside));
    ASSERT_TRUE(QDir().mkpath(file)); // which root can't write either
    EXPECT_FALSE(save(TextWatermark(u"Mine"_s), u"DraftWatermark"_s));
    EXPECT_TRUE(QDir().rmdir(file));
    ASSERT_TRUE(QFile::rename(aside, file));
    LoadWatermarks(bundle);
    EXPECT_EQ(listOfWatermarks().join(u' '), u"DraftWatermark ConfidentialWatermark CopyWatermark"_s);
    EXPECT_EQ(sizeOf(u"DraftWatermark"_s), 72);
}

TEST_F(WatermarkListTest, OnesOwnWatermarksAreOfferedOnceThereIsAStoreForAll)
{
    LoadWatermarks(bundle);
    EXPECT_TRUE(save(TextWatermark(u"Mine"_s, 20)));
    EXPECT_TRUE(OwnWatermarks().isEmpty()) << "it is the one in use";

    shareStore();
    LoadWatermarks(bundle);
    EXPECT_EQ(listOfWatermarks().size(), 3);
    EXPECT_EQ(OwnWatermarks(), QStringList{u"Mine"_s}) << "the others are there, too";
    CopyOwnWatermarks({u"Mine"_s, u"nobody's"_s});
    EXPECT_EQ(listOfWatermarks().join(u' '), u"DraftWatermark ConfidentialWatermark CopyWatermark Mine"_s);
    EXPECT_EQ(sizeOf(u"Mine"_s), 20);
    EXPECT_TRUE(OwnWatermarks().isEmpty());

    EXPECT_FALSE(AreOwnWatermarksOffered());
    RememberUnits(1);
    RememberOwnWatermarksOffered();
    EXPECT_TRUE(AreOwnWatermarksOffered());
    EXPECT_EQ(UsualUnits(0), 1) << "each remembered beside the other";
}

} // namespace
} // namespace kesta::booklet_watermark
