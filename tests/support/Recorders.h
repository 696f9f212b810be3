#pragma once

#include "platform/system/Clock.h"
#include "platform/system/HelpViewer.h"
#include "platform/system/Notices.h"
#include "platform/system/RandomSource.h"

#include <algorithm>
#include <cstring>

// Services that note what they are asked for, and answer what a test needs. Each is installed while it lives.
namespace kesta::test {

struct RecordingNotices : Notices {
    QStringList titles, messages;

    void show(const Notice& notice) override
    {
        titles << notice.title;
        messages << notice.message;
    }
    int ask(const Alert& alert) override { return CancelButtonOf(alert); }

private:
    const WhileInstalled<Notices> installed_{*this};
};

struct RecordingHelp : HelpViewer {
    QStringList files, anchors;

    OSStatus show(const QString& file, const QString& anchor) override
    {
        files << file;
        anchors << anchor;
        return noErr;
    }

private:
    const WhileInstalled<HelpViewer> installed_{*this};
};

// Every draw is the same number.
struct LoadedDice : RandomSource {
    std::uint32_t number = 0;

    explicit LoadedDice(std::uint32_t drawn = 0) : number(drawn) {}
    void fill(std::span<std::byte> bytes) override
    {
        std::memcpy(bytes.data(), &number, std::min(bytes.size(), sizeof number));
    }

private:
    const WhileInstalled<RandomSource> installed_{*this};
};

// In seconds since 1970, and east of UTC.
struct StoppedClock : Clock {
    explicit StoppedClock(SInt64 seconds, SInt64 east = 0) : date{seconds}, secondsEast(static_cast<int>(east)) {}
    Date now() const override { return date; }
    SInt64 milliseconds() const override { return 0; }
    int secondsEastOfUTC(Date) const override { return secondsEast; }

    Date date;
    int secondsEast;

private:
    const WhileInstalled<Clock> installed_{*this};
};

} // namespace kesta::test
