#pragma once

#include <QAnyStringView>
#include <QStringList>

class QWidget;

namespace kesta {

struct Bundle;
struct Menu;

// Each looks the key up in the bundle's default table ("STRING NOT FOUND" when it is missing) and sets the text, with
// the arguments in the places of its placeholders %1 to %9. Nothing happens without target or key.
void SetLocalizedStaticText(const Bundle& bundle, QAnyStringView key, QWidget* label,
                            const QStringList& arguments = {});
void SetLocalizedControlTitle(const Bundle& bundle, QAnyStringView key, QWidget* control,
                              const QStringList& arguments = {});
void SetLocalizedWindowTitle(const Bundle& bundle, QAnyStringView key, QWidget* window,
                             const QStringList& arguments = {});
// The item at the 1-based position.
void SetLocalizedMenuTitle(const Bundle& bundle, QAnyStringView key, Menu* menu, int position,
                           const QStringList& arguments = {});

// Gives the control the size that its contents ask for; in a layout, which looks after sizes, asks it to do so.
void SetControlBestRect(QWidget* control);

} // namespace kesta
