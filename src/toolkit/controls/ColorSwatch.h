#pragma once

#include <QAbstractButton>
#include <QColor>

namespace kesta {

// Shows a colour. In a window from an interface file, pressing it lets the user choose another (ColorDialog.h). A new
// colour sends a hit.
class ColorSwatch : public QAbstractButton {
    Q_OBJECT

public:
    explicit ColorSwatch(QWidget* parent = nullptr);

    QColor color() const { return color_; }
    void setColor(const QColor& color);    // opaque; sends nothing
    void chooseColor(const QColor& color); // as the user would

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor color_ = Qt::black;
};

} // namespace kesta
