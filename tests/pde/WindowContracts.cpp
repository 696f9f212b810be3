#include "pde/WindowContracts.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace kesta::test {
namespace {

QString TextOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

FourCharCode SignatureIn(const QString& text)
{
    static const QRegularExpression signature(u"FourCharCode k\\w*Signature = \"(.{4})\"_code"_s);
    const QString code = signature.match(text).captured(1);
    FourCharCode value = 0;
    for (const QChar c : code)
        value = value << 8 | static_cast<FourCharCode>(c.toLatin1());
    return value;
}

void TakeNumbers(const QString& text, WindowContract& contract)
{
    static const QRegularExpression enumerator(u"^ *k\\w+ = (\\d+),(?: *// (.*))?$"_s,
                                               QRegularExpression::MultilineOption);
    const QString name = contract.window.section(u'/', 1);
    for (const QRegularExpressionMatch& match : enumerator.globalMatch(text)) {
        const SInt32 number = match.captured(1).toInt();
        if (match.captured(2) == u"optional")
            contract.optional.insert(number);
        else if (match.captured(2) != u"not in "_s + name)
            contract.numbers.insert(number);
    }
}

} // namespace

std::vector<WindowContract> WindowContracts(const QString& sources)
{
    static const QRegularExpression says(u"// The numbers? of the controls? in ([^.,]+/[^.]+)[.,]"_s);
    static const QRegularExpression window(u"\\w+/\\w+(?: [A-Z]\\w*)*"_s);
    std::vector<WindowContract> contracts;
    QDirIterator headers(sources, {u"*.h"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (headers.hasNext()) {
        const QString header = headers.next();
        const QString text = TextOf(header);
        const QRegularExpressionMatch said = says.match(text);
        if (!said.hasMatch())
            continue;
        const qsizetype end = text.indexOf(u"} // namespace"_s, said.capturedEnd());
        const QString part = text.sliced(said.capturedEnd(), end - said.capturedEnd());
        for (const QRegularExpressionMatch& named : window.globalMatch(said.captured(1))) {
            contracts.push_back({.header = header,
                                 .window = named.captured(),
                                 .signature = SignatureIn(part),
                                 .numbers = {},
                                 .optional = {}});
            TakeNumbers(part, contracts.back());
        }
    }
    return contracts;
}

} // namespace kesta::test
