#include "model/JobType.h"
#include "pde/ShellFixture.h"
#include "pde/interface/JobTypeCheck.h"
#include "pde/interface/TicketKeys.h"
#include "support/Recorders.h"

using namespace Qt::StringLiterals;

namespace kesta::shell {
namespace {

using test::CallsOf;

class PDEShellSyncTest : public test::ShellTest {
protected:
    OSStatus write() { return slots.Sync(prologue.context, &session(), false); }
    QString text(const char* key)
    {
        const QString* found = ticket.values().string(key);
        return found ? *found : u"none"_s;
    }
};

TEST_F(PDEShellSyncTest, ThePanelShownIsLastAndOneWithoutAnIndexNever)
{
    open();
    selectPanel(2, context());
    EXPECT_EQ(CallsOf([&] { write(); }), "1<3<2<");
    context().panels[0].index = kTakesNoPart;
    EXPECT_EQ(CallsOf([&] { slots.Sync(prologue.context, &session(), true); }), "3>2>");
    EXPECT_EQ(CallsOf([&] { PDESync(nullptr, SyncDirection::ControlsToTickets); }), "3<2<")
        << "with the session of Initialize";
}

TEST_F(PDEShellSyncTest, WritingAddsTheKeysOfTheJob)
{
    initialize();
    ticket.set("X", key::RotateBooklet180Degrees, true);
    ASSERT_EQ(slots.Sync(prologue.context, &session(), true), noErr);
    EXPECT_EQ(ticket.values().count(), 1u) << "reading changes nothing";

    ASSERT_EQ(write(), noErr);
    EXPECT_EQ(*ticket.values().dictionary(key::KPIFOptions),
              (Dictionary{{"KPIFOptionCovers", true}, {"KPIFOptionExceptions", true}, {"KPIFOptionInserts", true}}));
    EXPECT_FALSE(ticket.values().find(key::RotateBooklet180Degrees));
    EXPECT_EQ(text(key::ControllerFamily), u"Discovery");
    EXPECT_EQ(text(key::ControllerVersion), u"5.0");
    EXPECT_EQ(ticket.client(key::ControllerFamily), u"K");
    EXPECT_EQ(PPDCopyCurrentChoice(ticket, "KSTColor"), std::nullopt);

    system.user = system.computer = std::nullopt;
    ticket.set("another", key::ClientIPAddress, "locked", Ticket::Lock::Locked);
    EXPECT_EQ(write(), kTicketEntryLocked) << "the last write";

    session().data.clear();
    EXPECT_EQ(write(), kNoSuchTicket);
}

TEST_F(PDEShellSyncTest, TheClientIsNamedAsFarAsItIsKnown)
{
    struct Machine {
        std::optional<QString> user, computer;
        QString expectedUser, expectedComputer;
    };
    const Machine machines[] = {
        {u"anna"_s, u"front desk"_s, u"anna"_s, u"front desk"_s},
        {u"anna"_s, u"caf\u00FE"_s, u"anna"_s, u"caf\u00FE"_s},
        {u"anna"_s, u"caf\u00FF"_s, u"anna"_s, u"none"_s},
        {u"anna"_s, u"tab\t"_s, u"anna"_s, u"none"_s},
        {u"anna"_s, std::nullopt, u"anna"_s, u"none"_s},
        {std::nullopt, u"plain"_s, u"none"_s, u"none"_s},
    };
    initialize();
    for (const Machine& machine : machines) {
        for (const char* key : {key::ClientUserName, key::ClientComputerName, key::ClientIPAddress})
            ticket.set("K", key, "from the job before");
        system.user = machine.user;
        system.computer = machine.computer;
        write();
        EXPECT_EQ(text(key::ClientUserName), machine.expectedUser);
        EXPECT_EQ(text(key::ClientComputerName), machine.expectedComputer);
        EXPECT_EQ(text(key::ClientIPAddress), u"none");
    }
    system.interface = u"eth1"_s;
    system.addresses = {{u"eth0"_s, {u"10.0.0.1"_s}}, {u"eth1"_s, {u"10.0.0.2"_s, u"10.0.0.3"_s}}};
    write();
    EXPECT_EQ(text(key::ClientIPAddress), u"10.0.0.2");
    system.interface = u"eth2"_s;
    write();
    EXPECT_EQ(text(key::ClientIPAddress), u"none");
}

TEST_F(PDEShellSyncTest, AFaxHasNoColoursAndGivesThemBack)
{
    initialize();
    const auto colorOf = [this](SInt32 jobType) {
        ticket.set("X", key::JobType, Dictionary{{"JobType", Number::SInt32(jobType)}});
        write();
        return PPDCopyCurrentChoice(ticket, "KSTColor");
    };
    EXPECT_EQ(colorOf(6), std::nullopt);
    EXPECT_EQ(colorOf(5), u"BW"_s);
    EXPECT_EQ(colorOf(5), u"BW"_s);
    EXPECT_EQ(colorOf(1), std::nullopt) << "nobody chose it";
    for (const char* chosen : {"Color", "BW"}) {
        ticket.ppdDict().set("KSTColor", chosen);
        EXPECT_EQ(colorOf(5), u"BW"_s);
        slots.Sync(prologue.context, &session(), true);
        EXPECT_EQ(colorOf(1), QLatin1StringView(chosen));
        EXPECT_EQ(colorOf(8), QLatin1StringView(chosen));
    }
}

TEST_F(PDEShellSyncTest, SettingsThatBeginAsAFaxLoseItsColourToo)
{
    initialize();
    const auto begin = [this](SInt32 jobType) {
        ticket.ppdDict().set("KSTColor", "BW");
        ticket.set("X", key::JobType, Dictionary{{"JobType", Number::SInt32(jobType)}});
        slots.Sync(prologue.context, &session(), true);
        ticket.set("X", key::JobType, Dictionary{{"JobType", Number::SInt32(1)}});
        write();
        return PPDCopyCurrentChoice(ticket, "KSTColor");
    };
    EXPECT_EQ(begin(5), std::nullopt);
    EXPECT_EQ(begin(6), u"BW"_s) << "chosen by the user";
}

// What the Print button gets to hear, with a panel that says what the test wants.
class JobCheckTest : public test::ShellTest {
protected:
    SInt32 jobType = 1;
    bool hasPasscode = false, hasRecipients = false;
    int faxSetups = 0;
    const test::RecordingNotices notices;
    JobTypeCheckRegistration check{JobTypeCheck{.jobType = [this] { return jobType; },
                                                .hasPasscode = [this] { return hasPasscode; },
                                                .hasFaxRecipients = [this] { return hasRecipients; },
                                                .runFaxSetup =
                                                    [this](const Bundle&) {
                                                        ++faxSetups;
                                                        hasRecipients = true;
                                                    }}};
};

TEST_F(JobCheckTest, ASecureJobNeedsAPasscode)
{
    open();
    EXPECT_EQ(command(kCommandOK), EventResult::NotHandled);
    jobType = kJobTypeSecurePrint;
    EXPECT_EQ(command(kCommandOK), EventResult::Swallowed);
    EXPECT_EQ(notices.titles, QStringList(u"Invalid Secure Print Passcode Header"_s)) << "one notice only";
    EXPECT_EQ(notices.messages, QStringList(u"10 to 4"_s));
    hasPasscode = true;
    EXPECT_EQ(command(kCommandOK), EventResult::NotHandled);
}

TEST_F(JobCheckTest, AFaxNeedsRecipientsAndOKWaitsEvenWhenTheSetupBringsThem)
{
    open();
    jobType = kJobTypeFax;
    EXPECT_EQ(command(kCommandOK), EventResult::Swallowed);
    EXPECT_EQ(faxSetups, 1);
    EXPECT_EQ(command(kCommandOK), EventResult::NotHandled);
    EXPECT_EQ(faxSetups, 1);
    EXPECT_EQ(command(kCommandCancel), EventResult::NotHandled);
}

TEST_F(JobCheckTest, BeforeVersion105AnEventIsSwallowedByHandlingIt)
{
    system.version = SystemVersion{10, 4, 11};
    open();
    jobType = kJobTypeSecurePrint;
    EXPECT_EQ(command(kCommandOK), EventResult::Handled);
}

} // namespace
} // namespace kesta::shell
