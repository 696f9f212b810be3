#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QTemporaryDir>

namespace kesta::test {

// The product's PPD with changes, as a temporary file that lives as long as the object. A change that finds nothing to
// change throws, so that a variant does not turn into the plain PPD when that one is edited.
//     PPDVariant ppd;
//     ppd.setDefault("Option2", "CClass").removeOption("Jog");
//     const CurrentPrinter printer(ppd);
class PPDVariant {
public:
    PPDVariant();

    // The option's default choice; for the options of InstallableOptions, what is fitted.
    PPDVariant& setDefault(QByteArrayView option, QByteArrayView choice);
    // Every line that begins like this becomes the given line or lines; none: they go.
    PPDVariant& replaceLines(QByteArrayView beginning, QByteArrayView lines);
    // The text of one choice, in whatever bytes.
    PPDVariant& setChoiceText(QByteArrayView option, QByteArrayView choice, QByteArrayView text);
    // The option with its choices, order and constraints; the group with all that is in it.
    PPDVariant& removeOption(QByteArrayView option);
    PPDVariant& removeGroup(QByteArrayView group);
    PPDVariant& append(QByteArrayView lines);
    PPDVariant& truncate(qsizetype size); // in bytes

    const QByteArray& content() const { return content_; }
    QString path() const; // the file as of now, always of the same name

private:
    QByteArray content_;
    QTemporaryDir directory_;
};

} // namespace kesta::test
