#include "host/ppd/PPDFacts.h"

#include "host/ppd/PPDFile.h"

namespace kesta::host {
namespace {

QString Text(const char* utf8)
{
    return QString::fromUtf8(utf8); // libcups turns texts into UTF-8; null is an empty text
}

void AddChoices(const ppd_group_t& group, PrinterFacts& facts)
{
    for (int i = 0; i < group.num_options; ++i) {
        const ppd_option_t& option = group.options[i];
        std::set<QString>& choices = facts.choices[Text(option.keyword)];
        for (int j = 0; j < option.num_choices; ++j)
            choices.insert(Text(option.choices[j].choice));
        facts.defaults[Text(option.keyword)] = Text(option.defchoice);
    }
    for (int i = 0; i < group.num_subgroups; ++i)
        AddChoices(group.subgroups[i], facts);
}

std::optional<PaperRect> PaperOf(ppd_file_t& ppd, const Dictionary& chosen)
{
    if (const QString* size = chosen.string("PageSize"))
        ppdMarkOption(&ppd, "PageSize", size->toUtf8().constData());
    const ppd_size_t* size = ppdPageSize(&ppd, nullptr);
    if (!size)
        return std::nullopt;
    return PaperRect{.top = 0, .left = 0, .bottom = size->length, .right = size->width};
}

TicketReader ReaderOf(ppd_file_t& ppd)
{
    TicketReader reader;
    if (const ppd_attr_t* version = ppdFindAttr(&ppd, "KSTicketVersion", nullptr))
        reader.version = QByteArray(version->value).trimmed().toInt();
    for (const ppd_attr_t* key = ppdFindAttr(&ppd, "KSTicketKey", nullptr); key;
         key = ppdFindNextAttr(&ppd, "KSTicketKey", nullptr)) {
        const QByteArray text = QByteArray(key->value).trimmed();
        if (!reader.publicKeys.contains(text))
            reader.publicKeys << text;
    }
    return reader;
}

} // namespace

PrinterFacts ReadPPDFacts(const QString& ppdPath)
{
    const auto [ppd, problem] = OpenPPDFile(ppdPath);
    if (!ppd)
        return {.ticketReader = {.problem = problem}, .problem = problem};
    PrinterFacts facts{.name = Text(ppd->nickname ? ppd->nickname : ppd->modelname),
                       .manufacturer = Text(ppd->manufacturer),
                       .ticketReader = ReaderOf(*ppd)};
    for (int i = 0; i < ppd->num_groups; ++i)
        AddChoices(ppd->groups[i], facts);
    return facts;
}

std::optional<PaperRect> ReadPaper(const QString& ppdPath, const Dictionary& choices)
{
    const PPDFile file = OpenPPDFile(ppdPath);
    return file.ppd ? PaperOf(*file.ppd, choices) : std::nullopt;
}

} // namespace kesta::host
