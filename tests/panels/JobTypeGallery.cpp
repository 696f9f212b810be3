// Saves pictures of the job type and booklet dialogs, to be laid beside the drafts of the look:
//     job_type_gallery PLUGIN OUT_DIR
// KESTA_COLOR_SCHEME=dark gives the dark ones, QT_SCALE_FACTOR=2 2x, LANG another language.

#include "panels/booklet_watermark/BookletDialog.h"
#include "panels/paper_output/JobTypeSetups.h"
#include "platform/Bundle.h"
#include "support/Accessories.h"
#include "support/CurrentPrinter.h"
#include "toolkit/InterfaceFile.h"
#include "toolkit/KestaStyle.h"
#include "toolkit/ModalLoop.h"
#include "toolkit/TextInput.h"
#include "toolkit/ToolkitServices.h"

#include <QApplication>
#include <QDir>
#include <QPushButton>

#include <cstdio>
#include <deque>

using namespace Qt::StringLiterals;

namespace kesta {
namespace {

using Step = std::function<void(QWidget& window)>;

class Gallery {
public:
    Gallery(QDir folder, QString scheme) : folder_(std::move(folder)), scheme_(std::move(scheme))
    {
        SetModalIdleAction([this](QWidget& window) {
            if (steps_.empty())
                return EndModalLoop(window, ModalResult::Cancel);
            const Step step = std::move(steps_.front());
            steps_.pop_front();
            step(window);
        });
    }
    ~Gallery() { SetModalIdleAction(nullptr); }

    Gallery& then(Step step)
    {
        steps_.push_back(std::move(step));
        return *this;
    }
    Gallery& save(const char* name)
    {
        return then([this, name](QWidget& window) {
            const QString file = folder_.filePath(u"%1-%2.png"_s.arg(QLatin1String(name), scheme_));
            allSaved_ = window.grab().save(file) && allSaved_;
            std::printf("%s %dx%d\n", qUtf8Printable(file), window.width(), window.height());
        });
    }
    Gallery& close(ModalResult result = ModalResult::Cancel)
    {
        return then([result](QWidget& window) { EndModalLoop(window, result); });
    }
    bool allSaved() const { return allSaved_; }

private:
    QDir folder_;
    QString scheme_;
    std::deque<Step> steps_;
    bool allSaved_ = true;
};

Step Type(FourCharCode signature, SInt32 number, const char* text)
{
    return [=](QWidget& window) {
        QLineEdit* field = FindTextField(&window, {signature, number});
        field->setFocus();
        TypeIntoField(field, QString::fromLatin1(text));
    };
}

void PressOK(QWidget& window)
{
    ClickControl(GetWindowDefaultButton(window));
}

void ShowSecurePrint(const Bundle& bundle, Gallery& gallery)
{
    using namespace jobtypes;
    std::optional<QString> passcode;
    gallery.then(Type(kSecurePrintSignature, kPasscodeField, "123")).save("secure-print-short");
    gallery.then(Type(kSecurePrintSignature, kPasscodeField, "45"));
    gallery.then(Type(kSecurePrintSignature, kConfirmationField, "1234")).then(PressOK);
    gallery.save("secure-print-notice").then(PressOK).save("secure-print-invalid").close();
    RunModalSecurePrintSetup(bundle, passcode);
    gallery.save("secure-print-empty").then(PressOK).save("secure-print-made").then(PressOK);
    RunModalSecurePrintSetup(bundle, passcode);
}

void ShowOtherJobTypes(const Bundle& bundle, Gallery& gallery)
{
    SInt64 time = 20 * 3600 + 30 * 60;
    gallery.save("delayed-print").close();
    RunModalDelayedPrintSetup(bundle, time);
    JobTypeDetails details;
    gallery.save("saved-job").close();
    RunModalSavedJobDialog(bundle, details);
    details = {.securePasscode = u"12345"_s,
               .hasPasscode = true,
               .saveDisposition = 2,
               .savedJobName = u"Quarterly Report"_s,
               .useJobName = false,
               .mediaTypeInJob = 3};
    gallery.save("saved-job-secure").close();
    RunModalSavedJobDialog(bundle, details);
}

void ShowBooklets(const Bundle& bundle, Gallery& gallery)
{
    _BookletCreationParams params{.bundle = &bundle};
    gallery.save("booklet-creation-off").close();
    RunModalBookletCreationDialog(params);
    params.fold = kBookletFoldAndStaple;
    params.layout = kBookletLayoutOn;
    params.drawOutlines = kDrawPageBorders;
    params.creep = 5;
    {
        const test::WithFeatures fitted({u"BookletFoldKey"_s});
        gallery.save("booklet-options-finishing").close();
        RunModalBookletOptionsDialog(params);
    }
    const test::WithFeatures none({});
    gallery.save("booklet-options").close();
    RunModalBookletOptionsDialog(params);
}

} // namespace
} // namespace kesta

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    const kesta::Bundle* bundle = argc == 3 ? kesta::LoadBundleAt(QString::fromLocal8Bit(argv[1])).bundle : nullptr;
    if (!bundle || !QDir().mkpath(QString::fromLocal8Bit(argv[2]))) {
        std::fprintf(stderr, "usage: job_type_gallery PLUGIN OUT_DIR\n");
        return 1;
    }
    const QByteArray scheme = qgetenv("KESTA_COLOR_SCHEME");
    kesta::InstallKestaStyle(*qApp);
    kesta::InstallToolkitServices();
    const kesta::test::CurrentPrinter printer;
    kesta::Gallery gallery(QDir(QString::fromLocal8Bit(argv[2])),
                           scheme.isEmpty() ? u"desktop"_s : QString::fromLatin1(scheme));
    kesta::ShowSecurePrint(*bundle, gallery);
    kesta::ShowOtherJobTypes(*bundle, gallery);
    kesta::ShowBooklets(*bundle, gallery);
    return gallery.allSaved() ? 0 : 1;
}
