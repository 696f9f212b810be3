#include "platform/plugins/PlugIn.h"

#include "platform/SampleBundle.h"
#include "platform/plugins/Bundle.h"
#include "support/TestTexts.h"

#include <gtest/gtest.h>

namespace kesta {
namespace {

const UUID kType = UUIDFromString("BDB091F4-E57F-11D3-B5CC-0050E4603277").value();
const UUID kFactory = UUIDFromString("2469d08f-1c3c-4039-be98-6ed74b921894").value();

TEST(UUID, IsReadAndWrittenInTheOrderOfItsText)
{
    EXPECT_EQ(kFactory.bytes[0], 0x24);
    EXPECT_EQ(kFactory.bytes[4], 0x1C);
    EXPECT_EQ(kFactory.bytes[15], 0x94);
    EXPECT_EQ(StringFromUUID(kFactory), QStringLiteral("2469D08F-1C3C-4039-BE98-6ED74B921894"));
    for (const char* text : {"", "2469D08F1C3C4039BE986ED74B921894", "{2469D08F-1C3C-4039-BE98-6ED74B921894}",
                             "2469D08F-1C3C-4039-BE98-6ED74B92189G", "2469D08F-1C3C-4039-BE98-6ED74B921894 "})
        EXPECT_EQ(UUIDFromString(text), std::nullopt) << text;
}

TEST(PlugIn, FactoriesOfABundleAreFoundByType)
{
    EXPECT_EQ(FindFactory(kType), nullptr);
    ASSERT_EQ(RegisterFactories(*LoadBundleAt(test::SamplePath()).bundle), std::nullopt);
    const PlugInFactory factory = FindFactory(kType);
    ASSERT_TRUE(factory);
    const auto make = reinterpret_cast<void* (*)(const void*, UUID)>(factory);
    EXPECT_TRUE(make(nullptr, kType));
    EXPECT_FALSE(make(nullptr, kFactory));

    RegisterFactory(UUID{{1}}, kType, [] {});
    EXPECT_EQ(FindFactory(kType), factory) << "the first one registered makes the type";
}

TEST(PlugIn, InstancesAreCountedByFactory)
{
    CFPlugInAddInstanceForFactory(kFactory);
    CFPlugInAddInstanceForFactory(kFactory);
    CFPlugInRemoveInstanceForFactory(kFactory);
    EXPECT_EQ(InstanceCount(kFactory), 1);
    EXPECT_EQ(InstanceCount(UUID{{9}}), 0);
    CFPlugInRemoveInstanceForFactory(kFactory);
}

TEST(PlugIn, WhatInfoDeclaresWronglyIsNamed)
{
    const QString type = StringFromUUID(kType), factory = StringFromUUID(kFactory);
    const Dictionary types{{"CFPlugInTypes", Dictionary{{type, Array{Value(factory)}}}}};
    Dictionary noFunction = types;
    noFunction.set("CFPlugInFactories", Dictionary{{factory, "NoSuchFunction"}});
    const std::pair<Dictionary, const char*> wrong[] = {
        {{}, "Plug-in Without Types: x"},
        {types, "Plug-in Factory Not Named: x, 2469D08F-1C3C-4039-BE98-6ED74B921894"},
        {noFunction, "Plug-in Function Missing: x, NoSuchFunction"},
        {{{"CFPlugInTypes", Dictionary{{type, "text"}}}}, "Plug-in Type Unusable: x"},
        {{{"CFPlugInTypes", Dictionary{{type, Array{Value(true)}}}}}, "Plug-in Factory Not A UUID: x"},
    };
    for (const auto& [info, problem] : wrong)
        EXPECT_EQ(test::Bare(RegisterFactories(Bundle{.identifier = QStringLiteral("x"), .info = info}).value()),
                  QString::fromLatin1(problem));
}

} // namespace
} // namespace kesta
