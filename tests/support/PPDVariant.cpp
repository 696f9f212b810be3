#include "support/PPDVariant.h"

#include <QFile>

#include <functional>
#include <stdexcept>

namespace kesta::test {
namespace {

QByteArray ReadProductPPD()
{
    QFile file(QStringLiteral(KESTA_PPD));
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("the product's PPD can't be read");
    return file.readAll();
}

using Edit = std::function<bool(QByteArray& line)>; // true when it took the line

// Walks the lines; a line that an edit leaves empty goes.
QByteArray EditLines(const QByteArray& content, const Edit& edit)
{
    QByteArray result;
    bool found = false;
    for (QByteArray line : content.split('\n')) {
        const bool taken = edit(line);
        found = found || taken;
        if (!taken || !line.isEmpty())
            result += line + '\n';
    }
    if (!found)
        throw std::logic_error("the product's PPD has nothing of that kind to change");
    result.chop(1); // split made one line too many of the last line end
    return result;
}

bool Mentions(const QByteArray& line, const QByteArray& option)
{
    return (line + ' ').contains(" *" + option + ' ');
}

} // namespace

PPDVariant::PPDVariant() : content_(ReadProductPPD()) {}

PPDVariant& PPDVariant::setDefault(QByteArrayView option, QByteArrayView choice)
{
    const QByteArray beginning = "*Default" + option.toByteArray() + ": ";
    return replaceLines(beginning, beginning + choice.toByteArray());
}

PPDVariant& PPDVariant::replaceLines(QByteArrayView beginning, QByteArrayView lines)
{
    content_ = EditLines(content_, [&](QByteArray& line) {
        if (!line.startsWith(beginning))
            return false;
        line = lines.toByteArray();
        return true;
    });
    return *this;
}

PPDVariant& PPDVariant::setChoiceText(QByteArrayView option, QByteArrayView choice, QByteArrayView text)
{
    const QByteArray beginning = '*' + option.toByteArray() + ' ' + choice.toByteArray() + '/';
    content_ = EditLines(content_, [&](QByteArray& line) {
        if (!line.startsWith(beginning))
            return false;
        line = beginning + text.toByteArray() + line.mid(line.indexOf(':', beginning.size()));
        return true;
    });
    return *this;
}

PPDVariant& PPDVariant::removeOption(QByteArrayView option)
{
    const QByteArray name = option.toByteArray();
    bool inside = false;
    content_ = EditLines(content_, [&](QByteArray& line) {
        const bool opens = line.contains("OpenUI *" + name + '/');
        const bool closes = line.contains("CloseUI: *" + name) && line.endsWith('*' + name);
        inside = (inside || opens) && !closes;
        if (!inside && !closes && !(line.startsWith("*UIConstraints:") && Mentions(line, name)))
            return false;
        line.clear();
        return true;
    });
    return *this;
}

PPDVariant& PPDVariant::removeGroup(QByteArrayView group)
{
    const qsizetype start = content_.indexOf("*OpenGroup: " + group.toByteArray() + '/');
    const QByteArray last = "*CloseGroup: " + group.toByteArray() + '\n';
    const qsizetype end = content_.indexOf(last);
    if (start < 0 || end < start)
        throw std::logic_error("the product's PPD has no such group");
    content_.remove(start, end + last.size() - start);
    return *this;
}

PPDVariant& PPDVariant::append(QByteArrayView lines)
{
    content_.append(lines);
    return *this;
}

PPDVariant& PPDVariant::truncate(qsizetype size)
{
    content_.truncate(size);
    return *this;
}

QString PPDVariant::path() const
{
    QFile file(directory_.filePath(QStringLiteral("variant.ppd")));
    if (!file.open(QIODevice::WriteOnly) || file.write(content_) != content_.size())
        throw std::runtime_error("the PPD variant can't be written");
    return file.fileName();
}

} // namespace kesta::test
