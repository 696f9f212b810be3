#pragma once

#include <QStringList>
#include <QWidget>

namespace kesta {

// Draws pictures over each other, the first lowest, centred, never scaled up or mirrored; 40 % of their opacity while
// disabled. Without a picture it draws nothing. A handler of draw events on it or around it may draw instead.
class PictureView : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString picture READ picture WRITE setPicture) // file name, or empty

public:
    explicit PictureView(QWidget* parent = nullptr);

    // Where names without a folder are looked for; interface files set it to their bundle's pictures.
    void setFolder(const QString& folder);

    QString picture() const { return names_.value(0); }
    void setPicture(const QString& name);
    void setPictures(const QStringList& names); // base and overlays; empty names are left out
    const QStringList& pictures() const { return names_; }

    QSize sizeHint() const override; // of the lowest picture; 48 x 48 without one
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString folder_;
    QStringList names_;
};

} // namespace kesta
