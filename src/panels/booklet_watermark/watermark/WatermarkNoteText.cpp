#include "panels/booklet_watermark/watermark/WatermarkNoteText.h"

#include "pde/ticket/LocalizedText.h"
#include "platform/plugins/Bundle.h"

namespace kesta::booklet_watermark {
namespace {

const char* KeyOf(PictureProblem problem)
{
    switch (problem) {
    case PictureProblem::CantOpen:
        return "Picture Can't Be Opened";
    case PictureProblem::NotPicture:
        return "Picture Of No Known Kind";
    case PictureProblem::TooLarge:
        return "Picture Too Large";
    case PictureProblem::None:
        break;
    }
    return nullptr;
}

const char* KeyOf(FontProblem problem)
{
    switch (problem) {
    case FontProblem::NoFont:
        return "No Font For Watermark";
    case FontProblem::NotOutlines:
    case FontProblem::Damaged:
        return "Font Can't Be Sent";
    case FontProblem::Forbidden:
        return "Font May Not Be Sent";
    case FontProblem::NotStored:
        return "Font Can't Be Kept";
    case FontProblem::None:
    case FontProblem::NoText:
        break;
    }
    return nullptr;
}

const char* KeyOf(NameProblem problem)
{
    switch (problem) {
    case NameProblem::TooLong:
        return "Watermark Name Too Long";
    case NameProblem::Reserved:
    case NameProblem::FontsName:
        return "Watermark Name Reserved";
    case NameProblem::Empty:
    case NameProblem::None:
        break;
    }
    return nullptr;
}

} // namespace

QStringList WatermarkSentences(const Bundle& bundle, const _WatermarkData& watermark, const WatermarkNotes& notes,
                               FontProblem problem)
{
    QStringList sentences;
    const auto say = [&](const char* key, const QStringList& arguments) {
        sentences << LocalizedFormat(bundle, key, arguments);
    };
    if (const char* key = KeyOf(notes.picture))
        say(key, {watermark.fileName.get()});
    if (notes.isSubstitute)
        say(notes.lacksCharacter ? "Font Lacks Characters" : "Font Substituted",
            {watermark.fontName.get(), notes.fontName});
    if (!notes.missingCharacters.isEmpty())
        say("Characters Missing", {notes.missingCharacters});
    if (const char* key = KeyOf(problem))
        say(key, {notes.fontName});
    return sentences;
}

QString NameSentence(const Bundle& bundle, const QString& name, NameProblem problem)
{
    const char* key = KeyOf(problem);
    return key ? LocalizedFormat(bundle, key, {name}) : QString();
}

} // namespace kesta::booklet_watermark
