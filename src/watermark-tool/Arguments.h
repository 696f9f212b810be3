#pragma once

#include "panels/booklet_watermark/watermark/WatermarkData.h"

#include <QSizeF>
#include <QStringList>

#include <optional>

namespace kesta::watermark_tool {

// What stands behind a command: options with a value each, of which each is given at most once, and the rest.
class Arguments {
public:
    // The problem in words, empty when there is none. "flags" are options without a value.
    QString read(const QStringList& arguments, const QStringList& options, const QStringList& flags);

    const QStringList& rest() const { return rest_; }
    bool has(const QString& option) const;
    std::optional<QString> value(const QString& option) const;

private:
    QStringList names_;
    QStringList values_;
    QStringList rest_;
};

// The record that "add" is asked for; the problem in words when it can't be.
struct NewWatermark {
    booklet_watermark::_WatermarkData record;
    QString problem;
};
NewWatermark MakeWatermark(const Arguments& arguments);

// In points, of a paper's usual name, as "A4" and "Letter"; nothing when no paper has that name.
std::optional<QSizeF> PaperSize(const QString& name);

} // namespace kesta::watermark_tool
